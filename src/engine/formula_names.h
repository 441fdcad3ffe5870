#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "engine/reference/reference_expansion.h"

namespace zel {

/// A name in a formula that stands for nothing.
struct UnknownName {
  std::string name;      // in lower case
  bool is_call = false;  // of a graph by its letter, which has no code
};

/// The first name of a formula that is no value, no function and no call of a graph with a code. A
/// formula with one may be declared all the same where the grammar lets it pass.
std::optional<UnknownName> findUnknownName(std::string_view formula, const GraphCodes& graphs);

}  // namespace zel
