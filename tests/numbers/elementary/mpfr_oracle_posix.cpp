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

constexpr mpfr_prec_t kManyBits = 400;

/// To be called before the numbers are made.
void freeExponents() {
  mpfr_set_emin(mpfr_get_emin_min());
  mpfr_set_emax(mpfr_get_emax_max());
}

double relativeError(mpfr_srcptr exact, DoubleDouble value) {
  Number error(kManyBits, value.high);
  mpfr_add_d(error.get(), error.get(), value.low, MPFR_RNDN);
  mpfr_sub(error.get(), error.get(), exact, MPFR_RNDN);
  mpfr_div(error.get(), error.get(), exact, MPFR_RNDN);
  return std::fabs(mpfr_get_d(error.get(), MPFR_RNDN));
}

/// Gives MPFR the range of double, so that subnormals and overflow round as there.
void limitExponents() {
  mpfr_set_emin(-1073);
  mpfr_set_emax(1024);
}

}  // namespace

double nearestByMpfr(Elementary function, double x) {
  limitExponents();
  Number argument(53, x);
  Number result(53);
  const int direction = compute(function, result.get(), argument.get());
  mpfr_subnormalize(result.get(), direction, MPFR_RNDN);
  return mpfr_get_d(result.get(), MPFR_RNDN);
}

double nearestPowerByMpfr(double x, double y) {
  limitExponents();
  Number base(53, x);
  Number exponent(53, y);
  Number result(53);
  const int direction = mpfr_pow(result.get(), base.get(), exponent.get(), MPFR_RNDN);
  mpfr_subnormalize(result.get(), direction, MPFR_RNDN);
  return mpfr_get_d(result.get(), MPFR_RNDN);
}

double relativeErrorByMpfr(Elementary function, double x, DoubleDouble value) {
  freeExponents();
  Number argument(kManyBits, x);
  Number exact(kManyBits);
  compute(function, exact.get(), argument.get());
  return relativeError(exact.get(), value);
}

double relativeErrorOfPowerOfTwo(std::size_t i, std::size_t n, DoubleDouble value) {
  freeExponents();
  Number exact(kManyBits, static_cast<double>(i) / static_cast<double>(n));
  mpfr_exp2(exact.get(), exact.get(), MPFR_RNDN);
  return relativeError(exact.get(), value);
}

double relativeErrorOfSineOfSteps(std::size_t i, std::size_t n, DoubleDouble value) {
  freeExponents();
  Number exact(kManyBits, static_cast<double>(i));
  mpfr_sinu(exact.get(), exact.get(), n, MPFR_RNDN);
  return relativeError(exact.get(), value);
}

}  // namespace zel::test
