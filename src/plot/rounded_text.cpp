// A number is rounded at a decimal place by counting how many times the unit of that place goes
// into it. The unit is read from its text, so it is the double nearest to the power of ten, and
// fractions are divided by a whole power in place of multiplied by its inverse: no digit too many
// comes of it.

#include "plot/rounded_text.h"

#include <cmath>
#include <cstdlib>

#include "numbers/elementary/elementary.h"
#include "numbers/number_text.h"

namespace zel {

int placeOf(double number) { return static_cast<int>(std::floor(decimalLogarithm(number))); }

double unitOfPlace(int place) {
  return readNumber("1E" + std::to_string(place)).value_or(HUGE_VAL);
}

std::string roundedText(double number, int decade) {
  constexpr double kMostExact = 1e15;
  const double unit = unitOfPlace(std::abs(decade));
  const double count = std::round(decade < 0 ? number * unit : number / unit);
  // Divided, as a product with 0,001 would not be the double nearest to the text.
  const double rounded = decade < 0 ? count / unit : count * unit;
  const bool is_exact = std::fabs(count) < kMostExact && std::isfinite(rounded);
  return writeNumber(is_exact ? rounded : number).str();
}

}  // namespace zel
