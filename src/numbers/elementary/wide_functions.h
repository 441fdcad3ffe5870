#pragma once

#include "numbers/elementary/wide.h"

/// The elementary functions in 256 bits. All are within 2^-240 of the exact value, relative to it,
/// but for the logarithm of a number near 1, which loses up to 40 bits more.
namespace zel {

/// For |x| < 2^20.
Wide wideExponential(const Wide& x);
/// ln(x) to about 50 bits, for any positive finite value.
double roughLogarithm(double x);
/// For any positive finite value.
Wide wideLogarithm(double x);
/// The logarithm to the base 10, likewise.
Wide wideDecimalLogarithm(double x);

struct WideSineCosine {
  Wide sine;
  Wide cosine;
};

/// For |radians| <= 2.
WideSineCosine wideSineCosine(const Wide& radians);

/// An angle of whole quarter turns, modulo four, and a rest in quarter turns, from -1/2 to 1/2.
struct QuarterTurns {
  unsigned quarters;
  Wide rest;
};

/// For a positive finite angle; the rest is good to 2^-290, relative to it.
QuarterTurns quarterTurns(double radians);
Wide radiansOf(const Wide& quarter_turns);

/// For a magnitude up to 2^64.
Wide wideArcTangent(double magnitude);

}  // namespace zel
