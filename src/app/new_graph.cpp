#include "app/new_graph.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace zel {
namespace {

// Red in the low byte.
constexpr std::array<std::int32_t, GraphTable::kSlots> kColours = {
    0xBB7700, 0x0055DD, 0x225511, 0x552266, 0x7777DD, 0xFF0000, 0x991155, 0xFF22CC, 0x33AA11,
    0x8833CC, 0xDD44EE, 0x3300BB, 0x884444, 0xBB77CC, 0x004499, 0xDD0066, 0xCC2299, 0xAA33AA,
    0x558800, 0x000088, 0x664499, 0xFF7733, 0x8833FF, 0xBB2200, 0x440099, 0x5500EE,
};

template <class Predicate>
bool anyGraph(const GraphTable& graphs, Predicate predicate) {
  for (char letter = 'a'; letter <= 'z'; ++letter) {
    const auto def = graphs.graph(letter);
    if (def && def->defined && predicate(*def)) return true;
  }
  return false;
}

Field fieldOf(const char* text) { return {text, {}}; }

FamilyFields newFamily() { return {{}, fieldOf("-3"), fieldOf("3"), fieldOf("1")}; }

/// A full turn: trigonometric functions take degrees.
ParametricFields newCurve() { return {{}, {}, fieldOf("0"), fieldOf("360"), fieldOf("1")}; }

}  // namespace

char nextFreeLetter(const GraphTable& graphs) {
  for (char letter = 'a'; letter <= 'z'; ++letter) {
    if (!graphs.graph(letter)->defined) return letter;
  }
  return 'a';
}

std::span<const std::int32_t> graphColours() { return kColours; }

std::int32_t nextFreshColour(const GraphTable& graphs) {
  const auto is_fresh = [&](std::int32_t colour) {
    return !anyGraph(graphs, [colour](const GraphDef& def) {
      return (def.color & 0xFFFFFF) == colour;  // the highest byte does not count
    });
  };
  const auto found = std::find_if(kColours.begin(), kColours.end(), is_fresh);
  return found == kColours.end() ? kColours.front() : *found;
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
