#pragma once

#include <cstdint>
#include <string>

namespace zel {

/// "#rrggbb" of a colour with red in its low byte; the highest byte does not count.
std::string colourText(std::int32_t colour);

/// How different two such colours look on a screen, as their distance in the OKLab space: 0 when
/// they are the same, about 0.02 when that is just seen, 1 between black and white.
double perceivedDistance(std::int32_t one, std::int32_t other);

}  // namespace zel
