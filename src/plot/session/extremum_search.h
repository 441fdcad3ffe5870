#pragma once

#include <optional>
#include <string_view>

#include "engine/engine.h"
#include "plot/session/trace.h"
#include "plot/viewport.h"

namespace zel {

/// A change of direction between samples.
struct Extremum {
  std::string_view label;  // "MAX" or "Min"
  PlanePoint before;       // the last sample before the turn, where the cursor is put
  PlanePoint after;        // the first one after it, which is shown: this is meant
};

/// Searches to the right of `start` for the next maximum or minimum of the code in the view, in
/// half sample steps, and goes on at the left end of the range once. At least three samples must
/// come before the one that tells. Nothing when there is none, or the walk is ended.
std::optional<Extremum> searchExtremum(Engine& engine, std::string_view code,
                                       const Viewport& viewport, double start, Walk& walk);

}  // namespace zel
