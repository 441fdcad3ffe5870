#include "engine/formula_names.h"

#include <gtest/gtest.h>

namespace zel::test {
namespace {

/// Graphs "f" and "x" have a code.
std::string_view codes(char letter) { return letter == 'f' || letter == 'x' ? "x^2" : ""; }

std::string unknown(const char* formula) {
  const auto found = findUnknownName(formula, codes);
  return found ? found->name + (found->is_call ? " (call)" : "") : "none";
}

TEST(UnknownNames, AreNoValuesFunctionsAndCallsOfGraphsWithACode) {
  for (const char* const formula :
       {"", "1", "x+t*p-e", "X^2", "sen x", "SEN ( 90 )", "senx", "lngamma(x)", "raiz2(x)+trpl x!",
        "sig x!", "f(3)", "2*sen(f(x+1))", "senf(x)", "x(2)", "2e3", "2x", "x)", "x$2"})
    EXPECT_EQ(unknown(formula), "none") << formula;
}

TEST(UnknownNames, AreToldAsTheyWereTyped) {
  EXPECT_EQ(unknown("y+1"), "y");
  EXPECT_EQ(unknown("2*Pi*x"), "pi");
  EXPECT_EQ(unknown("foo(x)"), "foo");
  EXPECT_EQ(unknown("x+sinh(x)"), "sinh");
  EXPECT_EQ(unknown("arcsin(x)"), "arcsin");
  EXPECT_EQ(unknown("cosec(x)"), "cosec");
  EXPECT_EQ(unknown("π*x"), "π");
  EXPECT_EQ(unknown("x²"), "x²");
  EXPECT_EQ(unknown("f"), "f") << "a graph without an argument";
}

TEST(UnknownNames, CanBeCallsOfGraphsThatHaveNoCode) {
  EXPECT_EQ(unknown("g(x)+1"), "g (call)");
  EXPECT_EQ(unknown("sen(g(x))"), "g (call)");
  EXPECT_TRUE(findUnknownName("f(x)", {}).has_value()) << "without graphs";
}

TEST(UnknownNames, AreFoundOneAfterTheOther) {
  EXPECT_EQ(unknown("x+sen(y)*z"), "y");
  EXPECT_EQ(unknown("99999999999999999999@y"), "y") << "no code of a function";
}

}  // namespace
}  // namespace zel::test
