// Colours are compared in OKLab (B. Ottosson, "A perceptual color space for image processing",
// 2020): the light of the three parts becomes the answers of three kinds of cones, their cube roots
// a lightness and two opposed hues, and equal distances there look about equally large.

#include "pictures/colour.h"

#include <array>
#include <cmath>
#include <cstddef>

namespace zel {
namespace {

using Triple = std::array<double, 3>;
using Matrix = std::array<Triple, 3>;

constexpr Matrix kLightToCones = {{{0.4122214708, 0.5363325363, 0.0514459929},
                                   {0.2119034982, 0.6806995451, 0.1073969566},
                                   {0.0883024619, 0.2817188376, 0.6299787005}}};
constexpr Matrix kConesToLab = {{{0.2104542553, 0.7936177850, -0.0040720468},
                                 {1.9779984951, -2.4285922050, 0.4505937099},
                                 {0.0259040371, 0.7827717662, -0.8086757660}}};

Triple times(const Matrix& matrix, const Triple& vector) {
  Triple result{};
  for (std::size_t row = 0; row < 3; ++row)
    for (std::size_t i = 0; i < 3; ++i) result[row] += matrix[row][i] * vector[i];
  return result;
}

/// The light of one part of a colour, 0 to 255 of it giving 0 to 1.
double light(std::uint32_t part) {
  const double share = part / 255.0;
  return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

Triple okLab(std::int32_t colour) {
  const auto bits = static_cast<std::uint32_t>(colour);
  Triple cones =
      times(kLightToCones, {light(bits & 0xFF), light(bits >> 8 & 0xFF), light(bits >> 16 & 0xFF)});
  for (double& answer : cones) answer = std::cbrt(answer);
  return times(kConesToLab, cones);
}

}  // namespace

std::string colourText(std::int32_t colour) {
  constexpr char kDigits[] = "0123456789abcdef";
  const auto bits = static_cast<std::uint32_t>(colour);
  std::string text = "#";
  for (const unsigned shift : {0u, 8u, 16u}) {
    text += kDigits[bits >> (shift + 4) & 0xF];
    text += kDigits[bits >> shift & 0xF];
  }
  return text;
}

double perceivedDistance(std::int32_t one, std::int32_t other) {
  const Triple a = okLab(one);
  const Triple b = okLab(other);
  return std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]);
}

}  // namespace zel
