// Between the first stage and 256 bits: sine and cosine by their addition theorems, with the first
// terms of the series in two doubles, and the arc tangent of the first stage corrected by what it
// lacks.
#include "numbers/elementary/fine_functions.h"

namespace zel {

SineCosine fineSineCosine(const ReducedAngle& angle) {
  constexpr DoubleDouble kHalf = {0.5, 0};
  constexpr DoubleDouble kSixth = reciprocal(6);
  constexpr DoubleDouble kTwentyFourth = reciprocal(24);
  const DoubleDouble& r = angle.rest;
  const DoubleDouble square = multiply(r, r);
  const double s = square.high;
  const double of_cosine = s * polynomial<PlainArithmetic>(s, -1.0 / 720, 1.0 / 40320);
  const double of_sine = s * polynomial<PlainArithmetic>(s, 1.0 / 120, -1.0 / 5040, 1.0 / 362880);
  const DoubleDouble beyond_one =
      multiply(square, multiply(square, kTwentyFourth + DoubleDouble{of_cosine, 0}) - kHalf);
  const DoubleDouble sine_of_r =
      r + multiply(multiply(r, square), DoubleDouble{of_sine, 0} - kSixth);
  const DoubleDouble& sine = kExactSines[angle.steps % kStepsOfCircle];
  const DoubleDouble& cosine = kExactSines[(angle.steps + kStepsOfQuarter) % kStepsOfCircle];
  return {sine + (multiply(cosine, sine_of_r) + multiply(sine, beyond_one)),
          cosine + (multiply(cosine, beyond_one) - multiply(sine, sine_of_r))};
}

DoubleDouble fineTangent(const ReducedAngle& angle) {
  const auto [sine, cosine] = fineSineCosine(angle);
  return multiply(sine, reciprocal(cosine));
}

DoubleDouble fineArcTangent(double magnitude) {
  const DoubleDouble x = {magnitude, 0};
  const DoubleDouble first = arcTangentOf<PlainArithmetic>(magnitude);
  const double near = first.high + first.low;
  const auto [sine, cosine] = fineSineCosine(reduceAngle<PlainArithmetic>(near));
  const DoubleDouble lacks =
      multiply(multiply(x, cosine) - sine, reciprocal(cosine + multiply(x, sine)));
  return sumOfOrdered(near, lacks.high);
}

}  // namespace zel
