#include "app/editor/graph_editing.h"

#include <cmath>
#include <optional>
#include <variant>

#include "app/editor/new_graph.h"
#include "app/graph_changes.h"
#include "app/messages.h"
#include "base/language.h"
#include "engine/compiler.h"
#include "numbers/number_text.h"

namespace zel {
namespace {

std::string textArgument(const FormParams& params, std::string_view key) {
  const FormValue value = params.Item(key);
  const auto text = std::get_if<std::string>(&value);
  return text ? *text : std::string();
}

std::optional<GraphDef> graphToChange(const Program& program) {
  if (textArgument(program.params, "modo") == "agregar") return std::nullopt;
  const std::string name = textArgument(program.params, "nombre");
  if (name.size() != 1) return std::nullopt;
  auto def = program.graphs.graph(name.front());
  if (!def || !def->defined) return std::nullopt;
  return def;
}

/// The height of the focus is half of the distance above the vertex.
std::string focusHeight(const GraphDef& def) {
  const auto k = readNumber(parameter(def, "k"));
  const auto p = readNumber(parameter(def, "p"));
  if (!k || !p) return {};
  const double height = *k + *p / 2;
  return std::isfinite(height) ? writeNumber(height).str() : std::string();
}

Field parameterField(const GraphDef& def, std::string_view key) {
  return {parameter(def, key), {}};
}

}  // namespace

EditorStart startEditor(const Program& program) {
  EditorStart start;
  if (const auto def = graphToChange(program)) {
    start.changes = true;
    start.letter = def->nombre;
    start.colour = def->color;
    if (kEditorKinds.find(def->tipo) != std::string_view::npos) start.kind = def->tipo;
    start.fields = fieldsOf(*def);
    return start;
  }
  start.letter = nextFreeLetter(program.graphs);
  start.colour = nextFreshColour(program.graphs);
  start.fields = newGraphFields(start.kind);
  return start;
}

GraphFields fieldsOf(const GraphDef& def) {
  const auto field = [&](std::string_view key) { return parameterField(def, key); };
  switch (def.tipo) {
    case 'C': return CircumferenceFields{field("h"), field("k"), field("r")};
    case 'E': return EllipseFields{field("h"), field("k"), field("a"), field("b")};
    case 'P': return ParabolaFields{field("h"), {focusHeight(def), {}}, field("p")};
    case 'T':
      return ParametricFields{field("ecuacion_xt"), field("ecuacion_yt"), field("inicio"),
                              field("fin"), field("variacion")};
    case 'H': return HyperbolaFields{field("h"), field("k"), field("a"), field("c")};
    case 'Z':
      return FamilyFields{{def.ecuacion, {}}, field("inicio"), field("fin"), field("variacion")};
    default: return FunctionFields{{def.ecuacion, {}}};
  }
}

std::string editorTitle(bool changes) {
  return Localize(changes ? "Modificar gráfico" : "Agregar nuevo gráfico");
}

std::string formulaHeader(char letter, char kind) {
  if (kind == 'F') return std::string(1, letter) + "(x)=";
  if (kind == 'Z') return std::string(1, letter) + "(x,P)=";
  return {};
}

Insertion functionInsertion(std::string_view name, std::string_view selected) {
  const bool is_postfix = name == PostfixFunctions.front();
  const std::string function(name);
  if (selected.empty()) return is_postfix ? Insertion{function, 0} : Insertion{function + "()", 1};
  const std::string argument = "(" + std::string(selected) + ")";
  return {is_postfix ? argument + function : function + argument, 0};
}

bool acceptEdited(Program& program, char letter, std::int32_t colour, const GraphFields& fields) {
  GraphTable changed = program.graphs;
  std::string message;
  const Accepted accepted = acceptGraph(changed, program.engine, letter, colour, fields, message);
  if (accepted == Accepted::refused_full)
    ShowAttention(program.services.boxes, message);
  else if (accepted == Accepted::refused)
    ReportError(program.services.boxes, message);
  if (accepted != Accepted::stored) return false;
  program.params.set("nombre", std::string(1, letter));
  changeGraphs(program, changed);
  return true;
}

}  // namespace zel
