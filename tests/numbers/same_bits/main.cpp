// Prints a hundred thousand results of the elementary functions: bits of the arguments, of the
// value of a call and of that of a lane. The arguments are made by whole numbers and divisions, so
// that they are the same everywhere. tests/numbers/same_bits_test.sh compares what is printed.

#include <array>
#include <bit>
#include <cinttypes>
#include <cstdint>
#include <cstdio>

#include "numbers/elementary/elementary.h"
#include "numbers/elementary/lanes_under_test.h"

namespace zel::test {
namespace {

constexpr int kChunks = 12'500 / kLanesUnderTest + 1;
using Values = std::array<double, kLanesUnderTest>;

/// Steele and others' SplitMix.
class Random {
 public:
  std::uint64_t next() {
    std::uint64_t bits = state_ += 0x9E3779B97F4A7C15;
    bits = (bits ^ bits >> 30) * 0xBF58476D1CE4E5B9;
    bits = (bits ^ bits >> 27) * 0x94D049BB133111EB;
    return bits ^ bits >> 31;
  }
  /// Of everyday size mostly, otherwise anything at all.
  double argument() {
    const std::uint64_t bits = next();
    if (bits % 4 == 0) return std::bit_cast<double>(next());
    return (static_cast<double>(bits >> 32) - 0x1p31) / (bits % 4 == 1 ? 1e6 : 0x1p28);
  }

 private:
  std::uint64_t state_ = 1;
};

/// Whichever NaN it is.
std::uint64_t bitsOf(double value) {
  return value == value ? std::bit_cast<std::uint64_t>(value) : 0x7FF8000000000000;
}

void print(const Values& xs, const Values& ys, const Values& calls, const Values& lanes) {
  for (std::size_t i = 0; i < xs.size(); ++i)
    std::printf("%016" PRIx64 " %016" PRIx64 " %016" PRIx64 " %016" PRIx64 "\n", bitsOf(xs[i]),
                bitsOf(ys[i]), bitsOf(calls[i]), bitsOf(lanes[i]));
}

void printFunction(Elementary function, double (*call)(double), Random& random) {
  for (int chunk = 0; chunk < kChunks; ++chunk) {
    Values xs;
    Values calls;
    Values lanes;
    for (std::size_t i = 0; i < xs.size(); ++i) calls[i] = call(xs[i] = random.argument());
    sweep(bestInstructionSet(), function, xs, lanes);
    print(xs, {}, calls, lanes);
  }
}

void printPowers(Random& random) {
  for (int chunk = 0; chunk < kChunks; ++chunk) {
    Values xs;
    Values ys;
    Values calls;
    Values lanes;
    for (std::size_t i = 0; i < xs.size(); ++i)
      calls[i] = power(xs[i] = random.argument(), ys[i] = random.argument());
    sweepPower(bestInstructionSet(), xs, ys, lanes);
    print(xs, ys, calls, lanes);
  }
}

}  // namespace
}  // namespace zel::test

int main() {
  using enum zel::Elementary;
  zel::test::Random random;
  zel::test::printFunction(sine, zel::sine, random);
  zel::test::printFunction(cosine, zel::cosine, random);
  zel::test::printFunction(tangent, zel::tangent, random);
  zel::test::printFunction(arc_tangent, zel::arcTangent, random);
  zel::test::printFunction(exponential, zel::exponential, random);
  zel::test::printFunction(natural_logarithm, zel::naturalLogarithm, random);
  zel::test::printFunction(decimal_logarithm, zel::decimalLogarithm, random);
  zel::test::printPowers(random);
  return 0;
}
