#pragma once

#include <QPainter>

#include "pictures/number_layer.h"
#include "plot/mark_numbers.h"

namespace zel {

/// Numbers in the application's font, a little smaller.
TextMeasure numberMeasure();

// All paint in logical pixels, of which a twip is a fifteenth.

/// The lines of a grid, a pixel wide, where a raster picture has its axes. They may be painted
/// first, or multiplied over what there is.
void paintGrid(QPainter& painter, const NumberLayer& layer);
/// The numbers, with white behind them, as far as they meet this part of the picture.
void paintNumbers(QPainter& painter, const NumberLayer& layer, const QRectF& part);
/// The same of one number.
void paintNumber(QPainter& painter, const PictureLabel& label, double font_size);
/// Both, on a picture that is finished.
void paintOver(QPainter& painter, const NumberLayer& layer, const QRectF& part);

QRectF boxOf(const PictureLabel& label);

}  // namespace zel
