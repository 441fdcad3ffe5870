#include "numbers/number_text.h"

#include <cfloat>
#include <cmath>
#include <limits>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace zel::test {
namespace {

using Written = std::vector<std::pair<double, std::string_view>>;

void expectWritten(const Written& table) {
  for (const auto& [value, text] : table) EXPECT_EQ(writeNumber(value).view(), text) << value;
}

TEST(NumberText, WritesWholeNumbersPlain) {
  expectWritten({{0, "0"}, {1, "1"}, {-1, "-1"}, {10, "10"}, {-120, "-120"}, {65535, "65535"}});
}

TEST(NumberText, WritesZeroOfEitherSignAsZero) { expectWritten({{0.0, "0"}, {-0.0, "0"}}); }

TEST(NumberText, SeparatesDecimalsWithAComma) {
  expectWritten({{0.5, "0,5"}, {-2.25, "-2,25"}, {1234.5, "1234,5"}, {0.001, "0,001"}});
}

TEST(NumberText, KeepsAtMostFifteenSignificantDigits) {
  expectWritten({{1.0 / 3, "0,333333333333333"},
                 {2.0 / 3, "0,666666666666667"},
                 {-2e5 / 3, "-66666,6666666667"},
                 {3.14159265358979323846, "3,14159265358979"},
                 {2.71828182845905, "2,71828182845905"},
                 {123456789012345.0, "123456789012345"}});
}

TEST(NumberText, WritesNoTrailingZeros) {
  expectWritten({{0.1 + 0.2, "0,3"}, {1.10, "1,1"}, {0.99999999999999999, "1"}});
}

TEST(NumberText, RoundsExactTiesToEven) {
  expectWritten({{100000000000000.5, "100000000000000"},
                 {100000000000001.5, "100000000000002"},
                 {123456789012344.5, "123456789012344"},
                 {-123456789012345.5, "-123456789012346"},
                 {12345678901234.25, "12345678901234,2"},
                 {12345678901234.75, "12345678901234,8"},
                 {999999999999998.5, "999999999999998"},
                 {0.5 + 1.0 / (1 << 15), "0,500030517578125"}});
}

TEST(NumberText, DecidesByTheExactBinaryValueAndNotByItsShortestText) {
  // The doubles nearest to these lie a little above and a little below the tie, and the last digit
  // is even and odd: ties between the shortest texts would go the other way.
  expectWritten({{6.237977072601965, "6,23797707260197"}, {4.050277179299375, "4,05027717929937"}});
  EXPECT_EQ(writeNumber(std::nextafter(100000000000000.5, 1e15)).view(), "100000000000001");
}

TEST(NumberText, TurnsToExponentFormAtTenToTheFifteenth) {
  expectWritten({{999999999999999.0, "999999999999999"},
                 {-999999999999999.0, "-999999999999999"},
                 {999999999999999.5, "1E+15"},
                 {std::nextafter(1e15, 0), "1E+15"},
                 {1e15, "1E+15"},
                 {-1e15, "-1E+15"},
                 {1234567890123456.0, "1,23456789012346E+15"},
                 {1e16, "1E+16"},
                 {1e99, "1E+99"},
                 {1e100, "1E+100"}});
}

TEST(NumberText, TurnsToExponentFormBelowOneTenThousandth) {
  expectWritten({{0.0001, "0,0001"},
                 {-0.0001, "-0,0001"},
                 {0.000123456789012345, "0,000123456789012345"},
                 {0.00009999999999999999, "0,0001"},
                 {0.0000999999999999999, "9,99999999999999E-05"},
                 {0.00001, "1E-05"},
                 {1.6e-15, "1,6E-15"},
                 {1e-100, "1E-100"}});
}

TEST(NumberText, WritesTheEndsOfTheRange) {
  expectWritten({{DBL_MAX, "1,79769313486232E+308"},
                 {-DBL_MAX, "-1,79769313486232E+308"},
                 {DBL_MIN, "2,2250738585072E-308"},
                 {std::numeric_limits<double>::denorm_min(), "4,94065645841247E-324"},
                 {-std::numeric_limits<double>::denorm_min(), "-4,94065645841247E-324"}});
  EXPECT_EQ(writeNumber(-1.23456789012345e-308).view().size(), NumberText::kCapacity - 1);
}

TEST(NumberText, AcceptsDigitsASeparatorASignAndAnExponent) {
  for (const std::string_view text :
       {"0",   "12",  "1,5", "1.5",  ",5",   ".5",       "5,",  "5.", "-1",   "+1",   "-,5",
        "+5.", "2e3", "2E3", "2e+3", "2e-3", "-1,5E-10", "007", "00", ",5e1", "5,e1", "1e007"})
    EXPECT_TRUE(isNumeric(text)) << text;
}

TEST(NumberText, AcceptsNothingElse) {
  for (const std::string_view text :
       {"",      " ",   "-",        "+",        ",",     ".",     "-,",      "e",     "e5",
        "1e",    "1e+", "1e-",      "1,2,3",    "1.2.3", "1,2.3", "1.000,5", "1 ",    " 1",
        "1 000", "--1", "+-1",      "1-",       "(1)",   "$1",    "1$",      "inf",   "-inf",
        "nan",   "NaN", "infinity", "0x10",     "0x1p3", "1f",    "1e5e5",   "1e1,5", "1d5",
        "x",     "abc", "\xC2\xB2", "\xD9\xA1", "1\n",   "1\r\n", "\t1"})
    EXPECT_FALSE(isNumeric(text)) << text;
  EXPECT_FALSE(isNumeric(std::string_view("1\0", 2)));
}

TEST(NumberText, ReadsEitherSeparatorAndEveryFormThatItAccepts) {
  const std::vector<std::pair<std::string_view, double>> table = {
      {"0", 0},      {"-0", 0},     {"1,5", 1.5},     {"1.5", 1.5},   {",5", 0.5},
      {".5", 0.5},   {"5,", 5},     {"5.", 5},        {"-,5", -0.5},  {"+5,", 5},
      {"2e3", 2000}, {"2E3", 2000}, {"2e+3", 2000},   {"2e-3", .002}, {",5e1", 5},
      {"5,e1", 50},  {"007", 7},    {"+1,5E-1", 0.15}};
  for (const auto& [text, value] : table) EXPECT_EQ(readNumber(text), value) << text;
}

TEST(NumberText, ReadsNothingFromATextThatIsNotNumeric) {
  for (const std::string_view text : {"", " ", "x", "1,2,3", "inf", "nan", "0x10", "1 "})
    EXPECT_EQ(readNumber(text), std::nullopt) << text;
}

TEST(NumberText, ReadsTheNearestDouble) {
  EXPECT_EQ(readNumber("0,1"), 0.1);
  EXPECT_EQ(readNumber("9007199254740993"), 9007199254740992.0);
  EXPECT_EQ(readNumber("9007199254740993,0000000000000000000000000001"), 9007199254740994.0);
  EXPECT_EQ(readNumber("1,7976931348623157E308"), DBL_MAX);
  EXPECT_EQ(readNumber("4,94065645841247E-324"), std::numeric_limits<double>::denorm_min());
  EXPECT_EQ(readNumber("2,2250738585072E-308"), 2.2250738585072e-308);
}

TEST(NumberText, ReadsNothingWhereNoDoubleIsLargeEnough) {
  const std::string many(400, '9');
  for (const std::string& text :
       {std::string("1e309"), std::string("-1e309"), std::string("1,79769313486232E+308"),
        std::string("1e99999999999999999999999"), std::string("1E9223372036854775807"),
        std::string("0,001e313"), many, "-" + many, many + ",5", "0," + many + "e400"})
    EXPECT_EQ(readNumber(text), std::nullopt) << text;
}

TEST(NumberText, ReadsZeroWhereNoDoubleIsSmallEnough) {
  const std::string zeros(400, '0');
  for (const std::string& text :
       {std::string("1e-400"), std::string("-1e-400"), std::string("1e-99999999999999999999999"),
        std::string("1E-9223372036854775808"), "0," + zeros + "1", "," + zeros + "1e50",
        std::string("0e99999999999999999999999"), std::string("0e400"), "1" + zeros + "e-900"})
    EXPECT_EQ(readNumber(text), 0.0) << text;
}

TEST(NumberText, ReadsLongTexts) {
  const std::string zeros(1000, '0');
  EXPECT_EQ(readNumber(zeros + "1,5" + zeros), 1.5);
  EXPECT_EQ(readNumber("1" + zeros + "e-1000"), 1.0);
  EXPECT_EQ(readNumber("0," + zeros + "1e1001"), 1.0);
}

TEST(NumberText, RoundsToTheNearestIntegerHalvesToEven) {
  EXPECT_EQ(roundToInt32(0.5), 0);
  EXPECT_EQ(roundToInt32(1.5), 2);
  EXPECT_EQ(roundToInt32(2.5), 2);
  EXPECT_EQ(roundToInt32(-2.5), -2);
  EXPECT_EQ(roundToInt32(-0.4), 0);
  EXPECT_EQ(roundToInt16(4.5), 4);
  EXPECT_EQ(roundToInt16(5.5), 6);
}

TEST(NumberText, RoundsToNothingOutsideTheIntegersRange) {
  EXPECT_EQ(roundToInt32(2147483647.4), 2147483647);
  EXPECT_EQ(roundToInt32(2147483647.5), std::nullopt);
  EXPECT_EQ(roundToInt32(-2147483648.5), -2147483647 - 1);
  EXPECT_EQ(roundToInt32(-2147483649.0), std::nullopt);
  EXPECT_EQ(roundToInt16(32767.4), std::int16_t{32767});
  EXPECT_EQ(roundToInt16(32767.5), std::nullopt);
  EXPECT_EQ(roundToInt16(-32768.5), std::int16_t{-32768});
  EXPECT_EQ(roundToInt16(-32769.0), std::nullopt);
  EXPECT_EQ(roundToInt32(1e300), std::nullopt);
  EXPECT_EQ(roundToInt32(std::numeric_limits<double>::infinity()), std::nullopt);
  EXPECT_EQ(roundToInt32(std::numeric_limits<double>::quiet_NaN()), std::nullopt);
}

}  // namespace
}  // namespace zel::test
