#pragma once

#include <vector>

#include "graphs/graph_builders.h"

namespace zel {

/// A field of a graph and the name of the control that holds it.
struct FieldPlace {
  const char* control;
  Field* field;
};

/// The places of a kind's fields in the graph editor; they point into `fields`.
std::vector<FieldPlace> placesOf(GraphFields& fields);

/// The controls that hold formulas of a kind, the first one first; none for a conic.
std::vector<const char*> formulaControls(char kind);

}  // namespace zel
