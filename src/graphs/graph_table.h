#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "graphs/graph_def.h"

namespace zel {

/// The graphs of the document, a slot for each letter "a" to "z". A letter outside of them is a
/// bounds error: no value, or false and nothing changed. Copies share the graphs, texts and all,
/// until one of them writes a slot.
class GraphTable {
 public:
  static constexpr std::int16_t kSlots = 26;

  GraphTable() = default;
  GraphTable(const GraphTable&) = default;  // a move is a copy: it leaves a table behind
  GraphTable& operator=(const GraphTable&) = default;

  /// Starts the count at 0; the slots stay. Once, at start-up.
  void initGraphDefinitions() { count_ = 0; }

  /// A copy of the slot, whether or not it is in use.
  std::optional<GraphDef> graph(char letter) const;

  /// The slot itself, whether or not it is in use; null for any other letter. It stays valid until
  /// the slot is written.
  const GraphDef* slot(char letter) const;

  /// Writes the slot of `def.nombre`. The caller sets `defined`. The count goes up unless the slot
  /// was in use already.
  bool storeGraph(GraphDef def);

  /// The slot is no longer in use; its other fields stay. The count goes down even when the slot
  /// was not in use: this is meant.
  bool freeGraph(char letter);

  /// Empties all slots (each keeps its letter) and the count.
  void clearGraphs();

  /// The next slot in use after the letter, going round at "z"; the letter's own slot when no other
  /// is in use. When none is, a free slot: look at `defined`. Without a letter the search begins at
  /// "z" itself, so that a graph "z" comes first: this is meant. Null for a letter below the one
  /// before "a".
  const GraphDef* nextDefined(std::optional<char> letter = std::nullopt) const;
  /// The mirror image: going round at "a", beginning there without a letter, and null for a letter
  /// above the one after "z".
  const GraphDef* previousDefined(std::optional<char> letter = std::nullopt) const;

  /// How often a slot came into use less how often one was freed.
  std::int16_t count() const { return count_; }

  /// Stores a graph in use, its code made anew by its kind: "F" and "Z" from `ecuacion`, "C", "E"
  /// and "H" from the parameter "codigo1", "P" from `codigo`; "T" gets "codigo_xt" and "codigo_yt"
  /// written into `parameters`. A null dictionary is an empty one.
  bool rebuildGraph(char nombre, std::string ecuacion, std::string codigo, std::int32_t color,
                    char tipo, std::shared_ptr<Parameters> parameters);

  /// The code of a slot, whether or not it is in use; empty for any other letter. It stays valid
  /// until the slot is written.
  std::string_view codeOf(char letter) const;

 private:
  void changeCount(int difference);

  std::array<std::shared_ptr<const GraphDef>, kSlots> slots_;  // null: as it was at first
  std::int16_t count_ = 0;
};

}  // namespace zel
