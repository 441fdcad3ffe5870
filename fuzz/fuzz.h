#pragma once

#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

#include "numbers/number_text.h"

/// What the fuzzers share. A rule that does not hold ends the process, which libFuzzer takes for a
/// crash and keeps the input of.
namespace zel::fuzz {

inline void require(bool holds, std::string_view rule, std::string_view about = {}) {
  if (holds) return;
  std::fprintf(stderr, "broken: %.*s: %.*s\n", static_cast<int>(rule.size()), rule.data(),
               static_cast<int>(about.size()), about.data());
  std::abort();
}

/// The same for a comparison that gives its difference as a text, empty where there is none.
inline void requireNone(std::string_view difference, std::string_view rule) {
  require(difference.empty(), rule, difference);
}

/// The same bits, or both no number.
inline bool isSame(double a, double b) {
  return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b) ||
         (std::isnan(a) && std::isnan(b));
}

/// The bytes of a run, taken from the front; what is not there any more is 0 or empty.
class Input {
 public:
  Input(const std::uint8_t* data, std::size_t size)
      : rest_(reinterpret_cast<const char*>(data), size) {}
  explicit Input(std::string_view text) : rest_(text) {}

  bool isEmpty() const { return rest_.empty(); }
  std::string_view rest() const { return rest_; }

  std::uint8_t byte() {
    const auto taken = take(1);
    return taken.empty() ? 0 : static_cast<std::uint8_t>(taken[0]);
  }
  /// Eight bytes as they lie in memory: any double.
  double rawNumber() {
    double number = 0;
    const auto taken = take(sizeof number);
    std::memcpy(&number, taken.data(), taken.size());
    return number;
  }
  /// Up to the separator, which is taken too.
  std::string_view until(char separator) {
    const std::size_t size = rest_.find(separator);
    const auto taken = rest_.substr(0, size);
    rest_.remove_prefix(size == std::string_view::npos ? rest_.size() : size + 1);
    return taken;
  }
  std::string_view line() { return until('\n'); }
  /// A word that is a number, or else "nan", "inf" or 0.
  double number() {
    const auto word = until(' ');
    if (word == "nan") return std::nan("");
    if (word == "inf") return HUGE_VAL;
    return readNumber(word).value_or(0);
  }
  double finiteNumber() {
    const double any = number();
    return std::isfinite(any) ? any : 0;
  }

 private:
  std::string_view take(std::size_t size) {
    const auto taken = rest_.substr(0, size);
    rest_.remove_prefix(taken.size());
    return taken;
  }

  std::string_view rest_;
};

}  // namespace zel::fuzz
