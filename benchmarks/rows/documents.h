#pragma once

#include <string>

#include "graphs/graph_table.h"
#include "plot/axes.h"
#include "plot/viewport.h"

namespace zel::bench {

/// The example of 26 graphs. Throws a std::runtime_error when it cannot be opened.
struct AlphabetDocument {
  AlphabetDocument();

  static std::string path() { return std::string(ZEL_EXAMPLES_DIR) + "/alphabet.zel"; }

  GraphTable graphs;
  ViewSettings view{-13, -8, 13, 8, 100, false};
  ScaleMarks marks;
};

}  // namespace zel::bench
