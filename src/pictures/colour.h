#pragma once

#include <cstdint>
#include <string>

namespace zel {

/// "#rrggbb" of a colour with red in its low byte; the highest byte does not count.
std::string colourText(std::int32_t colour);

}  // namespace zel
