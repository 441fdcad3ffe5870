#include <cmath>

#include "engine/engine.h"
#include "engine/engine_fixture.h"

namespace zel::test {
namespace {

class Evaluation : public EngineTest {};

TEST_F(Evaluation, FollowsTheSplitRule) {
  struct Row {
    std::string_view formula, outcome;
    double x = 1;
  };
  const Row rows[] = {
      {"8/2*2", "= 2"},
      {"8*2/4", "= 4"},
      {"8/2/2", "= 2"},
      {"2^3^2", "= 64"},
      {"-x^2", "= -9", 3},
      {"10-3+2", "= 9"},
      {"10+3-2", "= 11"},
      {"10-3-2", "= 5"},
      {"7\\2", "= 3"},
      {"((x))", "= 4", 4},
      {"(x)+(1)", "= 5", 4},
      {"-x", "= -4", 4},
      {"+x", "= 4", 4},
      {"2*(-x)", "= -8", 4},
      {"sig x!", "= 1", 3},
      {"x!^2", "= 36", 3},
      {"2^x!", "= 64", 3},
      {"log x^2", "= 2", 10},
      {"x-2*10^(0-3)", "= 0,998"},
  };
  for (const Row& row : rows) EXPECT_EQ(evaluate(row.formula, row.x), row.outcome) << row.formula;
}

TEST_F(Evaluation, ReadsANumberThatIsTheWholeCodeWithEitherSeparator) {
  for (const std::string_view formula : {"2.5", "2,5", "+2.5", "25E-1", "0,25e1", "2.5e0"})
    EXPECT_EQ(evaluate(formula), "= 2,5") << formula;
  EXPECT_EQ(evaluate("-2.5"), "= -2,5");
  EXPECT_EQ(evaluate(".5"), "= 0,5");
  EXPECT_EQ(evaluate("5."), "= 5");
}

TEST_F(Evaluation, TakesASignInsideAnExponentForAnOperatorUnlessTheNumberIsALeaf) {
  EXPECT_EQ(evaluate("x+2e-3"), "= 1,002");
  EXPECT_EQ(evaluate("x-2e-3"), kNoOperator);
  EXPECT_EQ(evaluate("x+2e3"), "= 2001");
  EXPECT_EQ(evaluate("x-2*10^-3"), "! Error: No se entiende el elemento: '10^'");
}

TEST_F(Evaluation, KeepsFifteenDigitsBetweenOperations) {
  EXPECT_EQ(evaluate("1/3*3"), "= 0,111111111111111");
  EXPECT_EQ(evaluate("(1/3)*3"), "= 0,999999999999999");
  EXPECT_EQ(evaluate("x", 1.0 / 3), "= 0,333333333333333");
  EXPECT_EQ(evaluate("e"), "= 2,71828182845905");
  EXPECT_EQ(evaluate("0-0*x"), "= 0");
}

TEST_F(Evaluation, KnowsTheValuesOfTheNames) {
  EXPECT_EQ(evaluate("t"), "= 0");
  EXPECT_EQ(evaluate("t+1"), "= 1");
  EXPECT_EQ(evaluate("p"), "= 0");
  engine.SetT(2.5);
  engine.SetP(-3);
  EXPECT_EQ(evaluate("x*100+t*10+p", 4), "= 422");
  EXPECT_EQ(engine.GetP(), -3);
  engine.InitEngine();
  EXPECT_EQ(engine.GetP(), 0);
}

TEST_F(Evaluation, CannotReadANameWhoseTextIsTooLarge) {
  EXPECT_EQ(evaluate("1/t+x"), "! Error: Operador /: El denominador debe ser distinto de cero.");
  EXPECT_EQ(evaluate("t+x"), "= 1");
  engine.SetT(1.7976931348623157e308);
  EXPECT_EQ(evaluate("t*0+x"), kFault);
  evaluate("x");
  evaluate("ln(0)");  // starts from the first slot again
  EXPECT_EQ(evaluate("x+1"), "= 2");
  EXPECT_EQ(evaluate("t"), kFault);
  EXPECT_EQ(evaluate("x*0", 1.7976931348623157e308), kFault);
}

TEST_F(Evaluation, ReportsWhatTheGrammarRejects) {
  struct Row {
    std::string_view formula, outcome;
  };
  const Row rows[] = {
      {"2*-x", "! Error: No se entiende el elemento: '2*'"},
      {"*x", "! Error: No se entiende el elemento: '*x'"},
      {"x+", "! Error: No se entiende el elemento: 'x+'"},
      {"--", "! Error: No se entiende el elemento: '--'"},
      {"x)", kNoOperator},
      {"(x", kNoOperator},
      {"", kNoOperator},
      {"()", kNoOperator},
      {"(5)", kNoOperator},
      {"hola", kNoOperator},
      {"2x", kNoOperator},
      {"2sen(30)", kSyntaxError},
      {"x#1", kSyntaxError},
      {"x#0,4", kSyntaxError},
      {"18@x", kSyntaxError},
      {"(0-1)@x", kSyntaxError},
  };
  for (const Row& row : rows) EXPECT_EQ(evaluate(row.formula), row.outcome) << row.formula;
}

TEST_F(Evaluation, AnswersInTheCurrentLanguage) {
  SetCurrentLanguage("EN");
  EXPECT_EQ(evaluate("2*-x"), "! Cannot understand expression: '2*'");
  EXPECT_EQ(evaluate("x)"), "! Cannot find operator.");
  EXPECT_EQ(evaluate("2sen(30)"), "! Syntax error.");
  EXPECT_EQ(evaluate("1/0"), "! Error: Operador /: denominator cannot be zero.");
  EXPECT_EQ(evaluate("ln(0)"),
            "! Error in function 'ln'\r\nDetail: Logarithmand must be numeric and greater than "
            "zero.");
  EXPECT_EQ(evaluate("raiz2(-1)"),
            "! Error in function 'raiz2'\r\nDetail: Value must be numeric and greater than zero.");
  EXPECT_EQ(evaluate("(0-1)!"),
            "! Error in function '!'\r\nDetail: Value must be positive and numeric.");
  EXPECT_EQ(evaluate("171!"), "! Error in function '!'\r\nDetail: Too big result.");
  EXPECT_EQ(evaluate("lngamma(0)"), "! LnGamma function cannot be evaluated for a value.");
  EXPECT_EQ(evaluate("inv(0)"), "! Too big values");
}

TEST_F(Evaluation, KeepsOnlyTheFirstErrorOfTheLeftOperandFirst) {
  EXPECT_EQ(evaluate("ln(0)+1/0"),
            "! Error en Función 'ln'\r\nDetalle: El logaritmando debe ser numérico y mayor que "
            "cero.");
  EXPECT_EQ(evaluate("1/0+ln(0)"),
            "! Error: Operador /: El denominador debe ser distinto de cero.");
}

TEST_F(Evaluation, LeavesTheResultAloneWhenItFails) {
  double result = 7;
  std::string message;
  EXPECT_FALSE(engine.Evaluate(0, result, "1/x", message));
  EXPECT_EQ(result, 7);
}

TEST_F(Evaluation, TellsACodeFromTheLastOneByAnyCharacter) {
  std::string code = "x";
  for (std::size_t terms = 1; terms <= 41; ++terms, code += "+x") {
    for (std::size_t i = 0; i < code.size(); i += 2) {
      std::string other = code;
      other[i] = '1';
      ASSERT_EQ(evaluateCode(code, 3), "= " + std::to_string(3 * terms)) << code;
      ASSERT_EQ(evaluateCode(other, 3), "= " + std::to_string(3 * terms - 2)) << other;
    }
  }
}

TEST_F(Evaluation, RefusesAnXThatIsNoFiniteNumber) {
  EXPECT_EQ(evaluate("x", HUGE_VAL), kFault);
  EXPECT_EQ(evaluate("x", std::nan("")), kFault);
}

TEST_F(Evaluation, GoesOnAfterACodeThatIsTooLong) {
  const std::string too_long(Engine::kMaxExpandedCode + 1, 'x');
  for (const auto& [code, outcome] :
       {std::pair{"x+1", "= 2"}, {"", "! No se encuentra el operador."}}) {
    EXPECT_EQ(evaluateCode(too_long, 1), kFault);
    EXPECT_EQ(evaluateCode(too_long, 1), kFault);
    EXPECT_EQ(evaluateCode(code, 1), outcome);
  }
}

}  // namespace
}  // namespace zel::test
