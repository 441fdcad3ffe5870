#include "builders_fixture.h"

namespace zel::test {
namespace {

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

}  // namespace
}  // namespace zel::test
