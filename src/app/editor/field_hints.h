#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "engine/engine.h"
#include "graphs/graph_builders.h"
#include "graphs/graph_table.h"

/// What the graph editor says under its fields before anything is accepted.
namespace zel {

enum class HintTone {
  none,     // nothing is said
  missing,  // an accept would refuse the field, which is empty
  refusal,  // an accept would refuse the field
  note,     // what will happen, or that little will be seen
};

struct FieldHint {
  HintTone tone = HintTone::none;
  std::string text;  // one line in the current language
  /// The characters of the text that are to be marked, in bytes.
  std::size_t mark = 0;
  std::size_t mark_size = 0;

  bool isFault() const { return tone == HintTone::missing || tone == HintTone::refusal; }
  bool operator==(const FieldHint&) const = default;
};

/// A hint for each field of the kind, in the order of the form. One is a fault exactly where an
/// accept would refuse the fields, or end silently, because of it. Calls of other graphs are looked
/// up in `graphs`; the engine is left as formula checks leave it.
std::vector<FieldHint> hintFields(const GraphFields& fields, const GraphTable& graphs,
                                  Engine& engine);

/// That a formula has no value in the whole range, and why not where that is known; a message of
/// the engine, of which the first line counts.
FieldHint noValueHint(std::string_view reason);

/// What becomes of the graph that has the letter, or of the one that is being changed; a full table
/// refuses everything.
FieldHint hintLetter(char letter, std::optional<char> changed, const GraphTable& graphs);

/// The first of them; nothing when there is none.
std::optional<std::size_t> firstFault(const std::vector<FieldHint>& hints);

}  // namespace zel
