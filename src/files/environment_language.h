#pragma once

#include <optional>

namespace zel {

/// Whether the first of LC_ALL, LC_MESSAGES and LANG that holds a text begins with "en"; nothing
/// when none holds one.
std::optional<bool> environmentSpeaksEnglish();

}  // namespace zel
