#pragma once

#include <algorithm>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>

namespace zel::test {

/// The value of a text that is a number, read by the C library, which is asked about the characters
/// of numbers only; an infinity where it is too large. Nothing where the text is no number.
inline std::optional<double> plainNumber(std::string_view text) {
  if (text.find_first_not_of("0123456789.,eE+-") != std::string_view::npos) return std::nullopt;
  // The toolkit sets the C library's locale.
  const char point = *std::localeconv()->decimal_point;
  std::string pointed(text);
  std::ranges::replace_if(
      pointed, [](char c) { return c == ',' || c == '.'; }, point);
  char* end = nullptr;
  const double value = std::strtod(pointed.c_str(), &end);
  if (end == pointed.c_str() || *end != '\0') return std::nullopt;
  return value;
}

inline bool isPlainNumber(std::string_view text) { return plainNumber(text).has_value(); }

/// The same for a value that a double can hold.
inline std::optional<double> plainFiniteNumber(std::string_view text) {
  const auto value = plainNumber(text);
  return value && std::isfinite(*value) ? value : std::nullopt;
}

}  // namespace zel::test
