// Schoolbook arithmetic on four limbs. Results are cut off, not rounded: the second stage has bits
// to spare, and only the last step, to the nearest double, rounds.

#include "numbers/elementary/wide.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace zel {
namespace {

constexpr int kDoubleBits = 53;
constexpr int kLowestDoubleExponent = -1073;  // 0.1 * 2^-1073 is the smallest subnormal

__extension__ using Uint128 = unsigned __int128;

constexpr std::uint64_t upper(Uint128 value) { return static_cast<std::uint64_t>(value >> 64); }
constexpr std::uint64_t lower(Uint128 value) { return static_cast<std::uint64_t>(value); }
constexpr Uint128 joined(std::uint64_t high, std::uint64_t low) {
  return (Uint128{high} << 64) | low;
}

/// The limbs moved towards the lower end, 0 <= bits.
Wide::Limbs moved(const Wide::Limbs& limbs, int bits) {
  Wide::Limbs result{};
  const auto whole = static_cast<std::size_t>(bits / Wide::kLimbBits);
  const int part = bits % Wide::kLimbBits;
  for (std::size_t i = whole; i < Wide::kLimbs; ++i) {
    const std::uint64_t above = i > whole ? limbs[i - whole - 1] : 0;
    result[i] = lower(joined(above, limbs[i - whole]) >> part);
  }
  return result;
}

}  // namespace

Wide::Wide(double value) : is_negative_(std::signbit(value)) {
  limbs_[0] =
      static_cast<std::uint64_t>(std::ldexp(std::frexp(std::fabs(value), &exponent_), kLimbBits));
}

Wide::Wide(const Limbs& limbs, int exponent) : limbs_(limbs), exponent_(exponent) { normalise(); }

void Wide::normalise() {
  if (limbs_[0] >> (kLimbBits - 1) != 0) return;
  for (std::size_t zeros = 1; limbs_[0] == 0; ++zeros) {
    if (zeros == kLimbs) {
      *this = {};
      return;
    }
    std::shift_left(limbs_.begin(), limbs_.end(), 1);
    limbs_.back() = 0;
    exponent_ -= kLimbBits;
  }
  const int part = std::countl_zero(limbs_[0]);
  if (part == 0) return;
  for (std::size_t i = 0; i + 1 < kLimbs; ++i)
    limbs_[i] = upper(joined(limbs_[i], limbs_[i + 1]) << part);
  limbs_.back() <<= part;
  exponent_ -= part;
}

double Wide::nearest() const {
  if (isZero()) return 0;
  const double sign = is_negative_ ? -1 : 1;
  const int bits = std::min(kDoubleBits, exponent_ - kLowestDoubleExponent + 1);
  if (bits < 0) return sign * 0;
  // The bits that are kept, then the bit after them, then whether there are more.
  const Limbs kept = moved(limbs_, kBits - bits - 1);
  std::uint64_t whole = kept[kLimbs - 1];
  const bool is_half_or_more = whole % 2 != 0;
  whole /= 2;
  Wide rest = *this;
  rest.is_negative_ = false;
  const Wide tie = (Wide(static_cast<double>(whole)) + Wide(0.5)).scaled(exponent_ - bits);
  const bool is_tie = is_half_or_more && (rest - tie).isZero();
  if (is_half_or_more && (!is_tie || whole % 2 != 0)) ++whole;
  return sign * std::ldexp(static_cast<double>(whole), exponent_ - bits);
}

Wide Wide::operator-() const {
  Wide result = *this;
  result.is_negative_ = !is_negative_;
  return result;
}

Wide Wide::scaled(int exponent) const {
  Wide result = *this;
  result.exponent_ += exponent;
  return result;
}

bool Wide::isMagnitudeBelow(const Wide& other) const {
  if (isZero() || other.isZero()) return !other.isZero();
  if (exponent_ != other.exponent_) return exponent_ < other.exponent_;
  return limbs_ < other.limbs_;
}

Wide Wide::shiftedRight(int bits) const {
  Wide result = *this;
  result.limbs_ = bits < kBits ? moved(limbs_, bits) : Limbs{};
  result.exponent_ += bits;
  return result;
}

Wide Wide::withMagnitudesAdded(const Wide& smaller) const {
  Wide sum = *this;
  const Wide aligned = smaller.shiftedRight(exponent_ - smaller.exponent_);
  Uint128 carry = 0;
  for (std::size_t i = kLimbs; i-- > 0;) {
    carry += Uint128{limbs_[i]} + aligned.limbs_[i];
    sum.limbs_[i] = lower(carry);
    carry >>= kLimbBits;
  }
  if (carry != 0) {
    sum = sum.shiftedRight(1);
    sum.limbs_[0] |= std::uint64_t{1} << (kLimbBits - 1);
  }
  return sum;
}

Wide Wide::withMagnitudesSubtracted(const Wide& smaller) const {
  Wide difference = *this;
  const Wide aligned = smaller.shiftedRight(exponent_ - smaller.exponent_);
  std::uint64_t borrow = 0;
  for (std::size_t i = kLimbs; i-- > 0;) {
    const Uint128 limb = Uint128{limbs_[i]} - aligned.limbs_[i] - borrow;
    difference.limbs_[i] = lower(limb);
    borrow = upper(limb) & 1;
  }
  difference.normalise();
  return difference;
}

Wide Wide::operator+(const Wide& other) const {
  if (isMagnitudeBelow(other)) return other + *this;
  if (other.isZero()) return *this;
  return is_negative_ == other.is_negative_ ? withMagnitudesAdded(other)
                                            : withMagnitudesSubtracted(other);
}

Wide Wide::operator*(const Wide& other) const {
  if (isZero() || other.isZero()) return {};
  // What lies wholly beyond the last limb is left out.
  std::array<std::uint64_t, kLimbs + 1> product{};
#pragma GCC unroll 4
  for (std::size_t i = kLimbs; i-- > 0;) {
    Uint128 carry = 0;
#pragma GCC unroll 4
    for (std::size_t j = kLimbs - i; j-- > 0;) {
      carry += Uint128{limbs_[i]} * other.limbs_[j] + product[i + j + 1];
      product[i + j + 1] = lower(carry);
      carry >>= kLimbBits;
    }
    product[i] = lower(carry);
  }
  Wide result;
  std::copy_n(product.begin(), kLimbs, result.limbs_.begin());
  result.exponent_ = exponent_ + other.exponent_;
  result.is_negative_ = is_negative_ != other.is_negative_;
  result.normalise();
  return result;
}

Wide Wide::operator/(const Wide& other) const {
  const Wide magnitude = other.scaled(-other.exponent_);  // from 1/2 to 1
  Wide inverse(1 / magnitude.nearest());
  for (int bits = kDoubleBits - 2; bits < kBits; bits *= 2)
    inverse = inverse + inverse * (Wide(1) - magnitude * inverse);
  return *this * inverse.scaled(-other.exponent_);
}

}  // namespace zel
