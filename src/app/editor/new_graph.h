#pragma once

#include <cstdint>
#include <span>

#include "graphs/graph_builders.h"
#include "graphs/graph_table.h"

/// What the graph editor offers for a new graph.
namespace zel {

/// The first letter that no graph has; "a" when all are in use.
char nextFreeLetter(const GraphTable& graphs);

/// As many colours as letters, in the order in which they are offered. Each has a contrast of 3:1
/// or more on white, and differs from those before it for normal eyes and for the three kinds of
/// colour blindness, the first eight clearly so.
std::span<const std::int32_t> graphColours();

/// So far a colour is from those of the graphs, in perceived distance, when it looks like none.
inline constexpr double kFreshDistance = 0.1;

/// The first of them that looks like no graph's colour; where none is so far from all, the one that
/// differs the most, the first of several.
std::int32_t nextFreshColour(const GraphTable& graphs);

/// The fields of a new graph of a kind: empty ones, but a range and a step where the kind has them.
/// A letter that is no kind has the fields of "F".
GraphFields newGraphFields(char kind);

}  // namespace zel
