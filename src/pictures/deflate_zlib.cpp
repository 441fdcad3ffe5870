#include <array>
#include <utility>

#include <zlib.h>

#include "pictures/deflate.h"

namespace zel {

struct Deflate::Stream {
  z_stream z = {};
  std::array<char, std::size_t{1} << 16> out;

  ~Stream() { deflateEnd(&z); }

  /// False when the library failed. What has come out is appended.
  bool run(std::span<const std::uint8_t> part, int flush, std::string& output) {
    z.next_in = const_cast<Bytef*>(part.data());  // it is only read
    z.avail_in = static_cast<uInt>(part.size());
    do {
      z.next_out = reinterpret_cast<Bytef*>(out.data());
      z.avail_out = static_cast<uInt>(out.size());
      const int result = ::deflate(&z, flush);
      if (result != Z_OK && result != Z_STREAM_END && result != Z_BUF_ERROR) return false;
      output.append(out.data(), out.size() - z.avail_out);
    } while (z.avail_out == 0);
    return true;
  }
};

Deflate::Deflate(std::string before)
    : stream_(std::make_unique<Stream>()), output_(std::move(before)) {
  has_failed_ = deflateInit(&stream_->z, Z_BEST_SPEED) != Z_OK;
}

Deflate::~Deflate() = default;
Deflate& Deflate::operator=(Deflate&&) noexcept = default;

void Deflate::take(std::span<const std::uint8_t> part) {
  has_failed_ = has_failed_ || !stream_->run(part, Z_NO_FLUSH, output_);
}

std::string Deflate::finish() {
  has_failed_ = has_failed_ || !stream_->run({}, Z_FINISH, output_);
  return has_failed_ ? std::string() : std::move(output_);
}

std::uint32_t checksum(std::string_view bytes, std::uint32_t before) {
  if (bytes.empty()) return before;  // the library would begin anew for a null pointer
  return static_cast<std::uint32_t>(
      crc32_z(before, reinterpret_cast<const Bytef*>(bytes.data()), bytes.size()));
}

}  // namespace zel
