#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Number text: a value as text with at most 15 significant digits and "," as decimal separator.
/// It is what operators and functions of a formula read and write, what documents hold and what
/// the user sees. Nothing here depends on the process's locale.
namespace zel {

/// The number text of one value, held in place: writing it allocates nothing.
class NumberText {
 public:
  /// The longest text is "-1,23456789012345E-308".
  static constexpr std::size_t kCapacity = 23;

  std::string_view view() const { return {chars_.data(), size_}; }
  operator std::string_view() const { return view(); }
  std::string str() const { return std::string(view()); }

  void append(char character) { chars_[size_++] = character; }
  void append(char character, std::size_t count) {
    for (; count > 0; --count) append(character);
  }
  void append(std::string_view text) {
    for (const char character : text) append(character);
  }

 private:
  std::array<char, kCapacity> chars_{};
  std::uint8_t size_ = 0;
};

/// Writes a finite value in the general format: the exact binary value rounded half to even at 15
/// significant digits, no trailing zeros, exponent form ("1E+15", "1,6E-15", at least two exponent
/// digits) below 0,0001 and from 1E+15 on. Zero of either sign is "0".
NumberText writeNumber(double value);

/// The numeric test: digits with at most one separator ("," or ".", also leading or trailing, at
/// least one digit), an optional sign, an optional exponent "e" or "E" with an optional sign.
/// Nothing else: no blanks, no "inf", no "nan", no hexadecimal.
bool isNumeric(std::string_view text);

/// Reads a text that passes the numeric test, correctly rounded. Too small a magnitude reads as 0.
/// Nothing when the text is not numeric (the empty text included) or too large for a double.
std::optional<double> readNumber(std::string_view text);

/// The nearest integer, halves to even; nothing when it does not fit.
std::optional<std::int32_t> roundToInt32(double value);
std::optional<std::int16_t> roundToInt16(double value);

}  // namespace zel
