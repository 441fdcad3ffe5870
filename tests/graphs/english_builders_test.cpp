// The message of every builder in English, with its line breaks.

#include "builders_fixture.h"

namespace zel::test {
namespace {

struct EnglishCase {
  GraphFields fields;
  std::string message;
};

const std::string kNumeric = "Next fields must contains numeric values:\r\n";
const std::string kSize = "Size must be numeric value greater than zero in fields:\r\n";
const std::string kIncreasing = "\r\nNext fields must contains increasing numeric values:\r\n";

Field f(const char* text, const char* label = "X=") { return {text, label}; }

FunctionFields functionOf(const char* formula) { return {f(formula, "Function")}; }

FamilyFields familyOf(const char* formula, const char* inicio, const char* fin,
                      const char* variacion) {
  return {f(formula, "Sheaf definition"), f(inicio, "<="), f(fin, "<="), f(variacion, "Step=")};
}

ParametricFields curveOf(const char* x, const char* y, const char* inicio, const char* fin,
                         const char* variacion) {
  return {f(x, "X(t)="), f(y, "Y(t)="), f(inicio, "Range"), f(fin, "Range"), f(variacion, "Step=")};
}

const std::vector<EnglishCase> kFormulas = {
    {functionOf(""), "Text field Function can't be empty.\r\n"},
    {functionOf("(x*-2"),
     "Parenthesis error in field Function.\r\nCannot understand expression: '(x*'"},
    {functionOf("2sen(30)"), "Syntax error."},
    {familyOf("", "5", "5", "-1"),
     "Text field Sheaf definition can't be empty.\r\n"
     "\r\nCannot find parameter name in parametric definition.\r\n" +
         kIncreasing + kSize + "Step\r\n\r\n"},
    {familyOf("p*(x", "1", "2", "1"), "Parenthesis error in field Sheaf definition.\r\n"},
    {curveOf("", "2*-t", "5", "5", "-1"),
     "Text field X(t) can't be empty.\r\nCannot understand expression: '2*'" + kIncreasing +
         "Range" + kSize + "Step\r\n\r\n"},
    {curveOf("t", "()", "a", "b", "c"),
     kNumeric + "Range\r\nRange\r\nStep\r\n" + kSize + "Step\r\n\r\n"},
};

const std::vector<EnglishCase> kConics = {
    {ParabolaFields{f("0"), f("0", "Y="), f("-1", "Guideline-focus distance")},
     kSize + "Guideline-focus distance\r\n\r\n"},
    {ParabolaFields{f(""), f("0", "Y="), f("-1", "Guideline-focus distance")}, kNumeric + "X\r\n"},
    {CircumferenceFields{f("0"), f("0", "Y="), f("-1", "Radio=")}, kSize + "Radio\r\n\r\n"},
    {CircumferenceFields{f("0"), f("", "Y="), f("abc", "Radio=")}, kNumeric + "Y\r\nRadio\r\n"},
    {EllipseFields{f("0"), f("0", "Y="), f("-3", "Major="), f("-2", "Minor=")},
     kSize + "Major\r\nMinor\r\n\r\n" + kIncreasing + "Minor\r\nMajor"},
    {EllipseFields{f("0"), f("y", "Y="), f("3", "Major="), f("3", "Minor=")},
     kNumeric + "Y\r\n" + kIncreasing + "Minor\r\nMajor"},
    {HyperbolaFields{f("0"), f("0", "Y="), f("5", "Vertex="), f("5", "Focus=")},
     kIncreasing + "Vertex\r\nFocus"},
    {HyperbolaFields{f("x"), f("0", "Y="), f("-5", "Vertex="), f("", "Focus=")},
     kNumeric + "X\r\nFocus\r\n" + kIncreasing + "Vertex\r\nFocus"},
    {HyperbolaFields{f("0"), f("0", "Y="), f("-5", "Vertex="), f("-4", "Focus=")},
     kSize + "Vertex\r\nFocus\r\n\r\n"},
};

TEST_F(GraphBuilders, SpeakEnglishOfFormulas) {
  SetCurrentLanguage("EN");
  for (const auto& [fields, expected] : kFormulas) EXPECT_EQ(refusal(fields), expected);
}

TEST_F(GraphBuilders, SpeakEnglishOfConics) {
  SetCurrentLanguage("EN");
  for (const auto& [fields, expected] : kConics) EXPECT_EQ(refusal(fields), expected);
}

}  // namespace
}  // namespace zel::test
