#pragma once

#include <initializer_list>
#include <utility>

#include "graphs/graph_def.h"

namespace zel::test {

inline Parameters parametersOf(std::initializer_list<std::pair<const char*, const char*>> pairs) {
  Parameters parameters;
  for (const auto& [key, value] : pairs) parameters.Add(key, value);
  return parameters;
}

}  // namespace zel::test
