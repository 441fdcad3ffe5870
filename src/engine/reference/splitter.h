#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "engine/grammar.h"

namespace zel {

/// isNumeric, StripOuterParentheses and SplitAtMainOperator for the parts of one text after the
/// other. Where a text is long it is indexed once, and then each of its parts costs a search in the
/// index instead of a walk through its characters: without that a formula's cost grows with the
/// square of its length. What was indexed must outlive the splitter.
class Splitter {
 public:
  bool isNumber(std::string_view text);
  std::string_view strip(std::string_view text);
  Split split(std::string_view text);

 private:
  bool covers(std::string_view text) const;
  void index(std::string_view text);
  /// The place of a part in the indexed text, which is indexed for it when it lies elsewhere.
  std::size_t placeOf(std::string_view text);
  /// IsBalanced for the characters from `begin` up to `end`.
  bool isBalanced(std::size_t begin, std::size_t end) const;

  std::string_view indexed_;
  std::vector<std::int32_t> depths_;      // "(" minus ")" before each character and before the end
  std::vector<std::uint32_t> signs_;      // operators before each character and before the end
  std::vector<std::uint64_t> operators_;  // keys of depth, level and place, in order
  std::vector<std::uint64_t> closings_;   // keys of the depth behind a ")" and its place, in order
  std::vector<std::size_t> empty_pairs_;  // places of "()", in order
};

}  // namespace zel
