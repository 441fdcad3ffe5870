#pragma once

#include <string>
#include <string_view>

#include "graphs/graph_def.h"

/// The kinds of graphs, and the explicit formulas of those that are curves of the second degree.
namespace zel {

struct KindInfo {
  char letter = '\0';  // '\0' in an entry that no kind fills
  std::string_view name;
  bool two_branches = false;
  std::string_view template1;  // code of the upper branch, or of the only one
  std::string_view template2;  // code of the lower branch
};

/// The kind table has an entry for each letter "A" to "Z", seven of them filled; null for any other
/// letter.
const KindInfo* kindInfo(char letter);

/// The template with every key of the dictionary, one after the other in its order, replaced by
/// its value in parentheses wherever it occurs, case ignored: "(r^2)" becomes "((3)^2)".
std::string substituteParameters(std::string_view code_template, const Parameters& parameters);

}  // namespace zel
