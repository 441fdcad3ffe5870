#include "engine/random_codes.h"

#include <array>
#include <bit>
#include <cfloat>
#include <cmath>
#include <string_view>

namespace zel::test {
namespace {

constexpr std::array<std::string_view, 24> kNumbers = {
    "0",   "1",  "2",   "3",     "4",     "10",     "0,5",         "2.5",
    "1e3", "7",  "180", "1/3",   "(1/3)", "(0-1)",  "(0-2,5)",     "170",
    "0,1", "60", "-3",  "1e999", "1e308", "1e-320", "123456789,5", "0,1234567890123456789"};

}  // namespace

std::string RandomCodes::code() {
  if (oneIn(40)) return expression(40 + below(80));
  std::string code = expression(below(oneIn(4) ? 12 : 5));
  return oneIn(8) ? damaged(code) : code;
}

std::string RandomCodes::faultingCode() {
  constexpr std::array<std::string_view, 5> kBegins = {"*1e308", "\\0,4", "^0,5", "^(1/3)",
                                                       "^(0-1)"};
  const std::string base = oneIn(2) ? "x" : "(" + expression(1) + ")";
  std::string code = base + std::string(kBegins[below(is_arithmetic_ ? 2 : kBegins.size())]);
  if (oneIn(3)) code = (is_arithmetic_ || oneIn(2) ? "9@" : "6@") + base;
  if (oneIn(2)) code += "+" + expression(below(4));
  if (oneIn(3)) code = expression(below(3)) + "-" + code;
  return code;
}

std::string RandomCodes::atom() {
  switch (below(10)) {
    case 0: return "t";
    case 1: return "p";
    case 2: return oneIn(3) ? "e" : "(x)";
    case 3:
    case 4:
    case 5: return std::string(kNumbers[below(kNumbers.size())]);
    case 6: return std::to_string(below(1000)) + "," + std::to_string(below(1000));
    default: return "x";
  }
}

std::string RandomCodes::function() {
  constexpr std::array<std::string_view, 4> kOdd = {"18@", "2,5@", "(0-1)@", "x@"};
  constexpr std::array<std::string_view, 4> kExact = {"2@", "3@", "7@", "9@"};
  if (is_arithmetic_) return std::string(kExact[below(kExact.size())]);
  return oneIn(60) ? std::string(kOdd[below(kOdd.size())]) : std::to_string(below(18)) + "@";
}

std::string RandomCodes::operand(std::size_t operators) {
  const std::string text = expression(operators);
  return oneIn(5) ? text : "(" + text + ")";
}

std::string RandomCodes::expression(std::size_t operators) {
  if (operators == 0) return atom();
  switch (below(12)) {
    case 0:
    case 1:
    case 2: return function() + operand(operators - 1);
    case 3:
      if (is_arithmetic_) return operand(operators - 1) + "\\" + atom();
      return operand(operators - 1) + (oneIn(20) ? "#1" : "#0");
    case 4:
      if (oneIn(3))
        return std::string(1, "fghtx"[below(5)]) + "(" + expression(operators - 1) + ")";
      if (is_arithmetic_) return operand(operators - 1) + "/" + operand(0);
      return operand(operators - 1) + "^" + (oneIn(2) ? "2" : oneIn(2) ? "3" : "0,5");
    case 5: return "(" + expression(operators) + ")";
    case 6: return "-" + expression(operators - 1);
    default: {
      constexpr std::string_view kOperators = "++--**//\\^";
      const std::size_t left = below(operators);
      const std::string first = left == 0 ? atom() : operand(left);
      return first + kOperators[below(kOperators.size() - (is_arithmetic_ ? 1 : 0))] +
             (left + 1 == operators ? atom() : operand(operators - 1 - left));
    }
  }
}

std::string RandomCodes::damaged(std::string code) {
  const std::string_view letters =
      is_arithmetic_ ? "+-\\/*()xtpafz \xB1" : "+-\\/*@^#()xtpeafz019,. E\xB1";
  for (std::size_t i = below(3) + 1; i > 0; --i) {
    const std::size_t at = below(code.size() + 1);
    if (is_arithmetic_ || oneIn(2))
      code.insert(at, 1, letters[below(letters.size())]);
    else if (at < code.size())
      code.erase(at, 1);
  }
  return code;
}

double RandomCodes::number() {
  constexpr std::array<double, 20> kEdges = {0,
                                             -0.0,
                                             1,
                                             -1,
                                             0.5,
                                             DBL_MAX,
                                             -DBL_MAX,
                                             DBL_MIN,
                                             5e-324,
                                             1.797693134862314e308,
                                             HUGE_VAL,
                                             std::numeric_limits<double>::quiet_NaN(),
                                             1e15,
                                             999999999999999.5,
                                             123456789012345.5,
                                             2147483647.5,
                                             170,
                                             171,
                                             709.8,
                                             -1e-5};
  if (oneIn(12)) return kEdges[below(kEdges.size())];
  if (oneIn(12)) return std::bit_cast<double>(random_());
  if (oneIn(3)) return static_cast<double>(below(41)) - 20;
  return std::uniform_real_distribution<double>(-20, 20)(random_);
}

}  // namespace zel::test
