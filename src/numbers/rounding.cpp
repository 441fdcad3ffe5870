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
