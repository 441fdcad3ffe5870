#include "platform/qt/bitmap_image.h"

#include <algorithm>

namespace zel {

Bitmap toBitmap(const QImage& image) {
  const QImage opaque = image.convertToFormat(QImage::Format_RGB32);
  Bitmap bitmap{opaque.width(), opaque.height(), {}};
  bitmap.pixels.reserve(static_cast<std::size_t>(bitmap.width) *
                        static_cast<std::size_t>(bitmap.height));
  for (int y = 0; y < bitmap.height; ++y) {
    const auto* const row = reinterpret_cast<const QRgb*>(opaque.constScanLine(y));
    std::transform(row, row + bitmap.width, std::back_inserter(bitmap.pixels),
                   [](QRgb pixel) { return pixel | 0xFF000000U; });
  }
  return bitmap;
}

QImage toImage(const Bitmap& bitmap) { return viewOf(bitmap).copy(); }

QImage viewOf(const Bitmap& bitmap) {
  if (bitmap.pixels.empty()) return {};
  return {reinterpret_cast<const uchar*>(bitmap.pixels.data()), bitmap.width, bitmap.height,
          QImage::Format_RGB32};
}

}  // namespace zel
