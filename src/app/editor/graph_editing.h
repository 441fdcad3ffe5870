#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "app/program.h"
#include "graphs/graph_builders.h"
#include "graphs/graph_def.h"

/// What the graph editor decides, without the window.
namespace zel {

/// The letters of the kinds, in the order of the editor's tabs.
inline constexpr std::string_view kEditorKinds = "FCEPTHZ";

/// How the editor opens.
struct EditorStart {
  bool changes = false;  // a graph of the table, or else a new one
  char letter = 'a';
  std::int32_t colour = 0;
  char kind = 'F';
  GraphFields fields;  // without labels
};

/// By FormParams: "modo" = "agregar" offers a new graph; otherwise "nombre" is the letter of the
/// graph to change. A name that is no graph in use offers a new graph, too.
EditorStart startEditor(const Program& program);

/// The fields from which a graph was made. Of a parabola that is the focus, not the vertex that its
/// parameters hold; where those are no numbers, the focus's height is empty.
GraphFields fieldsOf(const GraphDef& def);

/// The editor's title in the current language.
std::string editorTitle(bool changes);

/// What stands in front of the formula: "a(x)=", of a family "a(x,P)="; empty for other kinds.
std::string formulaHeader(char letter, char kind);

/// What the insert menu puts at the caret, and how far the caret then goes back into it.
struct Insertion {
  std::string text;
  std::size_t caret_back = 0;
};

/// A name and its parentheses, with the caret between them, or with what was selected there and the
/// caret behind. The factorial follows its argument and so stands alone, behind the parentheses.
Insertion functionInsertion(std::string_view name, std::string_view selected = {});

/// The accept: checks the fields and stores the graph, or says why not. True when it is stored and
/// the editor closes; "nombre" is its letter in FormParams then. An arithmetic failure says
/// nothing.
bool acceptEdited(Program& program, char letter, std::int32_t colour, const GraphFields& fields);

}  // namespace zel
