#include "cli/console/line_reader.h"

namespace zel {

std::optional<std::string_view> LineReader::next() {
  try {
    if (has_failed_ || !readLine()) return std::nullopt;
  } catch (const std::ios_base::failure&) {  // a buffer of a file throws what its reads fail with
    has_failed_ = true;
    return std::nullopt;
  }
  if (line_.ends_with('\r')) line_.pop_back();
  return line_;
}

bool LineReader::readLine() {
  using Traits = std::streambuf::traits_type;
  line_.clear();
  was_too_long_ = false;
  auto character = buffer_.sbumpc();
  if (Traits::eq_int_type(character, Traits::eof())) return false;
  for (; !Traits::eq_int_type(character, Traits::eof()); character = buffer_.sbumpc()) {
    if (Traits::to_char_type(character) == '\n') break;
    if (line_.size() < kMaxLine)
      line_ += Traits::to_char_type(character);
    else
      was_too_long_ = true;
  }
  return true;
}

}  // namespace zel
