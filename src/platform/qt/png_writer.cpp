#include "platform/qt/png_writer.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <string_view>
#include <vector>

#include <isa-l/crc.h>
#include <isa-l/igzip_lib.h>

namespace zel {
namespace {

constexpr std::string_view kSignature = "\x89PNG\r\n\x1a\n";
constexpr std::size_t kOutputStep = 1 << 18;
constexpr int kBytesPerPixel = 3;

std::uint8_t* bytesOf(char* text) { return reinterpret_cast<std::uint8_t*>(text); }

/// Compresses what it is given piece by piece into one zlib stream.
class Compressor {
 public:
  Compressor() {
    isal_deflate_init(&stream_);
    stream_.level = 1;
    stream_.level_buf = buffer_.data();
    stream_.level_buf_size = static_cast<std::uint32_t>(buffer_.size());
    stream_.gzip_flag = IGZIP_ZLIB;
  }

  /// False when the stream failed.
  bool take(std::vector<std::uint8_t>& piece, bool is_last) {
    stream_.end_of_stream = is_last;
    stream_.next_in = piece.data();
    stream_.avail_in = static_cast<std::uint32_t>(piece.size());
    do {
      if (stream_.avail_out == 0) makeRoom();
      if (isal_deflate(&stream_) != COMP_OK) return false;
    } while (stream_.avail_out == 0);
    return true;
  }

  std::string_view output() const { return {output_.data(), output_.size() - stream_.avail_out}; }

 private:
  void makeRoom() {
    const std::size_t used = output_.size();
    output_.resize(used + kOutputStep);
    stream_.next_out = bytesOf(output_.data() + used);
    stream_.avail_out = kOutputStep;
  }

  isal_zstream stream_ = {};
  std::vector<std::uint8_t> buffer_ = std::vector<std::uint8_t>(ISAL_DEF_LVL1_DEFAULT);
  std::string output_;
};

void appendNumber(std::string& text, std::uint32_t number) {
  for (const int shift : {24, 16, 8, 0}) text += static_cast<char>(number >> shift & 0xff);
}

/// Length, type, data and checksum.
void appendChunk(std::string& file, std::string_view type, std::string_view data) {
  appendNumber(file, static_cast<std::uint32_t>(data.size()));
  const std::size_t begin = file.size();
  file.append(type).append(data);
  appendNumber(file, crc32_gzip_refl(0, bytesOf(file.data() + begin), file.size() - begin));
}

std::string header(const QImage& image) {
  constexpr std::string_view kEightBitColour("\x08\x02\0\0\0", 5);
  std::string data;
  appendNumber(data, static_cast<std::uint32_t>(image.width()));
  appendNumber(data, static_cast<std::uint32_t>(image.height()));
  return data.append(kEightBitColour);
}

/// A row of pixels as PNG has it: the number of its filter, which is none, and its colours.
void fillRow(std::vector<std::uint8_t>& row, const QImage& image, int y) {
  const auto* pixels = reinterpret_cast<const QRgb*>(image.constScanLine(y));
  std::uint8_t* byte = row.data() + 1;
  for (const QRgb pixel : std::span(pixels, static_cast<std::size_t>(image.width()))) {
    *byte++ = static_cast<std::uint8_t>(qRed(pixel));
    *byte++ = static_cast<std::uint8_t>(qGreen(pixel));
    *byte++ = static_cast<std::uint8_t>(qBlue(pixel));
  }
}

}  // namespace

std::string writePng(const QImage& image) {
  if (image.isNull()) return {};
  const QImage pixels = image.convertToFormat(QImage::Format_RGB32);
  std::vector<std::uint8_t> row(1 + static_cast<std::size_t>(pixels.width()) * kBytesPerPixel);
  Compressor compressor;
  for (int y = 0; y < pixels.height(); ++y) {
    fillRow(row, pixels, y);
    if (!compressor.take(row, y == pixels.height() - 1)) return {};
  }
  const std::string_view compressed = compressor.output();
  if (compressed.size() > std::numeric_limits<std::int32_t>::max()) return {};
  std::string file(kSignature);
  appendChunk(file, "IHDR", header(pixels));
  appendChunk(file, "IDAT", compressed);
  appendChunk(file, "IEND", {});
  return file;
}

}  // namespace zel
