#pragma once

#include <QIcon>
#include <cstdint>

namespace zel {

/// How the rows of graphs show a colour.
enum class SwatchLook { rounded, square };

/// A graph's colour (red in its low byte) as the icon of a row, the same colour in every state of
/// the row: a style would tint it where the row is selected. There its edge is white, so that it is
/// seen where the colour is that of selections. It is painted anew each time and leaves nothing
/// in the toolkit's cache of pictures, so rows may be made as often as they like.
QIcon graphSwatch(std::int32_t colour, SwatchLook look);

}  // namespace zel
