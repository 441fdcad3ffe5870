#pragma once

#include <cstddef>
#include <istream>
#include <optional>
#include <string>
#include <string_view>

namespace zel {

/// Reads lines one at a time, with memory for one line of a bounded length.
class LineReader {
 public:
  /// In bytes; what a line holds beyond it is skipped.
  static constexpr std::size_t kMaxLine = std::size_t{1} << 20;

  explicit LineReader(std::istream& in) : buffer_(*in.rdbuf()) {}

  /// The next line without its LF or CR LF, valid until the next call; nothing at the end, and when
  /// the rest cannot be read.
  std::optional<std::string_view> next();

  /// Whether the line that was read last was cut.
  bool wasTooLong() const { return was_too_long_; }

  /// Whether reading has failed: what was read since the last line is gone.
  bool hasFailed() const { return has_failed_; }

  /// Whether more can be read without waiting.
  bool hasMoreAtHand() const { return buffer_.in_avail() > 0; }

 private:
  bool readLine();

  std::streambuf& buffer_;
  std::string line_;
  bool was_too_long_ = false;
  bool has_failed_ = false;
};

}  // namespace zel
