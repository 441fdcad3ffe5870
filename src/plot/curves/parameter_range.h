#pragma once

#include <cmath>
#include <optional>

#include "graphs/graph_def.h"

namespace zel {

/// The values that the parameter of a family or of a parametric curve takes.
struct ParameterRange {
  double inicio = 0;
  double fin = 0;
  double variacion = 0;
};

/// Nothing when one of the graph's texts is no number.
std::optional<ParameterRange> parameterRange(const GraphDef& def);

/// Calls `visit` with each value, from the first to the last by repeated addition, until it returns
/// false. A step other than 0 that no longer changes the value ends the loop as if it had run out,
/// and so does one that leads beyond the range of a double; a step of 0 goes on until `visit` ends
/// it.
template <class Visit>
void forEachParameter(const ParameterRange& range, const Visit& visit) {
  for (double value = range.inicio; value <= range.fin;) {
    if (!visit(value)) return;
    const double next = value + range.variacion;
    if (!std::isfinite(next) || (next == value && range.variacion != 0)) return;
    value = next;
  }
}

}  // namespace zel
