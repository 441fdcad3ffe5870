#pragma once

#include <string>

namespace zel {

/// The place of a positive number's first digit: 0 for 1 to 9, -1 for 0,1.
int placeOf(double number);

/// What a 1 at a place is worth, the double nearest to 10^place; infinity beyond the largest one.
double unitOfPlace(int place);

/// The number text of a number that is rounded to a place: "0,12" for 0,1234 and -2, "1200" for
/// 1234 and 2. A number with more than 15 digits down to there is left as it is.
std::string roundedText(double number, int decade);

}  // namespace zel
