#include "cli/line_reader.h"

namespace zel {

std::optional<std::string_view> LineReader::next() {
  using Traits = std::streambuf::traits_type;
  line_.clear();
  was_too_long_ = false;
  auto character = buffer_.sbumpc();
  if (Traits::eq_int_type(character, Traits::eof())) return std::nullopt;
  for (; !Traits::eq_int_type(character, Traits::eof()); character = buffer_.sbumpc()) {
    if (Traits::to_char_type(character) == '\n') break;
    if (line_.size() < kMaxLine)
      line_ += Traits::to_char_type(character);
    else
      was_too_long_ = true;
  }
  if (line_.ends_with('\r')) line_.pop_back();
  return line_;
}

}  // namespace zel
