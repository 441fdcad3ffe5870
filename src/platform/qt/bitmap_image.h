#pragma once

#include <QImage>

#include "app/services.h"

namespace zel {

Bitmap toBitmap(const QImage& image);

/// A null image for a bitmap without pixels.
QImage toImage(const Bitmap& bitmap);

}  // namespace zel
