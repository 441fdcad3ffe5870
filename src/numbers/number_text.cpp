// Every value passes between operations as text. Writing takes the 15 significant digits that the
// standard library's exact conversion gives, drops the zeros at their end, and chooses between the
// plain form and the exponent form by the size of the number. Reading accepts one form of number
// only, with either separator, and tells what is too large (nothing) from what is too small (zero).

#include "numbers/number_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace zel {
namespace {

constexpr int kDigits = 15;
constexpr int kLowestPlainExponent = -4;

bool isDigit(char character) { return character >= '0' && character <= '9'; }
bool isSeparator(char character) { return character == ',' || character == '.'; }
bool isSign(char character) { return character == '+' || character == '-'; }

std::size_t skipDigits(std::string_view text, std::size_t position) {
  while (position < text.size() && isDigit(text[position])) ++position;
  return position;
}

/// A rounded value taken apart: value = d,ddd x 10^exponent.
struct Decimal {
  std::string_view digits;  // without trailing zeros, at least one
  int exponent;
};

/// `buffer` receives "d.ddddddddddddddE+xx" and keeps the digits of the result alive.
Decimal roundTo15Digits(double magnitude, std::array<char, 32>& buffer) {
  char* const begin = buffer.data();
  const auto end = std::to_chars(begin, begin + buffer.size(), magnitude,
                                 std::chars_format::scientific, kDigits - 1)
                       .ptr;
  // "d." + 14 digits + "e" + sign + exponent
  const char* const exponent_mark = begin + 1 + kDigits;
  int exponent = 0;
  std::from_chars(exponent_mark + 2, end, exponent);
  if (exponent_mark[1] == '-') exponent = -exponent;
  begin[1] = begin[0];  // closes the gap of the point
  std::string_view digits(begin + 1, kDigits);
  digits = digits.substr(0, digits.find_last_not_of('0') + 1);
  return {digits.empty() ? std::string_view("0") : digits, exponent};
}

void writeExponentForm(const Decimal& decimal, NumberText& text) {
  text.append(decimal.digits[0]);
  if (decimal.digits.size() > 1) {
    text.append(',');
    text.append(decimal.digits.substr(1));
  }
  text.append('E');
  text.append(decimal.exponent < 0 ? '-' : '+');
  const int exponent = std::abs(decimal.exponent);
  if (exponent < 10) text.append('0');
  std::array<char, 4> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), exponent).ptr;
  text.append(std::string_view(digits.data(), static_cast<std::size_t>(end - digits.data())));
}

void writePlainForm(const Decimal& decimal, NumberText& text) {
  if (decimal.exponent < 0) {
    text.append("0,");
    text.append('0', static_cast<std::size_t>(-decimal.exponent - 1));
    text.append(decimal.digits);
    return;
  }
  const auto whole = static_cast<std::size_t>(decimal.exponent) + 1;
  if (decimal.digits.size() <= whole) {
    text.append(decimal.digits);
    text.append('0', whole - decimal.digits.size());
    return;
  }
  text.append(decimal.digits.substr(0, whole));
  text.append(',');
  text.append(decimal.digits.substr(whole));
}

/// Whether a numeric text that no double can hold is too large (rather than too small).
bool isTooLarge(std::string_view text) {
  const std::size_t exponent_mark = std::min(text.find_first_of("eE"), text.size());
  const std::string_view mantissa = text.substr(0, exponent_mark);
  const std::size_t first = mantissa.find_first_of("123456789");
  if (first == std::string_view::npos) return false;
  const std::size_t separator = std::min(mantissa.find_first_of(",."), mantissa.size());
  const auto place = first < separator ? static_cast<long long>(separator - first)
                                       : -static_cast<long long>(first - separator - 1);
  if (exponent_mark == text.size()) return place > 0;
  std::string_view digits = text.substr(exponent_mark + 1);
  const bool negative = digits.front() == '-';
  if (isSign(digits.front())) digits.remove_prefix(1);
  long long exponent = 0;
  const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), exponent);
  if (read.ec != std::errc{}) return !negative;
  return (negative ? -exponent : exponent) > -place;
}

/// `text` is numeric, unsigned or with "-", and has "." as its separator.
std::optional<double> parseNumber(std::string_view text) {
  double value = 0;
  const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
  if (read.ec == std::errc{} && std::isfinite(value)) return value;
  if (isTooLarge(text)) return std::nullopt;
  return 0.0;
}

template <class Integer>
std::optional<Integer> roundToInteger(double value) {
  const double rounded = std::nearbyint(value);
  if (!(rounded >= std::numeric_limits<Integer>::min() &&
        rounded <= std::numeric_limits<Integer>::max()))
    return std::nullopt;
  return static_cast<Integer>(rounded);
}

}  // namespace

NumberText writeNumber(double value) {
  NumberText text;
  if (value < 0) text.append('-');
  std::array<char, 32> buffer;
  const Decimal decimal = roundTo15Digits(std::fabs(value), buffer);
  if (decimal.exponent < kLowestPlainExponent || decimal.exponent >= kDigits)
    writeExponentForm(decimal, text);
  else
    writePlainForm(decimal, text);
  return text;
}

bool isNumeric(std::string_view text) {
  std::size_t position = 0;
  if (!text.empty() && isSign(text[0])) ++position;
  std::size_t digits_end = skipDigits(text, position);
  std::size_t digit_count = digits_end - position;
  position = digits_end;
  if (position < text.size() && isSeparator(text[position])) {
    digits_end = skipDigits(text, ++position);
    digit_count += digits_end - position;
    position = digits_end;
  }
  if (digit_count == 0) return false;
  if (position == text.size()) return true;
  if (text[position] != 'e' && text[position] != 'E') return false;
  ++position;
  if (position < text.size() && isSign(text[position])) ++position;
  const std::size_t end = skipDigits(text, position);
  return end > position && end == text.size();
}

std::optional<double> readNumber(std::string_view text) {
  if (!isNumeric(text)) return std::nullopt;
  if (text.front() == '+') text.remove_prefix(1);
  const std::size_t comma = text.find(',');
  if (comma == std::string_view::npos) return parseNumber(text);
  constexpr std::size_t kUsualSize = 64;
  if (text.size() > kUsualSize) {
    std::string copy(text);
    copy[comma] = '.';
    return parseNumber(copy);
  }
  std::array<char, kUsualSize> copy;
  std::copy(text.begin(), text.end(), copy.begin());
  copy[comma] = '.';
  return parseNumber({copy.data(), text.size()});
}

std::optional<std::int32_t> roundToInt32(double value) {
  return roundToInteger<std::int32_t>(value);
}

std::optional<std::int16_t> roundToInt16(double value) {
  return roundToInteger<std::int16_t>(value);
}

}  // namespace zel
