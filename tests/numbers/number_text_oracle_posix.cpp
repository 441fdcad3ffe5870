// Compares number text with what the C library prints and reads, under several locales.

#include <array>
#include <bit>
#include <cfloat>
#include <clocale>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "numbers/number_text.h"

namespace zel::test {
namespace {

/// The number text made of what printf says, whatever its decimal separator is.
std::string expectedText(double value) {
  std::array<char, 64> buffer{};
  std::snprintf(buffer.data(), buffer.size(), "%.14e", std::fabs(value));
  const std::string printed = buffer.data();
  const std::size_t mark = printed.find('e');
  const int exponent = std::atoi(printed.c_str() + mark + 1);
  std::string digits;
  for (const char character : printed.substr(0, mark)) {
    if (character >= '0' && character <= '9') digits += character;
  }
  digits.erase(digits.find_last_not_of('0') + 1);
  if (digits.empty()) return "0";
  const std::string sign = value < 0 ? "-" : "";
  const int count = static_cast<int>(digits.size());
  if (exponent < -4 || exponent > 14) {
    const std::string mantissa = count > 1 ? digits.substr(0, 1) + "," + digits.substr(1) : digits;
    std::snprintf(buffer.data(), buffer.size(), "E%+03d", exponent);
    return sign + mantissa + buffer.data();
  }
  if (exponent < 0)
    return sign + "0," + std::string(static_cast<std::size_t>(-exponent - 1), '0') + digits;
  const auto whole = static_cast<std::size_t>(exponent) + 1;
  if (digits.size() <= whole) return sign + digits + std::string(whole - digits.size(), '0');
  return sign + digits.substr(0, whole) + "," + digits.substr(whole);
}

/// The double that strtod makes of a number text.
double expectedValue(std::string text) {
  const std::size_t comma = text.find(',');
  if (comma != std::string::npos) text.replace(comma, 1, std::localeconv()->decimal_point);
  return std::strtod(text.c_str(), nullptr);
}

void compareTexts(double value) {
  const std::string text = writeNumber(value).str();
  ASSERT_EQ(text, expectedText(value)) << std::hexfloat << value;
  ASSERT_TRUE(isNumeric(text)) << text;
  const double back = expectedValue(text);
  const auto read = readNumber(text);
  if (std::isinf(back)) {
    ASSERT_EQ(read, std::nullopt) << text;
  } else {
    ASSERT_EQ(read, back) << text;
    // What was read is written as the same text again: the rounding is stable.
    ASSERT_EQ(writeNumber(*read).view(), text) << text;
  }
}

void compareTextsAround(double value) {
  compareTexts(value);
  compareTexts(std::nextafter(value, -DBL_MAX));
  compareTexts(std::nextafter(value, DBL_MAX));
}

class NumberTextOracle : public ::testing::TestWithParam<const char*> {
 protected:
  void SetUp() override {
    if (std::setlocale(LC_ALL, GetParam()) == nullptr)
      GTEST_SKIP() << "the locale " << GetParam() << " is missing";
  }
  void TearDown() override { std::setlocale(LC_ALL, "C"); }

  std::mt19937_64 random{20080281};
};

TEST_P(NumberTextOracle, AgreesOnRandomBitPatterns) {
  for (int i = 0; i < 200'000; ++i) {
    const double value = std::bit_cast<double>(random());
    if (std::isfinite(value)) compareTexts(value);
    if (HasFatalFailure()) return;
  }
}

TEST_P(NumberTextOracle, AgreesOnNumbersOfEverydaySize) {
  std::uniform_real_distribution<double> mantissa(-10, 10);
  std::uniform_int_distribution<int> exponent(-8, 18);
  for (int i = 0; i < 200'000; ++i) {
    compareTexts(mantissa(random) * std::pow(10, exponent(random)));
    if (HasFatalFailure()) return;
  }
}

TEST_P(NumberTextOracle, AgreesOnSubnormals) {
  for (int i = 0; i < 20'000; ++i) {
    compareTexts(std::bit_cast<double>(random() >> (12 + i % 52)));
    if (HasFatalFailure()) return;
  }
}

TEST_P(NumberTextOracle, AgreesOnExactTies) {
  std::uniform_int_distribution<long long> fifteen_digits(100'000'000'000'000, 999'999'999'999'999);
  for (int i = 0; i < 20'000; ++i) {
    const auto whole = static_cast<double>(fifteen_digits(random));
    for (const double tie : {whole + 0.5, whole / 16 + 0.5 / 16, 10 * whole + 5}) {
      compareTextsAround(tie);
      if (HasFatalFailure()) return;
    }
  }
}

TEST_P(NumberTextOracle, AgreesAtThePowersOfTenAndOfTwo) {
  for (int exponent = -323; exponent <= 308; ++exponent) {
    const double power = expectedValue("1e" + std::to_string(exponent));
    compareTextsAround(power);
    compareTextsAround(-power);
  }
  for (int exponent = -1074; exponent <= 1023; ++exponent)
    compareTextsAround(std::ldexp(1, exponent));
}

TEST_P(NumberTextOracle, AgreesAtTheEndsOfTheRange) {
  compareTexts(0);
  compareTexts(DBL_MAX);
  compareTexts(-DBL_MAX);
  compareTextsAround(DBL_MIN);
  compareTexts(std::numeric_limits<double>::denorm_min());
}

TEST_P(NumberTextOracle, ReadsLikeTheLibraryWhatUsersType) {
  std::uniform_int_distribution<int> digit(0, 9);
  std::uniform_int_distribution<int> length(1, 25);
  std::uniform_int_distribution<int> exponent(-330, 320);
  for (int i = 0; i < 50'000; ++i) {
    std::string text;
    for (int n = length(random); n > 0; --n) text += static_cast<char>('0' + digit(random));
    text.insert(static_cast<std::size_t>(random() % (text.size() + 1)), ",");
    if (i % 2 == 0) text += "e" + std::to_string(exponent(random));
    const double value = expectedValue(text);
    ASSERT_EQ(readNumber(text), std::isinf(value) ? std::nullopt : std::optional(value)) << text;
  }
}

INSTANTIATE_TEST_SUITE_P(Locales, NumberTextOracle,
                         ::testing::Values("C", "es_ES.UTF-8", "en_US.UTF-8"),
                         [](const auto& tested) {
                           const std::string name = tested.param;
                           return name.substr(0, name.find('_'));
                         });

}  // namespace
}  // namespace zel::test
