#pragma once

#include <array>
#include <string>

namespace zel::test {

/// The language read a second time, as plainly as it can be told and without a line of the engine:
/// a recursion over the text, numbers as text by the C library, failures as exceptions. Messages
/// are the Spanish ones. It shares the engine's bound of an expanded code.
class Model {
 public:
  std::array<std::string, 26> graphs;  // the codes of "a" to "z"

  void setT(double value);
  void setP(double value);
  /// "= 2,5" with the value's bits to 17 digits, or "! " and the message.
  std::string evaluate(double x, const std::string& code);

 private:
  struct Operands {
    std::string left, right, op;
  };

  std::string expand(const std::string& code) const;
  std::string reduce(std::string text);
  std::string strip(const std::string& text);
  Operands split(const std::string& text);

  std::string x_, t_, p_ = "0";
  std::string expanded_code_, expanded_;  // the last expansion
  bool outgrown_ = false;
  std::array<std::string, 121> slots_;  // from 1
  std::size_t position_ = 1;
  std::string cached_code_;
};

}  // namespace zel::test
