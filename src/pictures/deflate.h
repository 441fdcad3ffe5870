#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace zel {

/// Compresses what it is given, part by part, into one zlib stream behind a text. Made for speed: a
/// picture of curves takes a few per cent more bytes than it could.
class Deflate {
 public:
  explicit Deflate(std::string before = {});
  ~Deflate();
  Deflate& operator=(Deflate&&) noexcept;

  void take(std::span<const std::uint8_t> part);
  void take(std::string_view part);
  /// Ends the stream: the text and all of it, once. Empty when it could not be made.
  std::string finish();

 private:
  struct Stream;  // of the library

  std::unique_ptr<Stream> stream_;
  std::string output_;
  bool has_failed_ = false;
};

/// The checksum of PNG (CRC-32), going on from that of the bytes before.
std::uint32_t checksum(std::string_view bytes, std::uint32_t before = 0);

}  // namespace zel
