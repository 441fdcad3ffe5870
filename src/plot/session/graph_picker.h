#pragma once

#include <optional>

#include "engine/engine.h"
#include "graphs/graph_table.h"
#include "plot/session/trace.h"

namespace zel {

/// The members of a family that are looked at; later ones are not picked.
inline constexpr int kMostPickedMembers = 100'000;

/// What was picked: a graph, and for a family its member.
struct PickedGraph {
  char letter = '\0';
  std::optional<double> member;
};

/// The graph whose value at the point's x is nearest to the point's y. Graphs are visited in letter
/// order, going round, from the active one; the first of equally near ones is picked. A conic
/// counts with each branch and a family with each member, whose parameter stays set in the engine.
/// Nothing is picked, and the parameter is what it was, when the walk is ended.
std::optional<PickedGraph> pickGraph(Engine& engine, const GraphTable& graphs, char active,
                                     PlanePoint point, Walk& walk);

}  // namespace zel
