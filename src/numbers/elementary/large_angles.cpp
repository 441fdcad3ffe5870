// The reduction of Payne and Hanek: an angle is a whole number times a power of two, and of its
// product with 2/pi only the bits around the point matter. Those before them are whole turns, those
// behind them are too small; so a window of seven words of 2/pi is multiplied, exactly.

#include "numbers/elementary/large_angles.h"

#include <algorithm>
#include <cmath>

namespace zel {
namespace {

__extension__ using Uint128 = unsigned __int128;

/// The bits of 2/pi after the point.
constexpr std::array<std::uint64_t, 23> kTwoOverPi = {
    0xA2F9836E4E441529, 0xFC2757D1F534DDC0, 0xDB6295993C439041, 0xFE5163ABDEBBC561,
    0xB7246E3A424DD2E0, 0x06492EEA09D1921C, 0xFE1DEB1CB129A73E, 0xE88235F52EBB4484,
    0xE99C7026B45F7E41, 0x3991D639835339F4, 0x9C845F8BBDF9283B, 0x1FF897FFDE05980F,
    0xEF2F118B5A0A6D1F, 0x6D367ECF27CB09B7, 0x4F463F669E5FEA2D, 0x7527BAC7EBE5F17B,
    0x3D0739F78A5292EA, 0x6BFB5FB11F8D5D08, 0x56033046FC7B6BAB, 0xF0CFBC209AF4361D,
    0xA9E391615EE61B08, 0x6599855F14A06840, 0x8DFFD8804D732731};

constexpr std::size_t kWindow = 7;
using Product = std::array<std::uint64_t, kWindow + 1>;

/// So many words of 2/pi, from the first one on, times a whole number.
Product timesTwoOverPi(std::uint64_t whole, std::size_t first) {
  Product product{};
  Uint128 carry = 0;
  for (std::size_t i = kWindow; i-- > 0;) {
    carry += Uint128{whole} * kTwoOverPi[first + i];
    product[i + 1] = static_cast<std::uint64_t>(carry);
    carry >>= 64;
  }
  product[0] = static_cast<std::uint64_t>(carry);
  return product;
}

/// 64 bits from a position on; zeros beyond the end.
template <class Words>
std::uint64_t bitsAt(const Words& words, std::size_t position) {
  const auto word = [&](std::size_t i) { return i < words.size() ? words[i] : 0; };
  const std::size_t part = position % 64;
  const std::uint64_t first = word(position / 64) << part;
  return part == 0 ? first : first | word(position / 64 + 1) >> (64 - part);
}

double upperHalf(std::uint64_t word) { return static_cast<double>(word >> 32) * 0x1p-32; }
double lowerHalf(std::uint64_t word) { return static_cast<double>(word & 0xFFFFFFFF) * 0x1p-64; }

}  // namespace

TurnBits turnBits(double radians) {
  // The angle is a whole number of 53 bits times 2^exponent. The words of 2/pi before the first one
  // give whole turns.
  int exponent = 0;
  const double fraction = std::frexp(radians, &exponent);
  exponent -= 53;
  const int first = std::max(exponent - 2, 0) / 64;
  const Product product = timesTwoOverPi(static_cast<std::uint64_t>(std::ldexp(fraction, 53)),
                                         static_cast<std::size_t>(first));
  const auto start = static_cast<std::size_t>(62 + exponent - first * 64);
  TurnBits bits;
  for (std::size_t i = 0; i < bits.size(); ++i) bits[i] = bitsAt(product, start + 64 * i);
  return bits;
}

ReducedAngle reduceLargeAngle(double radians) {
  const TurnBits bits = turnBits(radians);
  // Nine bits are the steps; what follows is the rest in steps, below 0 if its first bit is set.
  const std::uint64_t first = bitsAt(bits, 9);
  const bool is_below = first >> 63 != 0;
  DoubleDouble rest = {upperHalf(first) - (is_below ? 1 : 0), 0};
  rest = rest + DoubleDouble{lowerHalf(first), 0};
  const std::uint64_t second = bitsAt(bits, 73);
  rest = rest + DoubleDouble{upperHalf(second) * 0x1p-64, 0};
  rest = rest + DoubleDouble{lowerHalf(second) * 0x1p-64, 0};
  rest = rest + DoubleDouble{upperHalf(bitsAt(bits, 137)) * 0x1p-128, 0};
  const std::size_t steps = static_cast<std::size_t>(bits[0] >> 55) + (is_below ? 1 : 0);
  return {steps % kStepsOfCircle, multiply(rest, {kPiInTwo.high / 256, kPiInTwo.low / 256}), 0};
}

}  // namespace zel
