#include "app/editor/new_graph.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>

#include "pictures/colour.h"

namespace zel {
namespace {

// Red in the low byte.
constexpr std::array<std::int32_t, GraphTable::kSlots> kColours = {
    0xBB7700, 0x0055DD, 0x225511, 0x552266, 0x7777DD, 0xFF0000, 0x991155, 0xFF22CC, 0x33AA11,
    0x8833CC, 0xDD44EE, 0x3300BB, 0x884444, 0xBB77CC, 0x004499, 0xDD0066, 0xCC2299, 0xAA33AA,
    0x558800, 0x000088, 0x664499, 0xFF7733, 0x8833FF, 0xBB2200, 0x440099, 0x5500EE,
};

/// To the colour of a graph that looks the most like it; endless where there is no graph.
double distanceFromGraphs(std::int32_t colour, const GraphTable& graphs) {
  double smallest = std::numeric_limits<double>::infinity();
  for (char letter = 'a'; letter <= 'z'; ++letter) {
    const GraphDef& def = *graphs.slot(letter);
    if (def.defined) smallest = std::min(smallest, perceivedDistance(colour, def.color));
  }
  return smallest;
}

Field fieldOf(const char* text) { return {text, {}}; }

FamilyFields newFamily() { return {{}, fieldOf("-3"), fieldOf("3"), fieldOf("1")}; }

/// A full turn: trigonometric functions take degrees.
ParametricFields newCurve() { return {{}, {}, fieldOf("0"), fieldOf("360"), fieldOf("1")}; }

}  // namespace

char nextFreeLetter(const GraphTable& graphs) {
  for (char letter = 'a'; letter <= 'z'; ++letter) {
    if (!graphs.slot(letter)->defined) return letter;
  }
  return 'a';
}

std::span<const std::int32_t> graphColours() { return kColours; }

std::int32_t nextFreshColour(const GraphTable& graphs) {
  std::int32_t best = kColours.front();
  double best_distance = -1;
  for (const std::int32_t colour : kColours) {
    const double distance = distanceFromGraphs(colour, graphs);
    if (distance >= kFreshDistance) return colour;
    if (distance > best_distance) {
      best = colour;
      best_distance = distance;
    }
  }
  return best;
}

GraphFields newGraphFields(char kind) {
  switch (kind) {
    case 'C': return CircumferenceFields{};
    case 'E': return EllipseFields{};
    case 'P': return ParabolaFields{};
    case 'T': return newCurve();
    case 'H': return HyperbolaFields{};
    case 'Z': return newFamily();
    default: return FunctionFields{};
  }
}

}  // namespace zel
