#include "graphs/graph_builders.h"

#include <gtest/gtest.h>

#include "graphs/kinds.h"
#include "support/language_guard.h"

namespace zel::test {
namespace {

using Pairs = std::vector<std::pair<std::string, std::string>>;

class GraphBuilders : public ::testing::Test {
 protected:
  BuiltGraph build(const GraphFields& fields) { return buildGraph('g', fields, engine); }

  /// The message of a refusal.
  std::string refusal(const GraphFields& fields) { return build(fields).message; }

  Accepted accept(char letter, const GraphFields& fields) {
    return acceptGraph(graphs, engine, letter, 255, fields, message);
  }

  GraphTable graphs;
  Engine engine{[this](char letter) { return graphs.codeOf(letter); }};
  std::string message;

 private:
  LanguageGuard guard_{"ES"};
};

Pairs pairsOf(const BuiltGraph& graph) {
  Pairs pairs;
  for (const auto& [key, value] : *graph.parameters) pairs.emplace_back(key, value);
  return pairs;
}

FunctionFields function(const char* formula) { return {{formula, "Declaración de la función"}}; }

FamilyFields family(const char* formula, const char* inicio = "-2", const char* fin = "2",
                    const char* variacion = "1") {
  return {{formula, "Declaración"}, {inicio, "<="}, {fin, "<="}, {variacion, "Variación="}};
}

ParametricFields parametric(const char* x, const char* y, const char* inicio = "0",
                            const char* fin = "360", const char* variacion = "1") {
  return {{x, "X(t)="}, {y, "Y(t)="}, {inicio, "Rango"}, {fin, "Rango"}, {variacion, "Variación="}};
}

ParabolaFields parabola(const char* x, const char* y, const char* distance) {
  return {{x, "X="}, {y, "Y="}, {distance, "Distancia foco-directriz"}};
}

CircumferenceFields circumference(const char* x, const char* y, const char* radius) {
  return {{x, "X="}, {y, "Y="}, {radius, "Radio="}};
}

EllipseFields ellipse(const char* x, const char* y, const char* major, const char* minor) {
  return {{x, "X="}, {y, "Y="}, {major, "Mayor="}, {minor, "Menor="}};
}

HyperbolaFields hyperbola(const char* x, const char* y, const char* vertex, const char* focus) {
  return {{x, "X="}, {y, "Y="}, {vertex, "Vértice="}, {focus, "Foco="}};
}

TEST_F(GraphBuilders, BuildAFunctionFromItsFormula) {
  const BuiltGraph graph = build(function("Raiz2(x^2+1)"));
  EXPECT_EQ(graph.message, "");
  EXPECT_EQ(graph.tipo, 'F');
  EXPECT_EQ(graph.ecuacion, "Raiz2(x^2+1)");
  EXPECT_EQ(graph.codigo, "");
  EXPECT_EQ(pairsOf(graph), Pairs{});
}

TEST_F(GraphBuilders, AskForAFormula) {
  EXPECT_EQ(refusal(function("")), "El campo Declaración de la función no puede estar vacío.\r\n");
  SetCurrentLanguage("EN");
  EXPECT_EQ(refusal(FunctionFields{{"", "Function"}}), "Text field Function can't be empty.\r\n");
}

TEST_F(GraphBuilders, RefuseAFormulaThatCannotBeUnderstood) {
  EXPECT_EQ(refusal(function("2*-x")), "Error: No se entiende el elemento: '2*'");
  EXPECT_EQ(refusal(function("2sen(30)")), "Error de sintaxis.");
  SetCurrentLanguage("EN");
  EXPECT_EQ(refusal(function("2sen(30)")), "Syntax error.");
}

TEST_F(GraphBuilders, AcceptAFormulaThatIsMerelyUndefined) {
  EXPECT_EQ(refusal(function("ln(x-1)")), "");
  EXPECT_EQ(refusal(function("1/(x-1)")), "");
}

TEST_F(GraphBuilders, PutTheFormulasMessageBehindThatOfTheParentheses) {
  EXPECT_EQ(refusal(function("(x*-2")),
            "Error en paréntesis en el campo Declaración de la función.\r\n"
            "Error: No se entiende el elemento: '(x*'");
  EXPECT_EQ(refusal(function("(x+1))")),
            "Error en paréntesis en el campo Declaración de la función.\r\n");
}

TEST_F(GraphBuilders, BuildAFamily) {
  const BuiltGraph graph = build(family("p*x"));
  EXPECT_EQ(graph.message, "");
  EXPECT_EQ(graph.tipo, 'Z');
  EXPECT_EQ(graph.ecuacion, "p*x");
  EXPECT_EQ(pairsOf(graph),
            (Pairs{{"parametro", "P"}, {"inicio", "-2"}, {"fin", "2"}, {"variacion", "1"}}));
}

TEST_F(GraphBuilders, CheckAFamilyInOrder) {
  EXPECT_EQ(refusal(family("", "5", "5", "-1")),
            "El campo Declaración no puede estar vacío.\r\n"
            "\r\nDebe incluir el nombre del parámetro en la declaración de la función "
            "paramétrica.\r\n"
            "\r\nLos siguientes campos deben contener valores numéricos crecientes:\r\n"
            "Los valores de distancia deben ser números positivos en los siguientes campos:\r\n"
            "Variación\r\n\r\n");
}

TEST_F(GraphBuilders, BuildAParametricCurve) {
  const BuiltGraph graph = build(parametric("cos(t)", "sen(t)"));
  EXPECT_EQ(graph.message, "");
  EXPECT_EQ(graph.tipo, 'T');
  EXPECT_EQ(graph.ecuacion, "[X(t)=cos(t);Y(t)=sen(t)]");
  EXPECT_EQ(pairsOf(graph), (Pairs{{"ecuacion_xt", "cos(t)"},
                                   {"ecuacion_yt", "sen(t)"},
                                   {"inicio", "0"},
                                   {"fin", "360"},
                                   {"variacion", "1"}}));
}

TEST_F(GraphBuilders, CheckAParametricCurveInOrder) {
  EXPECT_EQ(refusal(parametric("", "2*-t", "5", "5", "-1")),
            "El campo X(t) no puede estar vacío.\r\n"
            "Error: No se entiende el elemento: '2*'"
            "\r\nLos siguientes campos deben contener valores numéricos crecientes:\r\nRango"
            "Los valores de distancia deben ser números positivos en los siguientes campos:\r\n"
            "Variación\r\n\r\n");
}

TEST_F(GraphBuilders, LetTheNumericCheckOfAParametricCurveReplaceWhatStoodBefore) {
  EXPECT_EQ(refusal(parametric("", "", "a", "b", "c")),
            "Los siguientes campos deben contener valores numéricos:\r\n"
            "Rango\r\nRango\r\nVariación\r\n"
            "Los valores de distancia deben ser números positivos en los siguientes campos:\r\n"
            "Variación\r\n\r\n");
}

TEST_F(GraphBuilders, BuildAParabola) {
  const BuiltGraph graph = build(parabola("1.0", "2,50", "1"));
  EXPECT_EQ(graph.message, "");
  EXPECT_FALSE(graph.arithmetic_failure);
  EXPECT_EQ(graph.tipo, 'P');
  EXPECT_EQ(graph.ecuacion, "g(1.0;2,50;1)");
  EXPECT_EQ(pairsOf(graph), (Pairs{{"h", "1"}, {"k", "2"}, {"p", "1"}, {"a", "0,5"}}));
  EXPECT_EQ(graph.codigo, "(0,5)*x^2-2*(1)*(0,5)*x+(0,5)*(1)^2+(2)");
}

TEST_F(GraphBuilders, LetTheNumericCheckOfAParabolaReplaceThatOfTheDistance) {
  EXPECT_EQ(refusal(parabola("0", "0", "-1")),
            "Los valores de distancia deben ser números positivos en los siguientes campos:\r\n"
            "Distancia foco-directriz\r\n\r\n");
  EXPECT_EQ(refusal(parabola("", "0", "-1")),
            "Los siguientes campos deben contener valores numéricos:\r\nX\r\n");
}

TEST_F(GraphBuilders, FailAtAParabolaWithoutADistance) {
  for (const char* const distance : {"0", "0,0", "1e-310", "1e308"}) {
    const BuiltGraph graph = build(parabola("0", "0", distance));
    EXPECT_EQ(graph.message, "") << distance;
    EXPECT_TRUE(graph.arithmetic_failure) << distance;
  }
  EXPECT_TRUE(build(parabola("1e999", "0", "1")).arithmetic_failure);
  EXPECT_TRUE(build(parabola("0", "1e999", "1")).arithmetic_failure);
}

TEST_F(GraphBuilders, BuildACircumferenceFromTheTextsAsTyped) {
  const BuiltGraph graph = build(circumference("0.50", "-1", "3,0"));
  EXPECT_EQ(graph.message, "");
  EXPECT_EQ(graph.tipo, 'C');
  EXPECT_EQ(graph.ecuacion, "g(0.50;-1;3,0)");
  EXPECT_EQ(pairsOf(graph), (Pairs{{"h", "0.50"},
                                   {"k", "-1"},
                                   {"r", "3,0"},
                                   {"codigo1", "7@((3,0)^2-((0.50)-x)^2)+(-1)"},
                                   {"codigo2", "-7@((3,0)^2-((0.50)-x)^2)+(-1)"}}));
}

TEST_F(GraphBuilders, AcceptARadiusOfZero) { EXPECT_EQ(refusal(circumference("0", "0", "0")), ""); }

TEST_F(GraphBuilders, RefuseABadRadius) {
  EXPECT_EQ(refusal(circumference("0", "0", "-1")),
            "Los valores de distancia deben ser números positivos en los siguientes campos:\r\n"
            "Radio\r\n\r\n");
  EXPECT_EQ(refusal(circumference("0", "", "abc")),
            "Los siguientes campos deben contener valores numéricos:\r\nY\r\nRadio\r\n");
}

TEST_F(GraphBuilders, BuildAnEllipse) {
  const BuiltGraph graph = build(ellipse("1", "2", "5", "3"));
  EXPECT_EQ(graph.message, "");
  EXPECT_EQ(graph.tipo, 'E');
  EXPECT_EQ(graph.ecuacion, "g(1;2;5;3)");
  EXPECT_EQ(pairsOf(graph), (Pairs{{"h", "1"},
                                   {"k", "2"},
                                   {"a", "5"},
                                   {"b", "3"},
                                   {"codigo1", "7@((1-(x-(1))^2/(5)^2)*(3)^2)+(2)"},
                                   {"codigo2", "-7@((1-(x-(1))^2/(5)^2)*(3)^2)+(2)"}}));
}

TEST_F(GraphBuilders, AskForAMinorAxisBelowTheMajorOne) {
  EXPECT_EQ(refusal(ellipse("0", "0", "3", "3")),
            "\r\nLos siguientes campos deben contener valores numéricos crecientes:\r\n"
            "Menor\r\nMayor");
}

TEST_F(GraphBuilders, CheckAnEllipseInOrder) {
  EXPECT_EQ(refusal(ellipse("0", "0", "-3", "-2")),
            "Los valores de distancia deben ser números positivos en los siguientes campos:\r\n"
            "Mayor\r\nMenor\r\n\r\n"
            "\r\nLos siguientes campos deben contener valores numéricos crecientes:\r\n"
            "Menor\r\nMayor");
  EXPECT_EQ(refusal(ellipse("", "0", "-3", "")),
            "Los siguientes campos deben contener valores numéricos:\r\nX\r\nMenor\r\n"
            "\r\nLos siguientes campos deben contener valores numéricos crecientes:\r\n"
            "Menor\r\nMayor");
}

TEST_F(GraphBuilders, BuildAHyperbola) {
  const BuiltGraph graph = build(hyperbola("1", "2", "3", "5"));
  EXPECT_EQ(graph.message, "");
  EXPECT_EQ(graph.tipo, 'H');
  EXPECT_EQ(graph.ecuacion, "g(1;2;3;5)");
  EXPECT_EQ(pairsOf(graph), (Pairs{{"h", "1"},
                                   {"k", "2"},
                                   {"a", "3"},
                                   {"c", "5"},
                                   {"codigo1", "7@(((x-(1))^2/(3)^2-1)*((5)^2-(3)^2))+(2)"},
                                   {"codigo2", "-7@(((x-(1))^2/(3)^2-1)*((5)^2-(3)^2))+(2)"}}));
}

TEST_F(GraphBuilders, AskForAVertexNearerThanTheFocus) {
  EXPECT_EQ(refusal(hyperbola("0", "0", "5", "5")),
            "\r\nLos siguientes campos deben contener valores numéricos crecientes:\r\n"
            "Vértice\r\nFoco");
}

TEST_F(GraphBuilders, MakeCodesThatTheEngineUnderstands) {
  const std::array<std::pair<GraphFields, double>, 4> conics = {
      {{circumference("0", "1", "5"), 5},
       {ellipse("0", "0", "6", "2"), 2 * 0.866025403784439},
       {hyperbola("0", "0", "1", "2"), 4.89897948556636},
       {parabola("0", "0,5", "0,5"), 9.25}}};
  for (const auto& [fields, y_at_3] : conics) {
    ASSERT_EQ(accept('g', fields), Accepted::stored);
    double y = 0;
    EXPECT_TRUE(engine.Evaluate(3, y, graphs.codeOf('g'), message)) << message;
    EXPECT_NEAR(y, y_at_3, 1e-13);
  }
}

TEST_F(GraphBuilders, StoreWhatWasAccepted) {
  EXPECT_EQ(accept('f', function("Sen(x)")), Accepted::stored);
  EXPECT_EQ(message, "");
  const auto def = graphs.graph('f');
  EXPECT_TRUE(def->defined);
  EXPECT_EQ(def->tipo, 'F');
  EXPECT_EQ(def->color, 255);
  EXPECT_EQ(def->ecuacion, "Sen(x)");
  EXPECT_EQ(def->codigo, "10@(x)");
  EXPECT_EQ(accept('t', parametric("cos(t)", "sen(t)")), Accepted::stored);
  EXPECT_EQ(parameter(*graphs.graph('t'), "codigo_xt"), "11@(t)");
  EXPECT_EQ(accept('c', circumference("0", "0", "3")), Accepted::stored);
  EXPECT_EQ(graphs.codeOf('c'), "7@((3)^2-((0)-x)^2)+(0)");
  EXPECT_EQ(graphs.count(), 3);
}

TEST_F(GraphBuilders, ReplaceAGraphOfTheSameLetter) {
  accept('f', function("x"));
  EXPECT_EQ(accept('f', circumference("0", "0", "3")), Accepted::stored);
  EXPECT_EQ(graphs.count(), 1);
  EXPECT_EQ(graphs.graph('f')->tipo, 'C');
}

TEST_F(GraphBuilders, ChangeNothingWhenTheyRefuse) {
  accept('f', function("x"));
  EXPECT_EQ(accept('f', function("2*-x")), Accepted::refused);
  EXPECT_EQ(message, "Error: No se entiende el elemento: '2*'");
  EXPECT_EQ(graphs.graph('f')->ecuacion, "x");
}

TEST_F(GraphBuilders, EndTheAcceptOfAParabolaWithoutADistanceSilently) {
  message = "before";
  EXPECT_EQ(accept('f', parabola("0", "0", "0")), Accepted::failed);
  EXPECT_EQ(message, "");
  EXPECT_EQ(graphs.count(), 0);
}

TEST_F(GraphBuilders, EndTheAcceptUnderALetterOutsideTheTableSilently) {
  EXPECT_EQ(accept('A', function("x")), Accepted::failed);
  EXPECT_EQ(message, "");
}

TEST_F(GraphBuilders, RefuseEvenAChangeWhenTheTableIsFull) {
  for (char letter = 'a'; letter <= 'z'; ++letter)
    ASSERT_EQ(accept(letter, function("x")), Accepted::stored) << letter;
  EXPECT_EQ(accept('a', function("")), Accepted::refused_full);
  EXPECT_EQ(message, "No se puede definir mas gráficos.");
  SetCurrentLanguage("EN");
  EXPECT_EQ(accept('a', function("x^2")), Accepted::refused_full);
  EXPECT_EQ(message, "Cannot create more graphics.");
  EXPECT_EQ(graphs.graph('a')->ecuacion, "x");
}

}  // namespace
}  // namespace zel::test
