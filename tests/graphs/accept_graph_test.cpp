#include <array>

#include "builders_fixture.h"

namespace zel::test {
namespace {

using AcceptGraph = GraphBuilders;

TEST_F(AcceptGraph, MakesCodesThatTheEngineUnderstands) {
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

TEST_F(AcceptGraph, StoresTheGraph) {
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

TEST_F(AcceptGraph, ReplacesAGraphOfTheSameLetter) {
  accept('f', function("x"));
  EXPECT_EQ(accept('f', circumference("0", "0", "3")), Accepted::stored);
  EXPECT_EQ(graphs.count(), 1);
  EXPECT_EQ(graphs.graph('f')->tipo, 'C');
}

TEST_F(AcceptGraph, ChangesNothingWhenItRefuses) {
  accept('f', function("x"));
  EXPECT_EQ(accept('f', function("2*-x")), Accepted::refused);
  EXPECT_EQ(message, "Error: No se entiende el elemento: '2*'");
  EXPECT_EQ(graphs.graph('f')->ecuacion, "x");
}

TEST_F(AcceptGraph, EndsSilentlyAtAParabolaWithoutADistance) {
  message = "before";
  EXPECT_EQ(accept('f', parabola("0", "0", "0")), Accepted::failed);
  EXPECT_EQ(message, "");
  EXPECT_EQ(graphs.count(), 0);
}

TEST_F(AcceptGraph, EndsSilentlyAtALetterOutsideTheTable) {
  EXPECT_EQ(accept('A', function("x")), Accepted::failed);
  EXPECT_EQ(message, "");
}

TEST_F(AcceptGraph, RefusesEvenAChangeWhenTheTableIsFull) {
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
