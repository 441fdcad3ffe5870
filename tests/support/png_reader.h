#pragma once

#include <string>

#include "pictures/bitmap.h"

namespace zel::test {

/// The bitmap of a PNG file as the program writes them: eight bits of each colour, rows without a
/// filter. Every checksum is checked. Empty for anything else.
Bitmap readPng(const std::string& file);

/// What a zlib stream holds, which must be so many bytes; empty when it is not.
std::string inflated(const std::string& stream, std::size_t size);
/// The same for any number of bytes.
std::string inflated(const std::string& stream);

}  // namespace zel::test
