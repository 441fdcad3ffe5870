#include "graphs/field_validation.h"

#include <array>

#include <gtest/gtest.h>

#include "support/language_guard.h"

namespace zel::test {
namespace {

class FieldValidation : public ::testing::Test {
 protected:
  std::string message;

 private:
  LanguageGuard guard_{"ES"};
};

TEST_F(FieldValidation, TakesTheSignsAndBlanksOffALabel) {
  EXPECT_EQ(fieldLabel("Radio="), "Radio");
  EXPECT_EQ(fieldLabel("  Unidades por X = "), "Unidades por X");
  EXPECT_EQ(fieldLabel("x mínimo"), "x mínimo");
  EXPECT_EQ(fieldLabel("<= t <="), "t");
  EXPECT_EQ(fieldLabel("<="), "");
  EXPECT_EQ(fieldLabel("a=b<c>d"), "abcd");
  EXPECT_EQ(fieldLabel(""), "");
}

TEST_F(FieldValidation, PassesNumericFieldsAndLeavesTheMessage) {
  message = "before";
  EXPECT_TRUE(checkNumeric(std::array{Field{"1,5", "h="}, Field{"-2e3", "k="}}, message));
  EXPECT_TRUE(checkNumeric({}, message));
  EXPECT_EQ(message, "before");
}

TEST_F(FieldValidation, ListsTheFieldsThatAreNotNumericInTheirOrder) {
  const std::array fields = {Field{"abc", "Mayor="}, Field{"1", "Menor="}, Field{"", "X="}};
  EXPECT_FALSE(checkNumeric(fields, message));
  EXPECT_EQ(message, "Los siguientes campos deben contener valores numéricos:\r\nMayor\r\nX\r\n");
}

TEST_F(FieldValidation, ReplacesTheMessageWhenAFieldIsNotNumeric) {
  message = "before";
  EXPECT_FALSE(checkNumeric(std::array{Field{"", "X="}}, message));
  EXPECT_EQ(message, "Los siguientes campos deben contener valores numéricos:\r\nX\r\n");
}

TEST_F(FieldValidation, AsksForNumbersInEnglish) {
  SetCurrentLanguage("EN");
  EXPECT_FALSE(checkNumeric(std::array{Field{"abc", "Major="}}, message));
  EXPECT_EQ(message, "Next fields must contains numeric values:\r\nMajor\r\n");
}

TEST_F(FieldValidation, AcceptsADistanceOfZero) {
  EXPECT_TRUE(checkNonNegative(std::array{Field{"0", "Radio="}, Field{"-0", "Radio="}}, message));
  EXPECT_TRUE(checkNonNegative(std::array{Field{"3,5", "Radio="}}, message));
  EXPECT_EQ(message, "");
}

TEST_F(FieldValidation, ListsDistancesBelowZeroAndThoseThatAreNotNumeric) {
  message = "before";
  const std::array fields = {Field{"-1", "Mayor="}, Field{"2", "Menor="}, Field{"abc", "Radio="},
                             Field{"", "Foco="}};
  EXPECT_FALSE(checkNonNegative(fields, message));
  EXPECT_EQ(message,
            "beforeLos valores de distancia deben ser números positivos en los siguientes "
            "campos:\r\nMayor\r\nRadio\r\nFoco\r\n\r\n");
}

TEST_F(FieldValidation, RefusesADistanceThatNoDoubleHolds) {
  EXPECT_FALSE(checkNonNegative(std::array{Field{"1e999", "Radio="}}, message));
  EXPECT_FALSE(checkNonNegative(std::array{Field{"-1e999", "Radio="}}, message));
}

TEST_F(FieldValidation, AsksForDistancesInEnglish) {
  SetCurrentLanguage("EN");
  EXPECT_FALSE(checkNonNegative(std::array{Field{"-1", "Radio="}}, message));
  EXPECT_EQ(message, "Size must be numeric value greater than zero in fields:\r\nRadio\r\n\r\n");
}

TEST_F(FieldValidation, AcceptsIncreasingValues) {
  EXPECT_TRUE(checkIncreasing({"-10", "x mínimo"}, {"10", "X MÁXIMO"}, message));
  EXPECT_TRUE(checkIncreasing({"9", ""}, {"10", ""}, message));
  EXPECT_TRUE(checkIncreasing({"1.5", ""}, {"1,6", ""}, message));
  EXPECT_EQ(message, "");
}

TEST_F(FieldValidation, RefusesEqualFallingAndMissingValues) {
  const std::array<std::pair<const char*, const char*>, 6> refused = {
      {{"5", "5"}, {"5", "4"}, {"", "5"}, {"5", ""}, {"a", "5"}, {"0", "1e999"}}};
  for (const auto& [low, high] : refused)
    EXPECT_FALSE(checkIncreasing({low, ""}, {high, ""}, message)) << low << " " << high;
}

TEST_F(FieldValidation, ListsBothLabelsOfARangeWhenTheyDiffer) {
  message = "before";
  EXPECT_FALSE(checkIncreasing({"5", "x mínimo"}, {"5", "X MÁXIMO"}, message));
  EXPECT_EQ(message,
            "before\r\nLos siguientes campos deben contener valores numéricos "
            "crecientes:\r\nx mínimo\r\nX MÁXIMO");
}

TEST_F(FieldValidation, ListsTheLabelOfARangeOnceWhenItIsShared) {
  EXPECT_FALSE(checkIncreasing({"5", "<= t <="}, {"5", " t="}, message));
  EXPECT_EQ(message, "\r\nLos siguientes campos deben contener valores numéricos crecientes:\r\nt");
}

TEST_F(FieldValidation, AsksForIncreasingValuesInEnglish) {
  SetCurrentLanguage("EN");
  EXPECT_FALSE(checkIncreasing({"5", "x"}, {"5", "x"}, message));
  EXPECT_EQ(message, "\r\nNext fields must contains increasing numeric values:\r\nx");
}

TEST_F(FieldValidation, FindsAParameterWhateverItsCase) {
  EXPECT_TRUE(checkParameterUsed("M*x", "m", message));
  EXPECT_TRUE(checkParameterUsed("exp(x)", "P", message));
  EXPECT_EQ(message, "");
}

TEST_F(FieldValidation, AsksForTheParameterOfAFamily) {
  message = "before";
  EXPECT_FALSE(checkParameterUsed("2*x", "P", message));
  EXPECT_EQ(message,
            "before\r\nDebe incluir el nombre del parámetro en la declaración de la función "
            "paramétrica.\r\n");
  SetCurrentLanguage("EN");
  message.clear();
  EXPECT_FALSE(checkParameterUsed("2*x", "P", message));
  EXPECT_EQ(message, "\r\nCannot find parameter name in parametric definition.\r\n");
}

TEST_F(FieldValidation, AcceptsBalancedParentheses) {
  for (const char* const formula : {"", "x", "(x)", "((x+1)*2)", "(x)+(1)", "sen(x)"})
    EXPECT_TRUE(checkParentheses(formula, "", message)) << formula;
  EXPECT_EQ(message, "");
}

TEST_F(FieldValidation, RefusesParenthesesThatDoNotMatchAndEmptyPairs) {
  for (const char* const formula :
       {"(x+1))", "(x", "x)", ")x(", "x)(", "()", "sen()", "()x", "x+((1)", "a)+(b", "()(x)"})
    EXPECT_FALSE(checkParentheses(formula, "", message)) << formula;
}

TEST_F(FieldValidation, FindsTheParenthesisThatDoesNotFit) {
  using Kind = ParenthesisFault::Kind;
  struct Row {
    const char* formula;
    Kind kind;
    std::size_t place;
  };
  for (const Row& row :
       {Row{"(x+1))", Kind::closes_nothing, 5}, Row{")x(", Kind::closes_nothing, 0},
        Row{"(x)*(2+x", Kind::stays_open, 4}, Row{"((x", Kind::stays_open, 1},
        Row{"sen()+(x", Kind::holds_nothing, 3}, Row{"x)+()", Kind::closes_nothing, 1}}) {
    const auto fault = findParenthesisFault(row.formula);
    ASSERT_TRUE(fault) << row.formula;
    EXPECT_EQ(fault->kind, row.kind) << row.formula;
    EXPECT_EQ(fault->place, row.place) << row.formula;
  }
  EXPECT_FALSE(findParenthesisFault("((x+1)*2)"));
}

TEST_F(FieldValidation, NamesTheFieldWithTheParentheses) {
  message = "before";
  EXPECT_FALSE(checkParentheses("(x+1))", "Función", message));
  EXPECT_EQ(message, "beforeError en paréntesis en el campo Función.\r\n");
  SetCurrentLanguage("EN");
  message.clear();
  EXPECT_FALSE(checkParentheses("(x+1))", "Function", message));
  EXPECT_EQ(message, "Parenthesis error in field Function.\r\n");
}

}  // namespace
}  // namespace zel::test
