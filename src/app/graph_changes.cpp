#include "app/graph_changes.h"

#include <utility>

#include "app/editor/new_graph.h"
#include "app/messages.h"
#include "base/language.h"

namespace zel {
namespace {

/// The same graph under another letter. The text of a conic begins with its letter.
GraphDef copyOf(const GraphDef& def, char letter) {
  GraphDef copy = def;
  copy.nombre = letter;
  const bool has_letter = copy.ecuacion.starts_with(std::string{def.nombre, '('});
  if (has_letter && std::string_view("CEPH").find(def.tipo) != std::string_view::npos)
    copy.ecuacion.front() = letter;
  if (def.parameters) copy.parameters = std::make_shared<Parameters>(*def.parameters);
  return copy;
}

int freeLetters(const GraphTable& graphs) {
  int count = 0;
  for (char letter = 'a'; letter <= 'z'; ++letter) count += !graphs.slot(letter)->defined;
  return count;
}

/// What is there now, with as much of it as this state would replace.
GraphsState presentState(const Program& program, const MainView& view, const GraphsState& other) {
  if (other.document) return wholeState(program, view);
  return {program.graphs, std::nullopt};
}

std::string changedLetters(const Program& program, const GraphsState& other) {
  return other.document ? std::string() : differingLetters(program.graphs, other.graphs);
}

}  // namespace

void changeGraphs(Program& program, const GraphTable& changed) {
  if (!differingLetters(program.graphs, changed).empty())
    program.history.record({program.graphs, std::nullopt});
  program.graphs = changed;
}

GraphsState wholeState(const Program& program, const MainView& view) {
  return {program.graphs,
          DocumentState{program.document_name, program.document_path, program.header, view}};
}

void takeState(Program& program, MainView& view, GraphsState state) {
  program.graphs = state.graphs;
  if (!state.document) return;
  program.document_name = std::move(state.document->name);
  program.document_path = std::move(state.document->path);
  program.header = std::move(state.document->header);
  view = std::move(state.document->view);
}

std::string duplicateGraphs(Program& program, std::string_view letters) {
  if (freeLetters(program.graphs) < static_cast<int>(letters.size())) {
    ShowAttention(program.services.boxes, Localize("No se puede definir mas gráficos."));
    return {};
  }
  GraphTable changed = program.graphs;
  std::string copies;
  for (const char letter : letters) {
    const char free = nextFreeLetter(changed);
    GraphDef copy = copyOf(*changed.graph(letter), free);
    copy.color = nextFreshColour(changed);
    changed.storeGraph(copy);
    copies += free;
  }
  changeGraphs(program, changed);
  return copies;
}

std::string undoChange(Program& program, MainView& view) {
  const GraphsState* const last = program.history.undoable();
  if (!last) return {};
  std::string letters = changedLetters(program, *last);
  takeState(program, view, program.history.undo(presentState(program, view, *last)));
  return letters;
}

std::string redoChange(Program& program, MainView& view) {
  const GraphsState* const next = program.history.redoable();
  if (!next) return {};
  std::string letters = changedLetters(program, *next);
  takeState(program, view, program.history.redo(presentState(program, view, *next)));
  return letters;
}

}  // namespace zel
