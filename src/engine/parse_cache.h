#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "engine/grammar.h"

namespace zel {

/// Remembers how the last code was taken apart. While it is not valid, every strip and split is
/// computed and recorded at the current position; while it is valid, the same calls come in the
/// same order and each reads its record instead. After an arithmetic fault the position stays
/// where the fault found it, and the next evaluation starts there: this is meant, and so are the
/// mixed records that can come of it.
class ParseCache {
 public:
  /// A strip takes one slot, a split three (left, right, operator).
  static constexpr std::size_t kSlots = 120;

  /// Before an evaluation: another code than the one it is valid for invalidates the cache.
  void prepareFor(std::string_view code);
  /// After an evaluation that ended without a fault.
  void markValid(std::string_view code);
  /// Empties the code and nothing else: the slots and the position stay.
  void invalidate() { code_.clear(); }

  /// StripOuterParentheses and SplitAtMainOperator through the cache; beyond the last slot they
  /// are computed and the position stays. Results point into the text or into the slots.
  std::string_view strip(std::string_view text);
  Split split(std::string_view text);

  /// The code that the slots are valid for; empty when they are not.
  std::string_view code() const { return code_; }
  /// The number of the next slot, from 1.
  std::size_t position() const { return position_; }
  /// The text of slot 1 to kSlots.
  std::string_view slot(std::size_t number) const { return slots_[number - 1]; }

 private:
  bool isValid() const { return !code_.empty(); }
  bool fits(std::size_t count) const { return position_ + count - 1 <= kSlots; }
  std::string& next() { return slots_[position_++ - 1]; }

  std::array<std::string, kSlots> slots_;
  std::size_t position_ = 1;
  std::string code_;
};

}  // namespace zel
