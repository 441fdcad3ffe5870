#pragma once

#include <cmath>
#include <string>
#include <utility>

namespace zel {

/// What became of one operation: a value, an error with its message, or an arithmetic fault, which
/// ends the evaluation on the spot and has one message for all causes.
struct Outcome {
  enum class Kind { value, error, fault };

  Kind kind = Kind::value;
  double value = 0;
  std::string message;  // of an error, in the current language

  /// A value that is no finite number is a fault.
  static Outcome of(double value) {
    return std::isfinite(value) ? Outcome{Kind::value, value, {}} : fault();
  }
  static Outcome error(std::string message) { return {Kind::error, 0, std::move(message)}; }
  static Outcome fault() { return {Kind::fault, 0, {}}; }
};

}  // namespace zel
