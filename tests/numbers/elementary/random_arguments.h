#pragma once

#include <cstdint>
#include <random>

#include "numbers/elementary/functions.h"

namespace zel::test {

struct PowerArguments {
  double x;
  double y;
};

/// Arguments where something can go wrong: of all binades, of everyday size, near the zeros and
/// poles, with results near the ties of 15 digits, near overflow and underflow.
class RandomArguments {
 public:
  explicit RandomArguments(std::uint64_t seed) : random_(seed) {}

  double argumentOf(Elementary function);
  PowerArguments argumentsOfPower();

 private:
  double between(double low, double high);
  double whole(double low, double high);
  double ofAnyBinade();
  double angle();
  double ofAnyExponential();
  double positive();
  /// A number whose value is near a tie of 15 digits.
  double nearTie(Elementary function);

  std::mt19937_64 random_;
};

}  // namespace zel::test
