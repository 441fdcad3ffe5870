#pragma once

#include <string>

namespace zel {

/// A coordinate as files have it: a whole number without a point, and with an exponent only from
/// 1e15 on.
std::string coordinateText(double value);

}  // namespace zel
