#include "support/png_reader.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include <zlib.h>

namespace zel::test {
namespace {

std::uint32_t numberAt(std::string_view bytes, std::size_t at) {
  std::uint32_t number = 0;
  for (std::size_t i = at; i < at + 4; ++i)
    number = number << 8 | static_cast<std::uint8_t>(bytes.at(i));
  return number;
}

/// The data of the chunk that the file begins with, which is taken off it; nothing when the chunk
/// is of another type or damaged.
std::string takeChunk(std::string_view& file, std::string_view type) {
  const std::size_t size = numberAt(file, 0);
  const std::string_view checked = file.substr(4, size + 4);
  const auto sum =
      crc32(0, reinterpret_cast<const Bytef*>(checked.data()), static_cast<uInt>(checked.size()));
  if (checked.substr(0, 4) != type || numberAt(file, size + 8) != sum) return {};
  file.remove_prefix(size + 12);
  return std::string(checked.substr(4));
}

std::uint32_t pixelAt(const std::string& bytes, std::size_t at) {
  return 0xFF000000 | numberAt(bytes, at - 1) % 0x1000000;
}

}  // namespace

std::string inflated(const std::string& stream, std::size_t size) {
  std::string bytes(size, '\0');
  uLongf length = static_cast<uLongf>(size);
  const int result =
      uncompress(reinterpret_cast<Bytef*>(bytes.data()), &length,
                 reinterpret_cast<const Bytef*>(stream.data()), static_cast<uLong>(stream.size()));
  return result == Z_OK && length == size ? bytes : std::string();
}

std::string inflated(const std::string& stream) {
  z_stream state = {};
  if (inflateInit(&state) != Z_OK) return {};
  std::string input = stream;
  state.next_in = reinterpret_cast<Bytef*>(input.data());
  state.avail_in = static_cast<uInt>(input.size());
  std::string bytes;
  std::array<char, 4096> block;
  int result = Z_OK;
  while (result == Z_OK) {
    state.next_out = reinterpret_cast<Bytef*>(block.data());
    state.avail_out = static_cast<uInt>(block.size());
    result = inflate(&state, Z_NO_FLUSH);
    bytes.append(block.data(), block.size() - state.avail_out);
  }
  const bool is_whole = result == Z_STREAM_END && state.avail_in == 0;
  inflateEnd(&state);
  return is_whole ? bytes : std::string();
}

Bitmap readPng(const std::string& file) {
  constexpr std::string_view kSignature = "\x89PNG\r\n\x1a\n";
  std::string_view rest = file;
  if (!rest.starts_with(kSignature)) return {};
  rest.remove_prefix(kSignature.size());
  const std::string header = takeChunk(rest, "IHDR");
  if (header.size() != 13 || header.substr(8) != std::string_view("\x08\x02\0\0\0", 5)) return {};
  const std::size_t width = numberAt(header, 0);
  const std::size_t height = numberAt(header, 4);
  const std::string rows = inflated(takeChunk(rest, "IDAT"), height * (1 + 3 * width));
  if (rows.empty() || !takeChunk(rest, "IEND").empty() || !rest.empty()) return {};
  Bitmap bitmap{static_cast<int>(width), static_cast<int>(height), {}};
  for (std::size_t y = 0; y < height; ++y) {
    const std::size_t row = y * (1 + 3 * width);
    if (rows[row] != 0) return {};
    for (std::size_t x = 0; x < width; ++x) bitmap.pixels.push_back(pixelAt(rows, row + 1 + 3 * x));
  }
  return bitmap;
}

}  // namespace zel::test
