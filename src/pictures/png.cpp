// The smallest PNG there is: one header, the rows without a filter in one compressed stream, and
// the end. Filters would cost more time than they save bytes in a picture of lines.

#include "pictures/png.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

#include "pictures/deflate.h"

namespace zel {
namespace {

constexpr std::string_view kSignature = "\x89PNG\r\n\x1a\n";
constexpr std::size_t kBytesPerPixel = 3;
constexpr std::size_t kLengthAndType = 8;  // bytes before the data of a chunk
constexpr std::size_t kLongestChunk = std::numeric_limits<std::int32_t>::max();

std::string fourBytes(std::size_t number) {
  std::string text;
  for (const int shift : {24, 16, 8, 0}) text += static_cast<char>(number >> shift & 0xff);
  return text;
}

/// Length, type, data and checksum.
void appendChunk(std::string& file, std::string_view type, std::string_view data) {
  file.append(fourBytes(data.size())).append(type).append(data);
  file += fourBytes(checksum(data, checksum(type)));
}

std::string header(const Bitmap& bitmap) {
  constexpr std::string_view kEightBitColour("\x08\x02\0\0\0", 5);
  const auto width = static_cast<std::size_t>(bitmap.width);
  const auto height = static_cast<std::size_t>(bitmap.height);
  return fourBytes(width) + fourBytes(height) + std::string(kEightBitColour);
}

/// The colours of a pixel as PNG has them, in the first three of four bytes.
std::uint32_t colours(std::uint32_t pixel) {
  if constexpr (std::endian::native == std::endian::big) return pixel << 8;
  return (pixel >> 16 & 0xFF) | (pixel & 0xFF00) | (pixel & 0xFF) << 16;
}

/// Paper mostly, of which this many pixels are seen at a look.
constexpr std::size_t kPixelsAtOnce = 8;
constexpr std::array<std::uint32_t, kPixelsAtOnce> kPaper = [] {
  std::array<std::uint32_t, kPixelsAtOnce> pixels{};
  pixels.fill(0xFFFFFFFF);
  return pixels;
}();

/// Writes the colours of pixels, and spoils the byte behind them.
void writeColours(const std::uint32_t* pixels, std::size_t count, std::uint8_t* bytes) {
  for (std::size_t i = 0; i < count; ++i) {
    const std::uint32_t rgb = colours(pixels[i]);
    std::memcpy(bytes + kBytesPerPixel * i, &rgb, sizeof rgb);
  }
}

/// A row of pixels as PNG has it: the number of its filter, which is none, and its colours. Spoils
/// the byte behind it.
void writeRow(std::span<const std::uint32_t> pixels, std::uint8_t* row) {
  *row = 0;
  std::uint8_t* bytes = row + 1;
  for (; pixels.size() >= kPixelsAtOnce; pixels = pixels.subspan(kPixelsAtOnce)) {
    if (std::memcmp(pixels.data(), kPaper.data(), sizeof kPaper) == 0)
      std::memset(bytes, 0xFF, kBytesPerPixel * kPixelsAtOnce);
    else
      writeColours(pixels.data(), kPixelsAtOnce, bytes);
    bytes += kBytesPerPixel * kPixelsAtOnce;
  }
  writeColours(pixels.data(), pixels.size(), bytes);
}

/// Rows are compressed in parts of some hundred thousand bytes: each part costs time of its own.
constexpr std::size_t kPart = std::size_t{1} << 17;

/// All rows in one stream behind a text; empty when it could not be made or was given up.
std::string withRows(std::string before, const Bitmap& bitmap, const GoesOn& goes_on) {
  const auto width = static_cast<std::size_t>(bitmap.width);
  const auto height = static_cast<std::size_t>(bitmap.height);
  const std::size_t row_bytes = 1 + width * kBytesPerPixel;
  const std::size_t rows = std::clamp<std::size_t>(kPart / row_bytes, 1, height);
  std::vector<std::uint8_t> part(rows * row_bytes + 1);
  Deflate deflate(std::move(before));
  std::size_t filled = 0;
  for (int y = 0; y < bitmap.height; ++y) {
    writeRow({bitmap.row(y), width}, part.data() + filled);
    filled += row_bytes;
    if (filled + row_bytes < part.size() && y + 1 < bitmap.height) continue;
    deflate.take(std::span(part.data(), filled));
    if (!goes_on()) return {};
    filled = 0;
  }
  return deflate.finish();
}

}  // namespace

std::string writePng(const Bitmap& bitmap, const GoesOn& goes_on) {
  if (bitmap.pixels.empty()) return {};
  std::string start(kSignature);
  appendChunk(start, "IHDR", header(bitmap));
  const std::size_t length_at = start.size();
  const std::size_t data_at = length_at + kLengthAndType;
  std::string file = withRows(start + fourBytes(0) + "IDAT", bitmap, goes_on);
  if (file.size() <= data_at || file.size() - data_at > kLongestChunk) return {};
  file.replace(length_at, 4, fourBytes(file.size() - data_at));
  file += fourBytes(checksum(std::string_view(file).substr(length_at + 4)));
  appendChunk(file, "IEND", {});
  return file;
}

}  // namespace zel
