// The first of the three variables that holds a text decides, in the order that POSIX gives them,
// and by its first two letters alone.

#include "files/environment_language.h"

#include <cstdlib>
#include <string_view>

namespace zel {

std::optional<bool> environmentSpeaksEnglish() {
  for (const char* const name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    const char* const found = std::getenv(name);
    const std::string_view value = found == nullptr ? "" : found;
    if (!value.empty()) return value.starts_with("en");
  }
  return std::nullopt;
}

}  // namespace zel
