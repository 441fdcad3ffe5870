// The stream by ISA-L at its level 1. The same bytes in give the same bytes out wherever the stream
// lies in memory, because its first few bytes are compressed by themselves.

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>
#include <vector>

#include <isa-l/crc.h>
#include <isa-l/igzip_lib.h>

#include "pictures/deflate.h"

namespace zel {
namespace {

/// Enough for the library to have seen a beginning, and too few for its fast path.
constexpr std::uint32_t kFirstBytes = 8;

// The library takes what it only reads without const.
std::uint8_t* unconst(const std::uint8_t* bytes) { return const_cast<std::uint8_t*>(bytes); }

/// On Windows a function leaves the registers xmm6 to xmm15 as they were. Some of the library's do
/// not; whoever calls this after them puts back for its callers what they have lost.
inline void keepRegisters() {
#ifdef _WIN64
  asm volatile("" ::
                   : "xmm6", "xmm7", "xmm8", "xmm9", "xmm10", "xmm11", "xmm12", "xmm13", "xmm14",
                     "xmm15");
#endif
}

}  // namespace

struct Deflate::Stream {
  isal_zstream z = {};
  std::vector<std::uint8_t> memory = std::vector<std::uint8_t>(ISAL_DEF_LVL1_DEFAULT);
  std::array<char, std::size_t{1} << 16> out;

  /// False when the library failed. What has come out is appended.
  bool run(std::span<const std::uint8_t> part, std::string& output, bool is_last = false) {
    z.end_of_stream = is_last;
    z.next_in = unconst(part.data());
    z.avail_in = static_cast<std::uint32_t>(part.size());
    do {
      z.next_out = reinterpret_cast<std::uint8_t*>(out.data());
      z.avail_out = static_cast<std::uint32_t>(out.size());
      const int result = isal_deflate(&z);
      keepRegisters();
      if (result != COMP_OK) return false;
      output.append(out.data(), out.size() - z.avail_out);
    } while (z.avail_out == 0);
    return true;
  }

  /// Compresses the first bytes of a stream by themselves and takes them from the part. The
  /// library's fast path, which leaves so few alone, would look the third byte up by the address of
  /// the stream, and one picture in three hundred would have other bytes.
  bool takeFirst(std::span<const std::uint8_t>& part, std::string& output) {
    if (z.total_in >= kFirstBytes || part.empty()) return true;
    const auto first = part.first(std::min<std::size_t>(kFirstBytes - z.total_in, part.size()));
    part = part.subspan(first.size());
    z.flush = SYNC_FLUSH;
    const bool is_done = run(first, output);
    z.flush = NO_FLUSH;
    return is_done;
  }
};

Deflate::Deflate(std::string before)
    : stream_(std::make_unique<Stream>()), output_(std::move(before)) {
  isal_zstream& z = stream_->z;
  isal_deflate_init(&z);
  keepRegisters();
  z.level = 1;
  z.level_buf = stream_->memory.data();
  z.level_buf_size = static_cast<std::uint32_t>(stream_->memory.size());
  z.gzip_flag = IGZIP_ZLIB;
}

Deflate::~Deflate() = default;
Deflate& Deflate::operator=(Deflate&&) noexcept = default;

void Deflate::take(std::span<const std::uint8_t> part) {
  has_failed_ = has_failed_ || !stream_->takeFirst(part, output_) || !stream_->run(part, output_);
}

std::string Deflate::finish() {
  has_failed_ = has_failed_ || !stream_->run({}, output_, true);
  return has_failed_ ? std::string() : std::move(output_);
}

std::uint32_t checksum(std::string_view bytes, std::uint32_t before) {
  const auto* const first = reinterpret_cast<const std::uint8_t*>(bytes.data());
  const std::uint32_t sum = crc32_gzip_refl(before, first, bytes.size());
  keepRegisters();
  return sum;
}

}  // namespace zel
