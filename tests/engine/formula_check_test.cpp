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

TEST_F(FormulaCheck, AfterAFaultOfAnotherFormulaIsAsEver) {
  for (const bool is_valid : {false, true}) {
    if (is_valid) evaluate("inv(x-1)", 2);
    EXPECT_EQ(evaluate("inv(x-1)", 1), kFault);
    for (int time = 0; time < 2; ++time) {
      std::string message = "old";
      EXPECT_TRUE(CheckFormula(engine, "x+1", message));
      EXPECT_EQ(message, "");
    }
    EXPECT_EQ(evaluate("inv(x-1)", 1), kFault);
    EXPECT_EQ(check("2*-x"), "Error: No se entiende el elemento: '2*'");
  }
}

/// The record is read on where the fault stopped, and there is nothing: this is meant.
TEST_F(FormulaCheck, AfterAFaultInAValidRecordOfTheSameFormulaRefusesItOnce) {
  EXPECT_EQ(evaluate("inv(x-1)", 2), "= 1");
  EXPECT_EQ(evaluate("inv(x-1)", 1), kFault);
  EXPECT_EQ("! " + check("inv(x-1)"), kUserFunction);
  EXPECT_EQ(check("inv(x-1)"), "ok");
  SetCurrentLanguage("EN");
  EXPECT_EQ(evaluate("inv(x-1)", 2), "= 1");
  EXPECT_NE(evaluate("inv(x-1)", 1), "= 1");
  EXPECT_EQ(check("inv(x-1)"), "Cannot understand expression: \r\nUser function");
}

}  // namespace
}  // namespace zel::test
