// The rounding of one value: by the arithmetic of rounding_steps.h, and by writing and reading the
// text where that is in doubt. A text that is too large to be read back stands for an infinity.

#include "numbers/rounding.h"

#include <limits>

#include "numbers/number_text.h"
#include "numbers/rounding_steps.h"

namespace zel {

double roundThroughText(double value) {
  const auto read = readNumber(writeNumber(value));
  return read ? *read : std::copysign(std::numeric_limits<double>::infinity(), value);
}

double roundTo15Digits(double value) { return roundAny<PlainArithmetic>(value); }

}  // namespace zel
