#pragma once

#include <QImage>

#include "pictures/bitmap.h"

namespace zel {

Bitmap toBitmap(const QImage& image);

/// A null image for a bitmap without pixels.
QImage toImage(const Bitmap& bitmap);

/// The same on the pixels of the bitmap, which must stay as they are while the image is used.
QImage viewOf(const Bitmap& bitmap);

}  // namespace zel
