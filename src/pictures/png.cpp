// The smallest PNG there is: one header, the rows without a filter in one compressed stream, and
// the end. Filters would cost more time than they save bytes in a picture of lines.

#include "pictures/png.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <string_view>
#include <vector>

#include "pictures/deflate.h"

namespace zel {
namespace {

constexpr std::string_view kSignature = "\x89PNG\r\n\x1a\n";
constexpr std::size_t kBytesPerPixel = 3;

void appendNumber(std::string& text, std::uint32_t number) {
  for (const int shift : {24, 16, 8, 0}) text += static_cast<char>(number >> shift & 0xff);
}

/// Length, type, data and checksum.
void appendChunk(std::string& file, std::string_view type, std::string_view data) {
  appendNumber(file, static_cast<std::uint32_t>(data.size()));
  file.append(type).append(data);
  appendNumber(file, checksum(data, checksum(type)));
}

std::string header(const Bitmap& bitmap) {
  constexpr std::string_view kEightBitColour("\x08\x02\0\0\0", 5);
  std::string data;
  appendNumber(data, static_cast<std::uint32_t>(bitmap.width));
  appendNumber(data, static_cast<std::uint32_t>(bitmap.height));
  return data.append(kEightBitColour);
}

/// A row of pixels as PNG has it: the number of its filter, which is none, and its colours.
void fillRow(std::vector<std::uint8_t>& row, std::span<const std::uint32_t> pixels) {
  std::uint8_t* byte = row.data() + 1;
  for (const std::uint32_t pixel : pixels) {
    *byte++ = static_cast<std::uint8_t>(pixel >> 16);
    *byte++ = static_cast<std::uint8_t>(pixel >> 8);
    *byte++ = static_cast<std::uint8_t>(pixel);
  }
}

}  // namespace

std::string writePng(const Bitmap& bitmap) {
  if (bitmap.pixels.empty()) return {};
  const auto width = static_cast<std::size_t>(bitmap.width);
  std::vector<std::uint8_t> row(1 + width * kBytesPerPixel);
  Deflate deflate;
  for (std::span<const std::uint32_t> rest = bitmap.pixels; !rest.empty();
       rest = rest.subspan(width)) {
    fillRow(row, rest.first(width));
    deflate.take(row);
  }
  const std::string compressed = deflate.finish();
  if (compressed.empty() || compressed.size() > std::numeric_limits<std::int32_t>::max()) return {};
  std::string file(kSignature);
  appendChunk(file, "IHDR", header(bitmap));
  appendChunk(file, "IDAT", compressed);
  appendChunk(file, "IEND", {});
  return file;
}

}  // namespace zel
