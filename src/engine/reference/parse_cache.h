#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "engine/grammar.h"
#include "engine/reference/splitter.h"

namespace zel {

/// The texts of the slots that a whole evaluation records.
using ParseRecord = std::vector<std::string>;

/// Remembers how the last code was taken apart. While it is not valid, every strip and split is
/// computed and recorded from the first slot on; while it is valid, the same calls come in the same
/// order and each reads its record instead. After an arithmetic fault a valid cache stays as it is,
/// and the next evaluation of the same code reads on from the place where the fault stopped, beyond
/// the code's own record too: this is meant.
class ParseCache {
 public:
  /// A strip takes one slot, a split three (left, right, operator).
  static constexpr std::size_t kSlots = 120;
  static constexpr std::size_t kStripSlots = 1;
  static constexpr std::size_t kSplitSlots = 3;

  /// Before an evaluation: a cache that is not valid for the code is invalidated.
  void prepareFor(std::string_view code);
  /// After an evaluation that ended without a fault.
  void markValid(std::string_view code);
  /// Empties the code and goes back to the first slot. The texts stay in their slots.
  void invalidate();

  /// StripOuterParentheses and SplitAtMainOperator through the cache; beyond the last slot they
  /// are computed and the position stays. Results point into the text or into the slots.
  std::string_view strip(std::string_view text, Splitter& splitter);
  Split split(std::string_view text, Splitter& splitter);

  /// What an evaluation that is known beforehand leaves: the first `count` slots as it records
  /// them, and its position.
  void record(const ParseRecord& texts, std::size_t count);
  void moveTo(std::size_t position) { position_ = position; }

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
