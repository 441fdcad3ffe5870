// The plan and the sweeps beside the reference, bit for bit: values, flags, messages, and the parse
// cache afterwards. ZEL_ORACLE_COUNT and ZEL_ORACLE_SEED make it longer and different.

#include <cmath>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "engine/engine_pair.h"
#include "engine/random_codes.h"
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
  auto pair = std::make_unique<EnginePair>();
  for (std::size_t operators = 0; operators <= 3; ++operators) {
    const auto codes = codesOf(operators);
    const std::size_t step = operators < 3 ? 1 : kSkippedFormulas;
    for (std::size_t i = 0; i < codes.size(); i += step) {
      ASSERT_EQ(pair->evaluate(2.5, codes[i]), "");
      ASSERT_EQ(pair->sweep(xs, codes[i]), "");
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

  void run() {
    for (int step = 0; step < 60 && !::testing::Test::HasFatalFailure(); ++step)
      ASSERT_EQ(doSomething(), "");
  }

  std::size_t evaluations() const { return pair_.evaluations(); }

 private:
  /// What went apart by it.
  std::string doSomething() {
    switch (codes_.below(24)) {
      case 0: pair_.setT(finite()); return {};
      case 1: pair_.setP(finite()); return {};
      case 2:
        if (codes_.oneIn(2)) pair_.graphCode("fgh"[codes_.below(3)]) = codes_.code();
        return {};
      case 3:
      case 4:
      case 5: return pair_.sweep(numbers(), code());
      case 6: return pair_.curve(finiteNumbers(), code(), code());
      case 7: return pair_.evaluate(1, codes_.code());
      default: return pair_.evaluate(codes_.number(), code());
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
  EnginePair pair_;
};

TEST(Oracle, AgreesOnRandomSequences) {
  const std::size_t pairs = fromEnvironment("ZEL_ORACLE_COUNT", kUsualPairs);
  std::uint64_t seed = fromEnvironment("ZEL_ORACLE_SEED", 1) << 40;
  LanguageGuard language("ES");
  for (std::size_t done = 0; done < pairs; ++seed) {
    SetCurrentLanguage(seed % 2 == 0 ? "ES" : "EN");
    SCOPED_TRACE("session " + std::to_string(seed));
    Session session(seed);
    session.run();
    if (HasFatalFailure()) return;
    done += session.evaluations() + 1;
  }
}

}  // namespace
}  // namespace zel::test
