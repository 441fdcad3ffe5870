#include "engine/compiler.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace zel {
namespace {

TEST(Compiler, PutsCodesInThePlaceOfNames) {
  struct Row {
    std::string_view formula, code;
  };
  const Row rows[] = {
      {"sen(90)", "10@(90)"},
      {"Sig X!", "3@x#0"},
      {"log(x*10-0,2)+sen(90)+sig x!", "5@(x*10-0,2)+10@(90)+3@x#0"},
      {"raiz2(x^2+1)", "7@(x^2+1)"},
      {"2*exp(-x)", "2*6@(-x)"},
      {"lngamma(5)", "0@(5)"},
      {"gamma(5)", "1@(5)"},
      {"abs(x)", "2@(x)"},
      {"sig(x)", "3@(x)"},
      {"ln(x)", "4@(x)"},
      {"log(x)", "5@(x)"},
      {"exp(x)", "6@(x)"},
      {"raiz2(x)", "7@(x)"},
      {"raiz3(x)", "8@(x)"},
      {"inv(x)", "9@(x)"},
      {"sen(x)", "10@(x)"},
      {"cos(x)", "11@(x)"},
      {"tan(x)", "12@(x)"},
      {"atn(x)", "13@(x)"},
      {"sin(x)", "14@(x)"},
      {"sqrt(x)", "15@(x)"},
      {"sgn(x)", "16@(x)"},
      {"trpl(x)", "17@(x)"},
      {"x!", "x#0"},
      {"2sen(30)", "210@(30)"},
      {"sig x", "3@x"},
      {"", ""},
  };
  for (const Row& row : rows) EXPECT_EQ(NormaliseFormula(row.formula), row.code) << row.formula;
}

TEST(Compiler, IgnoresCaseAndBlanks) {
  EXPECT_EQ(NormaliseFormula("SEN(90)"), "10@(90)");
  EXPECT_EQ(NormaliseFormula("sen ( 90 )"), "10@(90)");
  EXPECT_EQ(NormaliseFormula("s e n(90)"), "10@(90)");
}

TEST(Compiler, RemovesBlanksAndNoOtherWhiteSpace) {
  EXPECT_EQ(NormaliseFormula("x\t+\n1 "), "x\t+\n1");
}

TEST(Compiler, LeavesNoUpperCaseEThatCouldBecomeAPowerOfTen) {
  EXPECT_EQ(NormaliseFormula("2E3"), "2e3");
}

TEST(Compiler, LowersAccentedLettersToo) { EXPECT_EQ(NormaliseFormula("ÑÁ"), "ñá"); }

TEST(Compiler, OffersTwelveNamesInEachLanguageInMenuOrder) {
  const std::vector<std::string_view> spanish = {"log", "ln",  "atn",   "cos",   "sen", "tan",
                                                 "!",   "exp", "raiz2", "raiz3", "sig", "abs"};
  const std::vector<std::string_view> english = {"log", "ln",  "atn",  "cos",  "sin", "tan",
                                                 "!",   "exp", "sqrt", "trpl", "sgn", "abs"};
  const auto offered_es = offeredFunctions("ES");
  const auto offered_en = offeredFunctions("EN");
  EXPECT_EQ(std::vector(offered_es.begin(), offered_es.end()), spanish);
  EXPECT_EQ(std::vector(offered_en.begin(), offered_en.end()), english);
}

}  // namespace
}  // namespace zel
