#include "builders_fixture.h"

namespace zel::test {
namespace {

using ConicBuilders = GraphBuilders;

TEST_F(ConicBuilders, BuildAParabola) {
  const BuiltGraph graph = build(parabola("1.0", "2,50", "1"));
  EXPECT_EQ(graph.message, "");
  EXPECT_FALSE(graph.arithmetic_failure);
  EXPECT_EQ(graph.tipo, 'P');
  EXPECT_EQ(graph.ecuacion, "g(1.0;2,50;1)");
  EXPECT_EQ(pairsOf(graph), (Pairs{{"h", "1"}, {"k", "2"}, {"p", "1"}, {"a", "0,5"}}));
  EXPECT_EQ(graph.codigo, "(0,5)*x^2-2*(1)*(0,5)*x+(0,5)*(1)^2+(2)");
}

TEST_F(ConicBuilders, LetTheNumericCheckOfAParabolaReplaceThatOfTheDistance) {
  EXPECT_EQ(refusal(parabola("0", "0", "-1")),
            "Los valores de distancia deben ser números positivos en los siguientes campos:\r\n"
            "Distancia foco-directriz\r\n\r\n");
  EXPECT_EQ(refusal(parabola("", "0", "-1")),
            "Los siguientes campos deben contener valores numéricos:\r\nX\r\n");
}

TEST_F(ConicBuilders, FailAtAParabolaWithoutADistance) {
  for (const char* const distance : {"0", "0,0", "1e-310", "1e308"}) {
    const BuiltGraph graph = build(parabola("0", "0", distance));
    EXPECT_EQ(graph.message, "") << distance;
    EXPECT_TRUE(graph.arithmetic_failure) << distance;
  }
  EXPECT_TRUE(build(parabola("1e999", "0", "1")).arithmetic_failure);
  EXPECT_TRUE(build(parabola("0", "1e999", "1")).arithmetic_failure);
}

TEST_F(ConicBuilders, BuildACircumferenceFromTheTextsAsTyped) {
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

TEST_F(ConicBuilders, AcceptARadiusOfZero) { EXPECT_EQ(refusal(circumference("0", "0", "0")), ""); }

TEST_F(ConicBuilders, RefuseABadRadius) {
  EXPECT_EQ(refusal(circumference("0", "0", "-1")),
            "Los valores de distancia deben ser números positivos en los siguientes campos:\r\n"
            "Radio\r\n\r\n");
  EXPECT_EQ(refusal(circumference("0", "", "abc")),
            "Los siguientes campos deben contener valores numéricos:\r\nY\r\nRadio\r\n");
}

TEST_F(ConicBuilders, BuildAnEllipse) {
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

TEST_F(ConicBuilders, AskForAMinorAxisBelowTheMajorOne) {
  EXPECT_EQ(refusal(ellipse("0", "0", "3", "3")),
            "\r\nLos siguientes campos deben contener valores numéricos crecientes:\r\n"
            "Menor\r\nMayor");
}

TEST_F(ConicBuilders, CheckAnEllipseInOrder) {
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

TEST_F(ConicBuilders, BuildAHyperbola) {
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

TEST_F(ConicBuilders, AskForAVertexNearerThanTheFocus) {
  EXPECT_EQ(refusal(hyperbola("0", "0", "5", "5")),
            "\r\nLos siguientes campos deben contener valores numéricos crecientes:\r\n"
            "Vértice\r\nFoco");
}

}  // namespace
}  // namespace zel::test
