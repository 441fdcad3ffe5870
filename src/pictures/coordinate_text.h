#pragma once

#include <string>

namespace zel {

/// A finite coordinate as files have it: a whole number without a point, and with an exponent only
/// from 1e15 on. What is nearer to 0 than a millionth is 0.
std::string coordinateText(double value);

}  // namespace zel
