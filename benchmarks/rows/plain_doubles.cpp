#include "benchmarks/rows/plain_doubles.h"

#include <array>
#include <cmath>
#include <string>

#include "engine/function_library.h"

namespace zel::bench {
namespace {

double sineOfDegrees(double v) { return std::sin(v * (kPi / 180)); }
double cosineOfDegrees(double v) { return std::cos(v * (kPi / 180)); }
double tangentOfDegrees(double v) { return std::tan(v * (kPi / 180)); }
double squareRoot(double v) { return std::sqrt(v); }
double cubeRoot(double v) { return std::pow(v, 1.0 / 3); }

/// The series of the engine's gamma function.
double gamma(double v) {
  constexpr std::array<double, 6> kCoefficients = {76.1800917294715,    -86.5053203294168,
                                                   24.0140982408309,    -1.23173957245015,
                                                   0.00120865097386618, -5.395239384953E-06};
  const double base = v + 5.5;
  double sum = 1.00000000019001;
  double term = v;
  for (const double coefficient : kCoefficients) sum += coefficient / (term += 1);
  return std::exp(std::log(2.506628274631 * sum / v) - base + (v + 0.5) * std::log(base));
}

double factorial(double v) {
  if (v != std::nearbyint(v)) return gamma(v + 1);
  double product = 1;
  for (double i = 2; i <= v; ++i) product *= i;
  return product;
}

}  // namespace

PlainDoubles::PlainDoubles(std::string_view formula, double* x) {
  parser_.DefineFun("sen", sineOfDegrees);
  parser_.DefineFun("cos", cosineOfDegrees);
  parser_.DefineFun("tan", tangentOfDegrees);
  parser_.DefineFun("raiz2", squareRoot);
  parser_.DefineFun("raiz3", cubeRoot);
  parser_.DefinePostfixOprt("!", factorial);
  parser_.DefineVar("x", x);
  parser_.SetExpr(std::string(formula));
}

}  // namespace zel::bench
