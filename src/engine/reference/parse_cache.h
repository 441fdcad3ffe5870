#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "engine/grammar.h"

namespace zel {

/// The texts of the slots that a whole evaluation records when it starts at the first one.
using ParseRecord = std::vector<std::string>;

/// Remembers how the last code was taken apart. While it is not valid, every strip and split is
/// computed and recorded at the current position; while it is valid, the same calls come in the
/// same order and each reads its record instead. After an arithmetic fault the position stays
/// where the fault found it, and the next evaluation starts there: this is meant, and so are the
/// mixed records that can come of it.
class ParseCache {
 public:
  /// A strip takes one slot, a split three (left, right, operator).
  static constexpr std::size_t kSlots = 120;
  static constexpr std::size_t kStripSlots = 1;
  static constexpr std::size_t kSplitSlots = 3;

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

  /// What an evaluation that is known beforehand leaves: the first `count` slots as it records
  /// them, and its position. The texts are copied only when they are needed.
  void record(std::shared_ptr<const ParseRecord> texts, std::size_t count);
  void moveTo(std::size_t position) { position_ = position; }

  /// The code that the slots are valid for; empty when they are not.
  std::string_view code() const { return code_; }
  /// The number of the next slot, from 1.
  std::size_t position() const { return position_; }
  /// The text of slot 1 to kSlots.
  std::string_view slot(std::size_t number) const;

 private:
  /// Slots that are not copied yet. They lie over each other, each with fewer slots than the one
  /// below it.
  struct Layer {
    std::shared_ptr<const ParseRecord> texts;
    std::size_t count = 0;
  };

  bool isValid() const { return !code_.empty(); }
  bool fits(std::size_t count) const { return position_ + count - 1 <= kSlots; }
  std::string& next() { return slots_[position_++ - 1]; }
  void copyLayers();

  std::array<std::string, kSlots> slots_;
  std::vector<Layer> layers_;
  std::size_t position_ = 1;
  std::string code_;
};

}  // namespace zel
