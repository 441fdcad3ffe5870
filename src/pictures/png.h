#pragma once

#include <string>

#include "pictures/bitmap.h"

namespace zel {

/// The bytes of a PNG file with the bitmap in full colour, without transparency; empty for a bitmap
/// without pixels, and when it could not be made.
std::string writePng(const Bitmap& bitmap);

}  // namespace zel
