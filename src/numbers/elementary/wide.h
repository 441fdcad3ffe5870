#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace zel {

/// A binary floating-point number of 256 bits, for the few values that double-double arithmetic
/// leaves in doubt: 0.limbs * 2^exponent with the first bit set, or zero. There is no infinity, and
/// an exponent is never near the ends of int. The results of the operations below are cut off: they
/// are within 2^-252 of the exact ones, relative to the larger operand.
class Wide {
 public:
  static constexpr std::size_t kLimbs = 4;
  static constexpr int kLimbBits = 64;
  static constexpr int kBits = kLimbs * kLimbBits;
  using Limbs = std::array<std::uint64_t, kLimbs>;

  Wide() = default;
  /// Exact, for any finite value.
  explicit Wide(double value);
  /// 0.limbs * 2^exponent, most significant limb first.
  Wide(const Limbs& limbs, int exponent);

  bool isZero() const { return limbs_[0] == 0; }
  /// The nearest double, half to even, subnormal where it is small; an infinity beyond the largest.
  double nearest() const;

  Wide operator-() const;
  Wide operator+(const Wide& other) const;
  Wide operator-(const Wide& other) const { return *this + -other; }
  Wide operator*(const Wide& other) const;
  /// By way of the reciprocal; `other` is not zero.
  Wide operator/(const Wide& other) const;
  /// Times 2^exponent.
  Wide scaled(int exponent) const;

 private:
  Wide withMagnitudesAdded(const Wide& smaller) const;
  Wide withMagnitudesSubtracted(const Wide& smaller) const;
  bool isMagnitudeBelow(const Wide& other) const;
  Wide shiftedRight(int bits) const;
  void normalise();

  Limbs limbs_{};
  int exponent_ = 0;
  bool is_negative_ = false;
};

}  // namespace zel
