#include "numbers/elementary/random_arguments.h"

#include <bit>
#include <cmath>

namespace zel::test {
namespace {

/// The angles of the engine's degrees are made with this one.
constexpr double kPiOf15Digits = 3.14159265358979;

/// An argument at which the function comes to about `value`.
double argumentFor(Elementary function, double value) {
  switch (function) {
    case Elementary::sine: return std::asin(value);
    case Elementary::cosine: return std::acos(value);
    case Elementary::tangent: return std::atan(value);
    case Elementary::arc_tangent: return std::tan(value);
    case Elementary::exponential: return std::log(value);
    case Elementary::natural_logarithm: return std::exp(value);
    default: return std::pow(10, value);
  }
}

}  // namespace

double RandomArguments::between(double low, double high) {
  return std::uniform_real_distribution<double>(low, high)(random_);
}

double RandomArguments::whole(double low, double high) {
  return std::nearbyint(between(low, high));
}

double RandomArguments::ofAnyBinade() {
  for (;;) {
    const double value = std::bit_cast<double>(random_());
    if (std::isfinite(value)) return value;
  }
}

double RandomArguments::angle() {
  switch (random_() % 8) {
    case 0: return ofAnyBinade();
    case 1: return between(-10, 10);
    case 2: return whole(-1e6, 1e6) * kPiOf15Digits / 180;  // whole degrees
    case 3: return whole(-4000, 4000) * std::acos(-1.0) / 2;
    case 4: return between(-14000, 14000);
    case 5: return whole(-1e15, 1e15) * kPiOf15Digits / 180;
    case 6: return std::ldexp(between(1, 2), static_cast<int>(whole(-40, 60)));
    default: return whole(-9e4, 9e4) / 100;
  }
}

double RandomArguments::ofAnyExponential() {
  switch (random_() % 6) {
    case 0: return ofAnyBinade();
    case 1: return between(-10, 10);
    case 2: return between(-750, 715);
    case 3: return between(-746, -707);
    case 4: return std::ldexp(between(-1, 1), static_cast<int>(whole(-60, 0)));
    default: return whole(-70000, 70000) / 100;
  }
}

double RandomArguments::positive() {
  switch (random_() % 6) {
    case 0: return std::fabs(ofAnyBinade());
    case 1: return 1 + between(-0.01, 0.01);
    case 2: return 1 + std::ldexp(between(-1, 1), static_cast<int>(whole(-52, -1)));
    case 3: return between(0, 100);
    case 4: return std::bit_cast<double>(random_() >> (12 + random_() % 52));  // subnormal
    default: return whole(1, 1e9) / 1000;
  }
}

double RandomArguments::nearTie(Elementary function) {
  const double digits = whole(1e14, 1e15) + 0.5;
  return argumentFor(function, digits * (random_() % 2 == 0 ? 1e-15 : 1e-16));
}

double RandomArguments::argumentOf(Elementary function) {
  if (random_() % 4 == 0) return nearTie(function);
  switch (function) {
    case Elementary::sine:
    case Elementary::cosine:
    case Elementary::tangent: return angle();
    case Elementary::arc_tangent:
      return random_() % 2 == 0 ? angle() : std::copysign(positive(), between(-1, 1));
    case Elementary::exponential: return ofAnyExponential();
    default: return positive();
  }
}

PowerArguments RandomArguments::argumentsOfPower() {
  switch (random_() % 13) {
    case 0: return {ofAnyBinade(), ofAnyBinade()};
    case 1: return {std::fabs(ofAnyBinade()), between(-2, 2)};
    case 2: return {between(0, 10), between(-300, 300)};
    case 3: return {between(-100, 100), whole(-160, 160)};
    case 4: return {1 + between(-0.01, 0.01), between(-70000, 70000)};
    case 5: return {whole(-1000, 1000), whole(-240, 240) / 4};
    case 6: return {whole(0, 400000), whole(0, 5)};  // many a middle of two doubles
    case 7: return {std::pow(whole(2, 2000), 4), whole(-20, 20) / 8};
    case 8: return {whole(1, 1e15) / 1e10, between(-20, 20)};
    case 9: return {between(0, 1), between(300, 1100)};
    case 10: {
      const int bits = static_cast<int>(whole(1, 53));
      return {std::copysign(1 - std::ldexp(whole(-4, 4), -bits), between(-1, 1)),
              whole(-720, 720) * std::ldexp(whole(1, 16), bits - 4)};
    }
    case 11: {
      const double y = whole(-200, 200) / 10;
      return {std::pow((whole(1e14, 1e15) + 0.5) * 1e-14, 1 / (y == 0 ? 1 : y)), y};
    }
    default: return {positive(), 1.0 / 3};
  }
}

}  // namespace zel::test
