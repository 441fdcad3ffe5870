#pragma once

#include <cstddef>
#include <deque>
#include <optional>
#include <string>

#include "files/document.h"
#include "graphs/graph_table.h"

namespace zel {

/// The document around the graphs: what New and Open replace, and no other change does.
struct DocumentState {
  std::string name;
  std::string path;
  DocumentHeader header;
  MainView view;
};

/// What a change of the graphs replaced.
struct GraphsState {
  GraphTable graphs;
  std::optional<DocumentState> document;  // nothing where the change left it alone
};

/// The states of the graphs that changes have replaced, for undo and redo. In want of memory all
/// stays as it is.
class GraphHistory {
 public:
  /// What goes beyond either bound is forgotten, the oldest state first; the last one is kept.
  static constexpr std::size_t kMostSteps = 100;
  static constexpr std::size_t kMostBytes = std::size_t{64} << 20;  // of texts, in all steps

  /// Keeps what was there before a change. What was undone before cannot be redone any more.
  void record(GraphsState before);

  /// What undo and redo would bring back; null when there is nothing.
  const GraphsState* undoable() const { return done_.empty() ? nullptr : &done_.back(); }
  const GraphsState* redoable() const { return undone_.empty() ? nullptr : &undone_.back(); }

  /// Gives back what undoable or redoable showed, and keeps what is there now for the way back.
  GraphsState undo(GraphsState now);
  GraphsState redo(GraphsState now);

 private:
  std::deque<GraphsState> done_;    // the last change at the end
  std::deque<GraphsState> undone_;  // what was undone last at the end
};

/// The letters under which the two tables differ in what the user sees or a document holds, from
/// "a" to "z".
std::string differingLetters(const GraphTable& one, const GraphTable& other);

}  // namespace zel
