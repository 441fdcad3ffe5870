#pragma once

#include <QPainter>

namespace zel {

/// Frames a rectangle in logical pixels along its inside, on whole pixels of the device: where a
/// logical pixel is one and a half of them, a side drawn as a line may fall outside of the widget.
/// The pen's width is in logical pixels; on the device it is rounded down, to no less than one.
void paintPixelFrame(QPainter& painter, const QRect& rect, QPen pen);

}  // namespace zel
