#pragma once

#include <string>

#include "pictures/bitmap.h"
#include "pictures/pause.h"

namespace zel {

/// The bytes of a PNG file with the bitmap in full colour, without transparency; empty for a bitmap
/// without pixels, and when it could not be made or was given up.
std::string writePng(
    const Bitmap& bitmap, const GoesOn& goes_on = [] { return true; });

}  // namespace zel
