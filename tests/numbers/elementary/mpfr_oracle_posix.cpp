#include <array>
#include <cmath>

#include <mpfr.h>

#include "numbers/elementary/mpfr_oracle.h"

namespace zel::test {
namespace {

/// A number of MPFR that is given back.
class Number {
 public:
  explicit Number(mpfr_prec_t bits, double value = 0) {
    mpfr_init2(number_, bits);
    mpfr_set_d(number_, value, MPFR_RNDN);
  }
  ~Number() { mpfr_clear(number_); }
  Number(const Number&) = delete;
  Number& operator=(const Number&) = delete;

  mpfr_ptr get() { return number_; }

 private:
  mpfr_t number_;
};

int compute(Elementary function, mpfr_ptr result, mpfr_srcptr x) {
  switch (function) {
    case Elementary::sine: return mpfr_sin(result, x, MPFR_RNDN);
    case Elementary::cosine: return mpfr_cos(result, x, MPFR_RNDN);
    case Elementary::tangent: return mpfr_tan(result, x, MPFR_RNDN);
    case Elementary::arc_tangent: return mpfr_atan(result, x, MPFR_RNDN);
    case Elementary::exponential: return mpfr_exp(result, x, MPFR_RNDN);
    case Elementary::natural_logarithm: return mpfr_log(result, x, MPFR_RNDN);
    default: return mpfr_log10(result, x, MPFR_RNDN);
  }
}

constexpr mpfr_prec_t kDoubleBits = 53;
constexpr mpfr_prec_t kManyBits = 400;

/// To be called before the numbers are made.
void freeExponents() {
  mpfr_set_emin(mpfr_get_emin_min());
  mpfr_set_emax(mpfr_get_emax_max());
}

double relativeError(mpfr_srcptr exact, std::span<const double> parts) {
  Number error(kManyBits);
  for (const double part : parts) mpfr_add_d(error.get(), error.get(), part, MPFR_RNDN);
  mpfr_sub(error.get(), error.get(), exact, MPFR_RNDN);
  mpfr_div(error.get(), error.get(), exact, MPFR_RNDN);
  return std::fabs(mpfr_get_d(error.get(), MPFR_RNDN));
}

/// Gives MPFR the range of double, so that subnormals and overflow round as there.
void limitExponents() {
  mpfr_set_emin(-1073);
  mpfr_set_emax(1024);
}

/// A result that was rounded in this direction; it may still have too many bits for a subnormal.
double nearestDouble(mpfr_ptr result, int direction) {
  mpfr_subnormalize(result, direction, MPFR_RNDN);
  return mpfr_get_d(result, MPFR_RNDN);
}

}  // namespace

// The numbers of the next two are made once: that takes as long as some functions.

double nearestByMpfr(Elementary function, double x) {
  static Number argument(kDoubleBits);
  static Number result(kDoubleBits);
  limitExponents();
  mpfr_set_d(argument.get(), x, MPFR_RNDN);
  return nearestDouble(result.get(), compute(function, result.get(), argument.get()));
}

double nearestPowerByMpfr(double x, double y) {
  static Number base(kDoubleBits);
  static Number exponent(kDoubleBits);
  static Number result(kDoubleBits);
  limitExponents();
  mpfr_set_d(base.get(), x, MPFR_RNDN);
  mpfr_set_d(exponent.get(), y, MPFR_RNDN);
  return nearestDouble(result.get(), mpfr_pow(result.get(), base.get(), exponent.get(), MPFR_RNDN));
}

double relativeErrorByMpfr(Elementary function, double x, std::span<const double> parts) {
  freeExponents();
  Number argument(kManyBits, x);
  Number exact(kManyBits);
  compute(function, exact.get(), argument.get());
  return relativeError(exact.get(), parts);
}

double relativeErrorByMpfr(Elementary function, double x, DoubleDouble value) {
  return relativeErrorByMpfr(function, x, std::array{value.high, value.low});
}

double relativeErrorOfPowerOfTwo(std::size_t i, std::size_t n, DoubleDouble value) {
  freeExponents();
  Number exact(kManyBits, static_cast<double>(i) / static_cast<double>(n));
  mpfr_exp2(exact.get(), exact.get(), MPFR_RNDN);
  return relativeError(exact.get(), std::array{value.high, value.low});
}

double relativeErrorOfSineOfSteps(std::size_t i, std::size_t n, DoubleDouble value) {
  freeExponents();
  Number exact(kManyBits, static_cast<double>(i));
  mpfr_sinu(exact.get(), exact.get(), n, MPFR_RNDN);
  return relativeError(exact.get(), std::array{value.high, value.low});
}

std::uint64_t quarterTurnsOfPowerOfTwo(int exponent) {
  freeExponents();
  constexpr mpfr_prec_t kAllBits = 1600;
  Number turns(kAllBits);
  mpfr_const_pi(turns.get(), MPFR_RNDN);
  mpfr_d_div(turns.get(), 2, turns.get(), MPFR_RNDN);
  mpfr_mul_2si(turns.get(), turns.get(), exponent - 2, MPFR_RNDN);
  mpfr_frac(turns.get(), turns.get(), MPFR_RNDZ);
  mpfr_mul_2si(turns.get(), turns.get(), 64, MPFR_RNDN);
  return mpfr_get_uj(turns.get(), MPFR_RNDZ);
}

}  // namespace zel::test
