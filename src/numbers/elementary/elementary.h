#pragma once

/// The elementary functions, each the double nearest to the exact value (half to even): the same
/// bits on every machine. Special values are those of the C library: NaN where there is no value,
/// an infinity at a pole and beyond the largest number, 0 or a subnormal below the smallest.
/// docs/numbers.md tells how they are computed and why they are right; functions.h has the first
/// stage for loops.
namespace zel {

double sine(double radians);
double cosine(double radians);
double tangent(double radians);
/// From -pi/2 to pi/2.
double arcTangent(double x);
double exponential(double x);
double naturalLogarithm(double x);
double decimalLogarithm(double x);
/// x^y: 0^0 and 1^NaN are 1, a negative base has powers with a whole exponent only.
double power(double x, double y);

}  // namespace zel
