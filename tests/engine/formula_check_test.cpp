#include "engine/formula_check.h"

#include "engine/engine_fixture.h"

namespace zel::test {
namespace {

class FormulaCheck : public EngineTest {
 protected:
  /// "ok", or the message of the refusal.
  std::string check(std::string_view formula) {
    std::string message;
    return CheckFormula(engine, formula, message) ? "ok" : message;
  }
};

TEST_F(FormulaCheck, RefusesWhatCannotBeUnderstoodAndSyntaxErrors) {
  EXPECT_EQ(check("2*-x"), "Error: No se entiende el elemento: '2*'");
  EXPECT_EQ(check("2sen(30)"), "Error de sintaxis.");
  SetCurrentLanguage("EN");
  EXPECT_EQ(check("2*-x"), "Cannot understand expression: '2*'");
  EXPECT_EQ(check("2sen(30)"), "Syntax error.");
}

TEST_F(FormulaCheck, AcceptsAllElseUndefinedFormulasAndMissingOperatorsToo) {
  for (const std::string_view formula :
       {"x^2", "ln(x-1)", "x)", "(x", "", "1/(x-1)", "inv(x-1)", "t+p", "171!"})
    EXPECT_EQ(check(formula), "ok") << formula;
}

TEST_F(FormulaCheck, PassesOnWhatTheEvaluationOfAnAcceptedFormulaSaid) {
  std::string message;
  EXPECT_TRUE(CheckFormula(engine, "x)", message));
  EXPECT_EQ(message, "No se encuentra el operador.");
  EXPECT_TRUE(CheckFormula(engine, "x", message));
  EXPECT_EQ(message, "");
}

TEST_F(FormulaCheck, SetsTheThreeNamesToOne) {
  engine.SetT(5);
  engine.SetP(7);
  EXPECT_EQ(check("x"), "ok");
  EXPECT_EQ(engine.GetP(), 1);
  EXPECT_EQ(evaluate("t", 0), "= 1");
}

}  // namespace
}  // namespace zel::test
