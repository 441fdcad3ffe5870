// A builder for each kind runs the checks of its fields in the order in which the editor shows
// their complaints, and then makes the formula text and the parameters; a conic's codes are its
// templates with the parameters put in as text. Nothing is stored unless no check complained.

#include "graphs/graph_builders.h"

#include <array>
#include <cmath>
#include <initializer_list>
#include <string_view>
#include <utility>

#include "base/language.h"
#include "engine/formula_check.h"
#include "graphs/kinds.h"
#include "numbers/number_text.h"

namespace zel {
namespace {

BuiltGraph newGraph(char tipo) {
  BuiltGraph graph;
  graph.tipo = tipo;
  return graph;
}

/// letter + "(" + the texts of the fields separated by ";" + ")"
std::string conicEquation(char letter, std::initializer_list<const Field*> fields) {
  std::string equation = {letter, '('};
  std::string_view separator;
  for (const Field* const field : fields) {
    equation.append(separator).append(field->text);
    separator = ";";
  }
  return equation + ")";
}

/// The codes of both branches from the parameters that are there already.
void addBranches(BuiltGraph& graph) {
  const KindInfo& kind = *kindInfo(graph.tipo);
  std::string upper = substituteParameters(kind.template1, *graph.parameters);
  std::string lower = substituteParameters(kind.template2, *graph.parameters);
  graph.parameters->Add("codigo1", std::move(upper));
  graph.parameters->Add("codigo2", std::move(lower));
}

/// One overload for each kind; the order of the checks decides what the message holds.
struct Builder {
  char letter;
  Engine& engine;

  BuiltGraph operator()(const FunctionFields& fields) const {
    BuiltGraph graph = newGraph('F');
    checkFormulaField(fields.formula, engine, graph.message);
    graph.ecuacion = fields.formula.text;
    return graph;
  }

  BuiltGraph operator()(const FamilyFields& fields) const {
    constexpr std::string_view kParameterName = "P";
    BuiltGraph graph = newGraph('Z');
    checkFormulaField(fields.formula, engine, graph.message);
    checkParameterUsed(fields.formula.text, kParameterName, graph.message);
    checkIncreasing(fields.inicio, fields.fin, graph.message);
    checkNonNegative({&fields.variacion, 1}, graph.message);
    graph.ecuacion = fields.formula.text;
    graph.parameters->Add("parametro", std::string(kParameterName));
    graph.parameters->Add("inicio", fields.inicio.text);
    graph.parameters->Add("fin", fields.fin.text);
    graph.parameters->Add("variacion", fields.variacion.text);
    return graph;
  }

  BuiltGraph operator()(const ParametricFields& fields) const {
    BuiltGraph graph = newGraph('T');
    checkFormulaField(fields.x, engine, graph.message);
    checkFormulaField(fields.y, engine, graph.message);
    checkIncreasing(fields.inicio, fields.fin, graph.message);
    checkNumeric(std::array{fields.inicio, fields.fin, fields.variacion}, graph.message);
    checkNonNegative({&fields.variacion, 1}, graph.message);
    graph.ecuacion = "[X(t)=" + fields.x.text + ";Y(t)=" + fields.y.text + "]";
    graph.parameters->Add("ecuacion_xt", fields.x.text);
    graph.parameters->Add("ecuacion_yt", fields.y.text);
    graph.parameters->Add("inicio", fields.inicio.text);
    graph.parameters->Add("fin", fields.fin.text);
    graph.parameters->Add("variacion", fields.variacion.text);
    return graph;
  }

  BuiltGraph operator()(const ParabolaFields& fields) const {
    BuiltGraph graph = newGraph('P');
    checkNonNegative({&fields.distance, 1}, graph.message);
    checkNumeric(std::array{fields.focus_x, fields.focus_y, fields.distance}, graph.message);
    if (!graph.message.empty()) return graph;
    const auto p = readNumber(fields.distance.text);
    const auto h = readNumber(fields.focus_x.text);
    const auto focus_y = readNumber(fields.focus_y.text);
    graph.arithmetic_failure = !p || !h || !focus_y || *p == 0;
    if (graph.arithmetic_failure) return graph;
    const double twice_p = *p + *p;
    const double a = 1 / twice_p;
    const double k = *focus_y - *p / 2;
    graph.arithmetic_failure = !std::isfinite(twice_p) || !std::isfinite(a) || !std::isfinite(k);
    if (graph.arithmetic_failure) return graph;
    graph.parameters->Add("h", writeNumber(*h).str());
    graph.parameters->Add("k", writeNumber(k).str());
    graph.parameters->Add("p", writeNumber(*p).str());
    graph.parameters->Add("a", writeNumber(a).str());
    graph.ecuacion = conicEquation(letter, {&fields.focus_x, &fields.focus_y, &fields.distance});
    graph.codigo = substituteParameters(kindInfo('P')->template1, *graph.parameters);
    return graph;
  }

  BuiltGraph operator()(const CircumferenceFields& fields) const {
    const auto& [centre_x, centre_y, radius] = fields;
    BuiltGraph graph = newGraph('C');
    checkNonNegative({&radius, 1}, graph.message);
    checkNumeric(std::array{centre_x, centre_y, radius}, graph.message);
    graph.ecuacion = conicEquation(letter, {&centre_x, &centre_y, &radius});
    graph.parameters->Add("h", centre_x.text);
    graph.parameters->Add("k", centre_y.text);
    graph.parameters->Add("r", radius.text);
    addBranches(graph);
    return graph;
  }

  BuiltGraph operator()(const EllipseFields& fields) const {
    const auto& [centre_x, centre_y, major, minor] = fields;
    BuiltGraph graph = newGraph('E');
    checkNonNegative(std::array{major, minor}, graph.message);
    checkNumeric(std::array{centre_x, centre_y, major, minor}, graph.message);
    checkIncreasing(minor, major, graph.message);
    graph.ecuacion = conicEquation(letter, {&centre_x, &centre_y, &major, &minor});
    graph.parameters->Add("h", centre_x.text);
    graph.parameters->Add("k", centre_y.text);
    graph.parameters->Add("a", major.text);
    graph.parameters->Add("b", minor.text);
    addBranches(graph);
    return graph;
  }

  BuiltGraph operator()(const HyperbolaFields& fields) const {
    const auto& [centre_x, centre_y, vertex, focus] = fields;
    BuiltGraph graph = newGraph('H');
    checkNonNegative(std::array{vertex, focus}, graph.message);
    checkNumeric(std::array{centre_x, centre_y, vertex, focus}, graph.message);
    checkIncreasing(vertex, focus, graph.message);
    graph.ecuacion = conicEquation(letter, {&centre_x, &centre_y, &vertex, &focus});
    graph.parameters->Add("h", centre_x.text);
    graph.parameters->Add("k", centre_y.text);
    graph.parameters->Add("a", vertex.text);
    graph.parameters->Add("c", focus.text);
    addBranches(graph);
    return graph;
  }
};

}  // namespace

void checkFormulaField(const Field& field, Engine& engine, std::string& message) {
  const std::string label = fieldLabel(field.label);
  if (field.text.empty())
    message += LocalizeWithArg("El campo %1 no puede estar vacío.", label) + "\r\n";
  checkParentheses(field.text, label, message);
  std::string refusal;
  if (!CheckFormula(engine, field.text, refusal)) message += refusal;
}

BuiltGraph buildGraph(char letter, const GraphFields& fields, Engine& engine) {
  return std::visit(Builder{letter, engine}, fields);
}

Accepted acceptGraph(GraphTable& graphs, Engine& engine, char letter, std::int32_t color,
                     const GraphFields& fields, std::string& message) {
  message.clear();
  if (graphs.count() >= GraphTable::kSlots) {
    message = Localize("No se puede definir mas gráficos.");
    return Accepted::refused_full;
  }
  BuiltGraph graph = buildGraph(letter, fields, engine);
  if (graph.arithmetic_failure) return Accepted::failed;
  if (!graph.message.empty()) {
    message = std::move(graph.message);
    return Accepted::refused;
  }
  const bool stored =
      graphs.rebuildGraph(letter, std::move(graph.ecuacion), std::move(graph.codigo), color,
                          graph.tipo, std::move(graph.parameters));
  return stored ? Accepted::stored : Accepted::failed;
}

}  // namespace zel
