#pragma once

#include <bit>
#include <cstdint>

#include "numbers/elementary/logarithm_steps.h"

/// The first stage of powers: e^(y ln|x|), with the sign of an odd power of a negative base.
namespace zel {

template <class Arithmetic>
ZEL_ALWAYS_INLINE Candidate powerCandidate(double x, double y) {
  const double base = std::fabs(x);
  const DoubleDouble logarithm = fineLogarithmOf<Arithmetic>(base);
  const DoubleDouble product = exactProduct<Arithmetic>(y, logarithm.high);
  const double low = multiplyAdd<Arithmetic>(y, logarithm.low, product.low);
  const ScaledExponential result = exponentialOf<Arithmetic>(product.high, low);
  const double magnitude = std::fabs(product.high);
  const Candidate candidate = rounded<Arithmetic>(
      result.high, result.low, result.high,
      multiplyAdd<Arithmetic>(magnitude, kFineLogarithmError, kExponentialError));
  const double shifted = y + kWholeNumbers;
  const bool is_whole = (shifted - kWholeNumbers == y) & (std::fabs(y) < 0x1p51);
  const auto shifted_bits = std::bit_cast<std::uint64_t>(shifted);
  const std::uint64_t sign = std::bit_cast<std::uint64_t>(x) & (shifted_bits << 63);
  const double scale = withSign(result.scale, sign);
  const bool is_in_range =
      (magnitude <= kLargestExponent) & isPositiveNormal(base) & ((x > 0) | is_whole);
  return Candidate{candidate.value * scale, candidate.other * scale}.sureOnlyIf(is_in_range);
}

/// x^3. The square of a number needs no steps: x * x is the nearest double already.
template <class Arithmetic>
ZEL_ALWAYS_INLINE Candidate cubeCandidate(double x) {
  const DoubleDouble square = exactProduct<Arithmetic>(x, x);
  const DoubleDouble product = exactProduct<Arithmetic>(square.high, x);
  const double low = multiplyAdd<Arithmetic>(square.low, x, product.low);
  const double magnitude = std::fabs(x);
  return rounded<Arithmetic>(product.high, low, std::fabs(product.high), 0x1p-100)
      .sureOnlyIf((magnitude >= 0x1p-300) & (magnitude <= 0x1p300));
}

}  // namespace zel
