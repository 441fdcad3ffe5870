#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "engine/engine.h"
#include "engine/reference/reference_engine.h"

namespace zel::test {

/// An engine and the reference, which get the same things to do and share the codes of the graphs.
/// Each comparison, bit for bit, gives the first difference as a text, empty where there is none.
class EnginePair {
 public:
  std::string& graphCode(char letter) { return codes_[static_cast<std::size_t>(letter - 'a')]; }
  std::size_t evaluations() const { return evaluations_; }
  const Engine& engine() const { return engine_; }

  void setT(double value);
  void setP(double value);

  /// What the engine made of the last evaluation: "= 2,5" with the value to 17 digits, or "! " and
  /// the message.
  std::string last() const;

  /// Value, flag, message, and the parse cache afterwards.
  std::string evaluate(double x, const std::string& code);
  std::string sweep(const std::vector<double>& xs, const std::string& code);
  /// Every t is finite.
  std::string curve(const std::vector<double>& ts, const std::string& code_x,
                    const std::string& code_y);

 private:
  std::string compareSample(double value, double x, const std::string& code, const char* what);
  /// After this code was evaluated last.
  std::string cacheDifference(const std::string& code) const;

  std::array<std::string, 26> codes_;
  Engine engine_{[this](char letter) -> std::string_view { return graphCode(letter); }};
  ReferenceEngine reference_{[this](char letter) -> std::string_view { return graphCode(letter); }};
  std::size_t evaluations_ = 0;
  bool is_defined_ = false;  // by the last evaluation
  double value_ = 0;
  std::string message_;
};

}  // namespace zel::test
