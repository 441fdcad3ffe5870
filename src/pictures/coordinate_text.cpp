// The shortest text that gives the double back, without an exponent below 1e15. What is nearer to 0
// than a millionth is 0, and so is a zero with a sign: such numbers would take hundreds of digits
// or an exponent, which PDF does not know.

#include "pictures/coordinate_text.h"

#include <array>
#include <charconv>
#include <cmath>

namespace zel {

std::string coordinateText(double value) {
  constexpr double kLargestPlain = 1e15;
  constexpr double kLeast = 1e-6;
  if (std::fabs(value) < kLeast) value = 0;
  const auto format =
      std::fabs(value) < kLargestPlain ? std::chars_format::fixed : std::chars_format::scientific;
  std::array<char, 32> buffer;
  const auto end =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), value + 0.0, format).ptr;
  return {buffer.data(), end};
}

}  // namespace zel
