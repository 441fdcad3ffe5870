// The elementary functions beside MPFR, bit for bit: one value at a time, in the lanes of each
// instruction set, and without the first stage. scripts/numbers.sh has it done with many more.

#include <array>
#include <bit>
#include <cmath>
#include <cstdlib>
#include <string>

#include <gtest/gtest.h>

#include "numbers/elementary/elementary.h"
#include "numbers/elementary/lanes_under_test.h"
#include "numbers/elementary/mpfr_oracle.h"
#include "numbers/elementary/random_arguments.h"
#include "numbers/elementary/second_stage.h"

namespace zel::test {
namespace {

using Values = std::array<double, kLanesUnderTest>;

std::uint64_t fromEnvironment(const char* name, std::uint64_t otherwise) {
  const char* const value = std::getenv(name);
  return value ? std::strtoull(value, nullptr, 10) : otherwise;
}

std::uint64_t count() { return fromEnvironment("ZEL_NUMBERS_COUNT", 100'000); }
std::uint64_t seed() { return fromEnvironment("ZEL_NUMBERS_SEED", 1); }
/// The second stage takes microseconds: one in so many.
constexpr int kForced = 4;

bool isSame(double a, double b) {
  return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b) ||
         (std::isnan(a) && std::isnan(b));
}

std::vector<InstructionSet> sets() {
  std::vector<InstructionSet> result = {InstructionSet::baseline};
  if (bestInstructionSet() != InstructionSet::baseline) result.push_back(InstructionSet::v3);
  if (bestInstructionSet() == InstructionSet::v4) result.push_back(InstructionSet::v4);
  return result;
}

double valueOf(Elementary function, double x) {
  switch (function) {
    case Elementary::sine: return sine(x);
    case Elementary::cosine: return cosine(x);
    case Elementary::tangent: return tangent(x);
    case Elementary::arc_tangent: return arcTangent(x);
    case Elementary::exponential: return exponential(x);
    case Elementary::natural_logarithm: return naturalLogarithm(x);
    default: return decimalLogarithm(x);
  }
}

/// Where the second stage takes an argument: a finite value that is neither 0 nor next to it.
bool hasWideValue(Elementary function, double x, double exact) {
  const bool is_in_range = function == Elementary::arc_tangent   ? std::fabs(x) < 0x1p64
                           : function == Elementary::exponential ? std::fabs(x) < 746
                                                                 : true;
  return is_in_range && x != 0 && std::isfinite(exact) && exact != 0;
}

class NearestDouble : public ::testing::TestWithParam<Elementary> {};

TEST_P(NearestDouble, IsWhatAFunctionGives) {
  const Elementary function = GetParam();
  RandomArguments arguments(seed());
  for (std::uint64_t done = 0; done < count(); done += kLanesUnderTest) {
    Values xs;
    Values exact;
    for (std::size_t i = 0; i < xs.size(); ++i) {
      xs[i] = arguments.argumentOf(function);
      exact[i] = nearestByMpfr(function, xs[i]);
      ASSERT_TRUE(isSame(valueOf(function, xs[i]), exact[i])) << std::hexfloat << xs[i];
    }
    for (const InstructionSet set : sets()) {
      Values values;
      sweep(set, function, xs, values);
      for (std::size_t i = 0; i < xs.size(); ++i)
        ASSERT_TRUE(isSame(values[i], exact[i]))
            << std::hexfloat << xs[i] << " in the lanes of " << static_cast<int>(set);
    }
    for (std::size_t i = 0; i < xs.size(); i += kForced) {
      if (!hasWideValue(function, xs[i], exact[i])) continue;
      ASSERT_TRUE(isSame(wideValue(function, xs[i]), exact[i])) << std::hexfloat << xs[i];
      ASSERT_TRUE(isSame(settle(function, xs[i]), exact[i])) << std::hexfloat << xs[i];
    }
  }
}

std::string nameOf(const ::testing::TestParamInfo<Elementary>& info) {
  constexpr std::array<const char*, 7> kNames = {
      "Sine",        "Cosine",           "Tangent",         "ArcTangent",
      "Exponential", "NaturalLogarithm", "DecimalLogarithm"};
  return kNames.at(static_cast<std::size_t>(info.param));
}

INSTANTIATE_TEST_SUITE_P(Of, NearestDouble,
                         ::testing::Values(Elementary::sine, Elementary::cosine,
                                           Elementary::tangent, Elementary::arc_tangent,
                                           Elementary::exponential, Elementary::natural_logarithm,
                                           Elementary::decimal_logarithm),
                         nameOf);

TEST(NearestDoubleOfAPower, IsWhatPowerGives) {
  RandomArguments arguments(seed());
  for (std::uint64_t done = 0; done < count(); done += kLanesUnderTest) {
    Values xs;
    Values ys;
    Values exact;
    for (std::size_t i = 0; i < xs.size(); ++i) {
      const auto [x, y] = arguments.argumentsOfPower();
      xs[i] = x;
      ys[i] = y;
      exact[i] = nearestPowerByMpfr(x, y);
      ASSERT_TRUE(isSame(power(x, y), exact[i])) << std::hexfloat << x << " ^ " << y;
    }
    for (const InstructionSet set : sets()) {
      Values values;
      sweepPower(set, xs, ys, values);
      for (std::size_t i = 0; i < xs.size(); ++i)
        ASSERT_TRUE(isSame(values[i], exact[i])) << std::hexfloat << xs[i] << " ^ " << ys[i]
                                                 << " in the lanes of " << static_cast<int>(set);
    }
    for (std::size_t i = 0; i < xs.size(); i += kForced) {
      if (xs[i] == 0 || std::isnan(exact[i])) continue;
      ASSERT_TRUE(isSame(widePower(xs[i], ys[i]), std::fabs(exact[i])))
          << std::hexfloat << xs[i] << " ^ " << ys[i];
    }
  }
}

TEST(NearestDoubleOfAPower, IsWhatCubesGive) {
  RandomArguments arguments(seed());
  for (std::uint64_t done = 0; done < count(); ++done) {
    const double x = arguments.argumentsOfPower().x;
    const Candidate candidate = cubeCandidate<PlainArithmetic>(x);
    ASSERT_TRUE(!candidate.isSure() || isSame(candidate.value, nearestPowerByMpfr(x, 3)))
        << std::hexfloat << x;
  }
}

}  // namespace
}  // namespace zel::test
