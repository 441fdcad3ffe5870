// The plan and the sweeps beside the reference, bit for bit: values, flags, messages, and the parse
// cache afterwards. ZEL_ORACLE_COUNT and ZEL_ORACLE_SEED make it longer and different.

#include <array>
#include <bit>
#include <cmath>
#include <cstdlib>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "engine/engine.h"
#include "engine/random_codes.h"
#include "engine/reference/reference_engine.h"
#include "support/language_guard.h"

namespace zel::test {
namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr std::size_t kUsualPairs = 60'000;
constexpr std::size_t kSkippedFormulas = 41;
#else
constexpr std::size_t kUsualPairs = 1'000'000;
constexpr std::size_t kSkippedFormulas = 1;
#endif

std::size_t fromEnvironment(const char* name, std::size_t otherwise) {
  const char* const text = std::getenv(name);
  return text != nullptr ? std::strtoull(text, nullptr, 10) : otherwise;
}

std::string bits(double value) {
  return std::to_string(value) + " = " + std::to_string(std::bit_cast<std::uint64_t>(value));
}

/// An engine and the reference, which get the same things to do.
class Pair {
 public:
  std::string& graphCode(char letter) { return codes_[static_cast<std::size_t>(letter - 'a')]; }
  std::size_t evaluations() const { return evaluations_; }

  void setT(double value) {
    engine_.SetT(value);
    reference_.SetT(value);
  }
  void setP(double value) {
    engine_.SetP(value);
    reference_.SetP(value);
  }

  void evaluate(double x, const std::string& code) {
    double value = 7;
    std::string message = "none";
    const bool defined = engine_.Evaluate(x, value, code, message);
    double expected = 7;
    std::string expected_message = "none";
    ASSERT_EQ(defined, reference_.Evaluate(x, expected, code, expected_message)) << at(x, code);
    ASSERT_EQ(bits(value), bits(expected)) << at(x, code);
    ASSERT_EQ(message, expected_message) << at(x, code);
    ++evaluations_;
    compareCaches(at(x, code));
  }

  void sweep(const std::vector<double>& xs, const std::string& code) {
    std::vector<double> values(xs.size());
    engine_.EvaluateSweep(code, xs, values);
    for (std::size_t i = 0; i < xs.size(); ++i) {
      const auto expected = expectedValue(xs[i], code);
      ASSERT_TRUE(same(values[i], expected)) << at(xs[i], code) << " in a sweep: " << values[i];
    }
    compareCaches("after a sweep of " + code);
  }

  void curve(const std::vector<double>& ts, const std::string& code_x, const std::string& code_y) {
    std::vector<double> xs(ts.size());
    std::vector<double> ys(ts.size());
    runCurve(ts, code_x, code_y, xs, ys);
    for (std::size_t i = 0; i < ts.size(); ++i) {
      reference_.SetT(ts[i]);
      ASSERT_TRUE(same(xs[i], expectedValue(ts[i], code_x))) << at(ts[i], code_x) << " as x(t)";
      ASSERT_TRUE(same(ys[i], expectedValue(ts[i], code_y))) << at(ts[i], code_y) << " as y(t)";
    }
    compareCaches("after the curve " + code_x + " ; " + code_y);
  }

 private:
  static std::string at(double x, const std::string& code) { return code + " at " + bits(x); }

  void runCurve(std::span<const double> ts, const std::string& code_x, const std::string& code_y,
                std::span<double> xs, std::span<double> ys) {
    for (std::size_t done = 0; done < ts.size();)
      done +=
          engine_.CurvePart(code_x, code_y, ts.subspan(done), xs.subspan(done), ys.subspan(done));
  }

  static bool same(double value, double expected) {
    return std::isnan(expected)
               ? std::isnan(value)
               : std::bit_cast<std::uint64_t>(value) == std::bit_cast<std::uint64_t>(expected);
  }

  double expectedValue(double x, const std::string& code) {
    double value = std::nan("");
    std::string message;
    reference_.Evaluate(x, value, code, message);
    ++evaluations_;
    return value;
  }

  void compareCaches(const std::string& when) {
    const ParseCache& cache = engine_.parseCache();
    const ParseCache& expected = std::as_const(reference_).parseCache();
    ASSERT_EQ(cache.code(), expected.code()) << when;
    ASSERT_EQ(cache.position(), expected.position()) << when;
    for (std::size_t i = 1; i <= ParseCache::kSlots; ++i)
      ASSERT_EQ(cache.slot(i), expected.slot(i)) << "slot " << i << " " << when;
  }

  std::array<std::string, 26> codes_;
  Engine engine_{[this](char letter) -> std::string_view { return graphCode(letter); }};
  ReferenceEngine reference_{[this](char letter) -> std::string_view { return graphCode(letter); }};
  std::size_t evaluations_ = 0;
};

/// All codes of so many operators over these atoms, each operand in parentheses where it is no
/// atom.
std::vector<std::string> codesOf(std::size_t operators) {
  if (operators == 0) return {"x", "2", "0,3"};
  std::vector<std::string> codes;
  const auto wrapped = [](std::size_t count) {
    auto operands = codesOf(count);
    for (std::string& operand : operands)
      if (count > 0) operand = "(" + operand + ")";
    return operands;
  };
  for (const std::string& operand : wrapped(operators - 1)) {
    for (int function = 0; function < 18; ++function)
      codes.push_back(std::to_string(function) + "@" + operand);
    codes.push_back(operand + "#0");
  }
  for (std::size_t left = 0; left < operators; ++left)
    for (const std::string& first : wrapped(left))
      for (const std::string& second : wrapped(operators - 1 - left))
        for (const char op : std::string_view("+-\\/*^")) codes.push_back(first + op + second);
  return codes;
}

TEST(Oracle, AgreesOnAllFormulasOfUpToThreeOperators) {
  const std::vector<double> xs = {-1.5, 0, 4, 0.1};
  auto pair = std::make_unique<Pair>();
  for (std::size_t operators = 0; operators <= 3; ++operators) {
    const auto codes = codesOf(operators);
    const std::size_t step = operators < 3 ? 1 : kSkippedFormulas;
    for (std::size_t i = 0; i < codes.size(); i += step) {
      pair->evaluate(2.5, codes[i]);
      pair->sweep(xs, codes[i]);
      if (HasFatalFailure()) return;
    }
  }
}

/// A while with one engine: a few codes, evaluated in all ways, graphs and values changing.
class Session {
 public:
  explicit Session(std::uint64_t seed) : codes_(seed) {
    const bool faults = codes_.oneIn(3);
    for (std::size_t i = codes_.below(faults ? 2 : 4) + 1; i > 0; --i)
      pool_.push_back(faults ? codes_.faultingCode() : codes_.code());
    for (const char letter : {'f', 'g', 'h'}) pair_.graphCode(letter) = codes_.code();
  }

  std::size_t run() {
    for (int step = 0; step < 60 && !::testing::Test::HasFatalFailure(); ++step) doSomething();
    return pair_.evaluations();
  }

 private:
  void doSomething() {
    switch (codes_.below(24)) {
      case 0: pair_.setT(finite()); break;
      case 1: pair_.setP(finite()); break;
      case 2:
        if (codes_.oneIn(2)) pair_.graphCode("fgh"[codes_.below(3)]) = codes_.code();
        break;
      case 3:
      case 4:
      case 5: pair_.sweep(numbers(), code()); break;
      case 6: pair_.curve(finiteNumbers(), code(), code()); break;
      case 7: pair_.evaluate(1, codes_.code()); break;
      default: pair_.evaluate(codes_.number(), code()); break;
    }
  }

  const std::string& code() {
    if (codes_.oneIn(3)) last_ = codes_.below(pool_.size());
    return pool_[last_];
  }

  double finite() {
    const double number = codes_.number();
    return std::isfinite(number) ? number : 1;
  }

  /// Mostly samples side by side, now and then anything.
  std::vector<double> numbers() {
    std::vector<double> xs;
    const std::size_t count = codes_.oneIn(4) ? codes_.below(700) : codes_.below(60);
    const double step = std::ldexp(finite(), -static_cast<int>(codes_.below(12)));
    double x = finite();
    for (; xs.size() < count; x += step) xs.push_back(codes_.oneIn(40) ? codes_.number() : x);
    return xs;
  }

  std::vector<double> finiteNumbers() {
    auto xs = numbers();
    for (double& x : xs)
      if (!std::isfinite(x)) x = 1;
    return xs;
  }

  RandomCodes codes_;
  std::vector<std::string> pool_;
  std::size_t last_ = 0;
  Pair pair_;
};

TEST(Oracle, AgreesOnRandomSequences) {
  const std::size_t pairs = fromEnvironment("ZEL_ORACLE_COUNT", kUsualPairs);
  std::uint64_t seed = fromEnvironment("ZEL_ORACLE_SEED", 1) << 40;
  LanguageGuard language("ES");
  for (std::size_t done = 0; done < pairs; ++seed) {
    SetCurrentLanguage(seed % 2 == 0 ? "ES" : "EN");
    SCOPED_TRACE("session " + std::to_string(seed));
    done += Session(seed).run() + 1;
    if (HasFatalFailure()) return;
  }
}

}  // namespace
}  // namespace zel::test
