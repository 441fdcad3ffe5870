// The elementary functions beside MPFR, to the last bit: one value at a time, in the lanes of each
// instruction set, and by the second stage alone. An input is records of a function and one or two
// arguments as they lie in memory.
#include <array>
#include <vector>

#include "fuzz.h"
#include "numbers/elementary/elementary.h"
#include "numbers/elementary/lanes_under_test.h"
#include "numbers/elementary/mpfr_oracle.h"
#include "numbers/elementary/second_stage.h"

namespace zel::fuzz {
namespace {

constexpr int kFunctions = 7;
constexpr int kMostRecords = 4;  // MPFR is what takes the time

using Lanes = std::array<double, test::kLanesUnderTest>;

std::string bits(double value) {
  char text[64];
  std::snprintf(text, sizeof text, "%a", value);
  return text;
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

/// All but the one for machines that have no more than this one.
const std::vector<InstructionSet>& instructionSets() {
  static const std::vector<InstructionSet> sets = [] {
    std::vector<InstructionSet> result = {InstructionSet::baseline};
    if (bestInstructionSet() != InstructionSet::baseline) result.push_back(InstructionSet::v3);
    return result;
  }();
  return sets;
}

/// Where the second stage takes an argument: a finite value that is neither 0 nor next to it.
bool hasWideValue(Elementary function, double x, double exact) {
  const bool is_in_range = function == Elementary::arc_tangent   ? std::fabs(x) < 0x1p64
                           : function == Elementary::exponential ? std::fabs(x) < 746
                                                                 : true;
  return is_in_range && std::isfinite(x) && x != 0 && std::isfinite(exact) && exact != 0;
}

void checkFunction(Elementary function, double x) {
  const double exact = test::nearestByMpfr(function, x);
  require(isSame(valueOf(function, x), exact), "the nearest double", bits(x));
  Lanes xs;
  Lanes values;
  xs.fill(1);
  xs[5] = x;
  for (const InstructionSet set : instructionSets()) {
    test::sweep(set, function, xs, values);
    require(isSame(values[5], exact), "the nearest double in lanes", bits(x));
  }
  if (hasWideValue(function, x, exact))
    require(isSame(wideValue(function, x), exact), "the second stage", bits(x));
}

void checkPower(double x, double y) {
  const double exact = test::nearestPowerByMpfr(x, y);
  const std::string about = bits(x) + " ^ " + bits(y);
  require(isSame(power(x, y), exact), "the nearest double of a power", about);
  Lanes xs;
  Lanes ys;
  Lanes values;
  xs.fill(1);
  ys.fill(1);
  xs[5] = x;
  ys[5] = y;
  for (const InstructionSet set : instructionSets()) {
    test::sweepPower(set, xs, ys, values);
    require(isSame(values[5], exact), "the nearest double of a power in lanes", about);
  }
  if (std::isfinite(x) && x != 0 && std::isfinite(y) && !std::isnan(exact))
    require(isSame(widePower(x, y), std::fabs(exact)), "the second stage of a power", about);
}

}  // namespace
}  // namespace zel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace zel::fuzz;
  Input input(data, size);
  for (int record = 0; record < kMostRecords && !input.isEmpty(); ++record) {
    const int function = input.byte() % (kFunctions + 1);
    const double x = input.rawNumber();
    if (function < kFunctions)
      checkFunction(static_cast<zel::Elementary>(function), x);
    else
      checkPower(x, input.rawNumber());
  }
  return 0;
}
