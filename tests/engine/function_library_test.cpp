#include "engine/function_library.h"

#include <cmath>

#include "engine/engine_fixture.h"

namespace zel::test {
namespace {

class Functions : public EngineTest {
 protected:
  static std::string functionError(std::string_view name, std::string_view detail) {
    return "! Error en Función '" + std::string(name) + "'\r\nDetalle: " + std::string(detail);
  }
};

constexpr std::string_view kLogarithm = "El logaritmando debe ser numérico y mayor que cero.";
constexpr std::string_view kRoot = "El valor debe ser numérico y mayor o igual que cero.";
constexpr std::string_view kPositive = "El valor debe ser numérico y positivo.";
constexpr std::string_view kTooLarge = "El resultado es demasiado grande.";
constexpr std::string_view kNoLnGamma = "! La función LnGamma no existe para el valor solicitado.";

TEST_F(Functions, HaveTheirValues) {
  struct Row {
    std::string_view formula, outcome;
  };
  const Row rows[] = {
      {"abs(0-2,5)", "= 2,5"},
      {"sig(0-2)", "= -1"},
      {"sig(0)", "= 0"},
      {"sgn(7)", "= 1"},
      {"ln(e)", "= 1"},
      {"log(1000)", "= 3"},
      {"exp(0)", "= 1"},
      {"exp(1)", "= 2,71828182845905"},
      {"raiz2(2)", "= 1,4142135623731"},
      {"sqrt(9)", "= 3"},
      {"raiz2(0)", "= 0"},
      {"raiz3(27)", "= 3"},
      {"trpl(8)", "= 2"},
      {"inv(4)", "= 0,25"},
      {"sen(90)", "= 1"},
      {"sin(30)", "= 0,5"},
      {"cos(90)", "= 1,61554457443259E-15"},
      {"cos(0)", "= 1"},
      {"tan(45)", "= 0,999999999999998"},
      {"atn(1)", "= 0,0174515206514658"},
      {"0^0", "= 1"},
      {"3!", "= 6"},
      {"0!", "= 1"},
      {"1!", "= 1"},
      {"20!", "= 2,43290200817664E+18"},
      {"170!", "= 7,257415615308E+306"},
      {"0,5!", "= 0,886226925452753"},
      {"gamma(5)", "= 24,0000000000001"},
      {"lngamma(0-1,5)", "= 0,860047015247047"},
  };
  for (const Row& row : rows) EXPECT_EQ(evaluate(row.formula), row.outcome) << row.formula;
}

TEST_F(Functions, RefuseArgumentsByNameWithADetail) {
  EXPECT_EQ(evaluate("ln(0)"), functionError("ln", kLogarithm));
  EXPECT_EQ(evaluate("log(0-1)"), functionError("log", kLogarithm));
  EXPECT_EQ(evaluate("raiz2(0-1)"), functionError("raiz2", kRoot));
  EXPECT_EQ(evaluate("raiz3(-8)"), functionError("raiz3", kRoot));
  EXPECT_EQ(evaluate("sqrt(0-1)"), functionError("sqrt", kRoot));
  EXPECT_EQ(evaluate("trpl(0-8)"), functionError("trpl", kRoot));
}

TEST_F(Functions, RefuseAFactorialBelowZeroAndAboveOneHundredAndSeventy) {
  EXPECT_EQ(evaluate("x!", 171), functionError("!", kTooLarge));
  EXPECT_EQ(evaluate("x!", 170.5), functionError("!", kTooLarge));
  EXPECT_EQ(evaluate("x!", 170), "= 7,257415615308E+306");
  EXPECT_EQ(evaluate("x!", -1), functionError("!", kPositive));
  EXPECT_EQ(evaluate("x!", -0.5), functionError("!", kPositive));
}

TEST_F(Functions, RoundTheFunctionCodeOfAPrefixFunctionHalfToEven) {
  EXPECT_EQ(evaluateCode("2,5@(0-4)"), "= 4");
  EXPECT_EQ(evaluateCode("17,4@8"), "= 2");
  EXPECT_EQ(evaluateCode("17,5@8"), kSyntaxError);
  EXPECT_EQ(evaluateCode("3000000000@8"), kFault);
}

TEST_F(Functions, TakeThePostfixCodeExactly) {
  EXPECT_EQ(evaluateCode("3#0"), "= 6");
  EXPECT_EQ(evaluateCode("3#0,4"), kSyntaxError);
  EXPECT_EQ(evaluateCode("3#1"), kSyntaxError);
}

TEST_F(Functions, FaultOnOverflowAndInvalidOperations) {
  for (const std::string_view formula :
       {"inv(0)", "exp(710)", "10^309", "2*10^308*10", "(0-8)^(1/3)", "0^(0-1)", "1e999+1", "1e999",
        "atn(10^308)", "sen(10^308)", "gamma(400)", "10^308*10^308"})
    EXPECT_EQ(evaluate(formula), kFault) << formula;
}

TEST_F(Functions, UnderflowToZeroWithoutAFault) {
  EXPECT_EQ(evaluate("10^(0-400)"), "= 0");
  EXPECT_EQ(evaluate("exp(0-1000)"), "= 0");
  EXPECT_EQ(evaluate("1e-999"), "= 0");
}

TEST_F(Functions, RefuseADivisorOfZeroBeforeAnythingElse) {
  EXPECT_EQ(evaluate("1/0"), "! Error: Operador /: El denominador debe ser distinto de cero.");
  EXPECT_EQ(evaluate("0/0"), "! Error: Operador /: El denominador debe ser distinto de cero.");
  EXPECT_EQ(evaluate("7\\0"), "! Error: Operador \\: El denominador debe ser distinto de cero.");
}

TEST_F(Functions, DivideRoundedIntegersTowardZero) {
  EXPECT_EQ(evaluate("7\\2"), "= 3");
  EXPECT_EQ(evaluate("x\\2", -7), "= -3");
  EXPECT_EQ(evaluate("2,5\\1"), "= 2");
  EXPECT_EQ(evaluate("3,5\\1"), "= 4");
  EXPECT_EQ(evaluate("7\\1,5"), "= 3");
}

TEST_F(Functions, FaultWhereAnIntegerDivisionHasNoInteger) {
  EXPECT_EQ(evaluate("7\\0,4"), kFault);
  EXPECT_EQ(evaluate("7\\0,5"), kFault);
  EXPECT_EQ(evaluate("2147483648\\1"), kFault);
  EXPECT_EQ(evaluate("2147483647\\1"), "= 2147483647");
  EXPECT_EQ(evaluate("x\\(0-1)", -2147483648.0), kFault);
}

TEST_F(Functions, HaveNoLogarithmOfGammaWhereTheSeriesFaults) {
  for (const std::string_view formula :
       {"lngamma(0)", "lngamma(0-1)", "lngamma(0-6)", "lngamma(0-0,5)", "lngamma(0-5,5)",
        "lngamma(0-9)", "gamma(0)", "lngamma(10^308)"})
    EXPECT_EQ(evaluate(formula), kNoLnGamma) << formula;
}

TEST_F(Functions, ModuloRoundsDown) {
  EXPECT_EQ(FlooredModulo(7, 3), 1);
  EXPECT_EQ(FlooredModulo(-7, 3), 2);
  EXPECT_EQ(FlooredModulo(7, -3), -2);
  EXPECT_NEAR(FlooredModulo(2.3, 1), 0.3, 1e-15);
}

}  // namespace
}  // namespace zel::test
