#include "graphs/kinds.h"

#include <gtest/gtest.h>

#include "graphs/parameters_of.h"

namespace zel::test {
namespace {

void expectKind(char letter, std::string_view name, bool two_branches, std::string_view template1,
                std::string_view template2) {
  const KindInfo* const kind = kindInfo(letter);
  ASSERT_NE(kind, nullptr);
  EXPECT_EQ(kind->letter, letter);
  EXPECT_EQ(kind->name, name);
  EXPECT_EQ(kind->two_branches, two_branches);
  EXPECT_EQ(kind->template1, template1);
  EXPECT_EQ(kind->template2, template2);
}

TEST(Kinds, AreSevenWithTheirNamesAndTemplates) {
  expectKind('F', "Función", false, "", "");
  expectKind('C', "Cincunferencia", true, "7@(r^2-(h-x)^2)+k", "-7@(r^2-(h-x)^2)+k");
  expectKind('E', "Elipse", true, "7@((1-(x-h)^2/a^2)*b^2)+k", "-7@((1-(x-h)^2/a^2)*b^2)+k");
  expectKind('P', "Parabola", false, "a*x^2-2*h*a*x+a*h^2+k", "");
  expectKind('H', "Hiperbola", true, "7@(((x-h)^2/a^2-1)*(c^2-a^2))+k",
             "-7@(((x-h)^2/a^2-1)*(c^2-a^2))+k");
  expectKind('Z', "Haz de rectas", false, "", "");
  expectKind('T', "Paramétrica", false, "", "");
}

TEST(Kinds, LeaveTheEntriesOfTheOtherLettersEmpty) {
  for (const char letter : std::string("ABDGIJKLMNOQRSUVWXY")) {
    const KindInfo* const kind = kindInfo(letter);
    ASSERT_NE(kind, nullptr) << letter;
    EXPECT_EQ(kind->letter, '\0');
    EXPECT_EQ(kind->name, "");
    EXPECT_FALSE(kind->two_branches);
  }
}

TEST(Kinds, HaveNoEntryOutsideTheUpperCaseLetters) {
  for (const char letter : {'@', '[', 'f', '\0', ' ', '\xD1'}) {
    EXPECT_EQ(kindInfo(letter), nullptr) << letter;
  }
}

TEST(Templates, TakeEachValueInParentheses) {
  const Parameters parabola = parametersOf({{"h", "1"}, {"k", "2"}, {"p", "1"}, {"a", "0,5"}});
  EXPECT_EQ(substituteParameters("a*x^2-2*h*a*x+a*h^2+k", parabola),
            "(0,5)*x^2-2*(1)*(0,5)*x+(0,5)*(1)^2+(2)");
}

TEST(Templates, MakeTheBranchesOfEachConic) {
  const Parameters circle = parametersOf({{"h", "0"}, {"k", "-1"}, {"r", "3"}});
  EXPECT_EQ(substituteParameters(kindInfo('C')->template1, circle), "7@((3)^2-((0)-x)^2)+(-1)");
  EXPECT_EQ(substituteParameters(kindInfo('C')->template2, circle), "-7@((3)^2-((0)-x)^2)+(-1)");
  const Parameters ellipse = parametersOf({{"h", "1"}, {"k", "2"}, {"a", "5"}, {"b", "3"}});
  EXPECT_EQ(substituteParameters(kindInfo('E')->template1, ellipse),
            "7@((1-(x-(1))^2/(5)^2)*(3)^2)+(2)");
  const Parameters hyperbola = parametersOf({{"h", "1"}, {"k", "2"}, {"a", "3"}, {"c", "5"}});
  EXPECT_EQ(substituteParameters(kindInfo('H')->template2, hyperbola),
            "-7@(((x-(1))^2/(3)^2-1)*((5)^2-(3)^2))+(2)");
}

TEST(Templates, IgnoreTheCaseOfKeysAndGoByTheirOrder) {
  EXPECT_EQ(substituteParameters("H+h", parametersOf({{"h", "1"}})), "(1)+(1)");
  EXPECT_EQ(substituteParameters("h", parametersOf({{"h", "k"}, {"k", "2"}})), "((2))");
  EXPECT_EQ(substituteParameters("h", parametersOf({{"k", "2"}, {"h", "k"}})), "(k)");
  EXPECT_EQ(substituteParameters("h", Parameters()), "h");
}

}  // namespace
}  // namespace zel::test
