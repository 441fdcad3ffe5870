#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>

#include "engine/engine.h"
#include "graphs/graph_def.h"
#include "plot/viewport.h"

namespace zel {

/// A formula without a value at any sample.
struct ValuelessFormula {
  std::size_t field = 0;  // the formula's place among the fields of its kind
  std::string reason;     // the engine's message at the first sample
};

/// Looks for one at the samples that a drawing has. Nothing when each formula has a value
/// somewhere, when the graph is a conic, and when `goes_on` said no meanwhile. The viewport must be
/// prepared.
std::optional<ValuelessFormula> findValuelessFormula(const GraphDef& def, const Viewport& viewport,
                                                     Engine& engine,
                                                     const std::function<bool()>& goes_on);

}  // namespace zel
