// Each elementary function beside the C library's, one value at a time and in sweeps. Seconds are
// those of one value.
#include <array>
#include <cmath>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include "benchmarks/rows/measure.h"
#include "benchmarks/rows/rows.h"
#include "numbers/elementary/elementary.h"
#include "numbers/elementary/lanes_under_test.h"

namespace zel::bench {
namespace {

using Function = double (*)(double);

struct FunctionRow {
  std::string_view name;
  Elementary function;
  Function ours;
  Function library;
  double low;  // the arguments are spread evenly from here
  double high;
};

constexpr std::array<FunctionRow, 7> kFunctionRows = {{
    {"sine", Elementary::sine, sine, std::sin, -10, 10},
    {"cosine", Elementary::cosine, cosine, std::cos, -10, 10},
    {"tangent", Elementary::tangent, tangent, std::tan, -10, 10},
    {"arc tangent", Elementary::arc_tangent, arcTangent, std::atan, -10, 10},
    {"exponential", Elementary::exponential, exponential, std::exp, -10, 10},
    {"natural logarithm", Elementary::natural_logarithm, naturalLogarithm, std::log, 0, 100},
    {"decimal logarithm", Elementary::decimal_logarithm, decimalLogarithm, std::log10, 0, 100},
}};

constexpr int kRounds = 101;
constexpr std::size_t kArguments = 16 * 1024;
constexpr double kExponent = 4.7;

std::vector<double> arguments(double low, double high) {
  std::mt19937_64 random(5);
  std::uniform_real_distribution<double> size(low, high);
  std::vector<double> xs(kArguments);
  for (double& x : xs) x = size(random);
  return xs;
}

/// Compares the values of both ways, and then their times.
template <class Ours, class Library>
void hold(std::string_view row, std::string_view name, const Ours& ours, const Library& library) {
  std::vector<double> values(kArguments);
  std::vector<double> others(kArguments);
  ours(values);
  library(others);
  for (std::size_t i = 0; i < kArguments; ++i)
    if (!(std::fabs(values[i] - others[i]) <= 1e-15 * std::fabs(others[i])))
      throw std::runtime_error(std::string(name) + " is another function than the library's");
  const SideBySide seconds = measureSideBySide(
      kRounds, [&] { ours(values); }, [&] { library(others); });
  constexpr auto kCount = static_cast<double>(kArguments);
  print(row, name, seconds.measured / kCount, seconds.beside / kCount);
}

auto oneByOne(Function function, const std::vector<double>& xs) {
  return [function, &xs](std::vector<double>& values) {
    for (std::size_t i = 0; i < xs.size(); ++i) values[i] = function(xs[i]);
  };
}

template <class Power>
auto powersOneByOne(const Power& power, const std::vector<double>& xs) {
  return [&power, &xs](std::vector<double>& values) {
    for (std::size_t i = 0; i < xs.size(); ++i) values[i] = power(xs[i], kExponent);
  };
}

const auto kLibraryPower = [](double x, double y) { return std::pow(x, y); };

}  // namespace

void functionsRow() {
  for (const FunctionRow& row : kFunctionRows) {
    const std::vector<double> xs = arguments(row.low, row.high);
    hold("functions", row.name, oneByOne(row.ours, xs), oneByOne(row.library, xs));
  }
  const std::vector<double> xs = arguments(0, 10);
  hold("functions", "power", powersOneByOne(power, xs), powersOneByOne(kLibraryPower, xs));
}

void functionSweepsRow() {
  const InstructionSet set = bestInstructionSet();
  for (const FunctionRow& row : kFunctionRows) {
    const std::vector<double> xs = arguments(row.low, row.high);
    hold(
        "function-sweeps", row.name,
        [&](std::vector<double>& values) { test::sweep(set, row.function, xs, values); },
        oneByOne(row.library, xs));
  }
  const std::vector<double> xs = arguments(0, 10);
  const std::vector<double> ys(kArguments, kExponent);
  hold(
      "function-sweeps", "power",
      [&](std::vector<double>& values) { test::sweepPower(set, xs, ys, values); },
      powersOneByOne(kLibraryPower, xs));
}

}  // namespace zel::bench
