// The index of a text: of each character how many parentheses are open before it, the operators
// ordered by that depth, by how weak they are, and by place, and the closing parentheses ordered by
// the depth that they lead to. The operators outside parentheses of any part of the text are those
// with the depth of the part's end, so the main one is found by binary search; so is the first ")"
// too many of an inner text.
#include "engine/reference/splitter.h"

#include <algorithm>
#include <functional>

#include "numbers/number_text.h"

namespace zel {
namespace {

/// A shorter text is sooner walked through.
constexpr std::size_t kWorthAnIndex = 64;

/// Ordered by depth, then level, then place. A depth may be negative; a place has 32 bits.
std::uint64_t keyOf(std::int32_t depth, std::size_t level, std::size_t place) {
  constexpr std::int64_t kOffset = 1 << 27;
  return (static_cast<std::uint64_t>(depth + kOffset) << 36) | (std::uint64_t{level} << 32) | place;
}

std::size_t placeIn(std::uint64_t key) { return key & 0xFFFFFFFF; }

}  // namespace

bool Splitter::isNumber(std::string_view text) {
  constexpr std::uint32_t kMostSigns = 2;  // its own and that of its exponent
  if (text.size() >= kWorthAnIndex) {
    const std::size_t begin = placeOf(text);
    if (signs_[begin + text.size()] - signs_[begin] > kMostSigns) return false;
  }
  return isNumeric(text);
}

std::string_view Splitter::strip(std::string_view text) {
  if (text.size() < kWorthAnIndex) return StripOuterParentheses(text);
  std::size_t begin = placeOf(text);
  std::size_t end = begin + text.size();
  while (end - begin >= 2 && indexed_[begin] == '(' && indexed_[end - 1] == ')' &&
         isBalanced(begin + 1, end - 1)) {
    ++begin;
    --end;
  }
  return indexed_.substr(begin, end - begin);
}

Split Splitter::split(std::string_view text) {
  if (text.size() < kWorthAnIndex) return SplitAtMainOperator(text);
  const std::size_t begin = placeOf(text);
  const std::size_t end = begin + text.size();
  const std::int32_t depth = depths_[end];
  for (std::size_t level = 0; level < OperatorPrecedence.size(); ++level) {
    const auto next = std::ranges::lower_bound(operators_, keyOf(depth, level, end));
    if (next == operators_.begin() || *(next - 1) < keyOf(depth, level, begin)) continue;
    const std::size_t place = placeIn(*(next - 1)) - begin;
    return MakeSplit(strip(text.substr(0, place)), text.substr(place, 1),
                     strip(text.substr(place + 1)));
  }
  return {{}, {}, {}, SplitFailure::no_operator};
}

bool Splitter::covers(std::string_view text) const {
  const std::less_equal<> is_before;
  return is_before(indexed_.data(), text.data()) &&
         is_before(text.data() + text.size(), indexed_.data() + indexed_.size());
}

std::size_t Splitter::placeOf(std::string_view text) {
  if (!covers(text)) index(text);
  return static_cast<std::size_t>(text.data() - indexed_.data());
}

void Splitter::index(std::string_view text) {
  indexed_ = text;
  depths_.assign(1, 0);
  signs_.assign(1, 0);
  operators_.clear();
  closings_.clear();
  empty_pairs_.clear();
  for (std::size_t i = 0; i < text.size(); ++i) {
    std::int32_t depth = depths_.back();
    if (text[i] == '(') {
      ++depth;
      if (i + 1 < text.size() && text[i + 1] == ')') empty_pairs_.push_back(i);
    } else if (text[i] == ')') {
      closings_.push_back(keyOf(--depth, 0, i));
    } else if (const auto level = OperatorPrecedence.find(text[i]);
               level != std::string_view::npos) {
      operators_.push_back(keyOf(depth, level, i));
    }
    depths_.push_back(depth);
    signs_.push_back(static_cast<std::uint32_t>(operators_.size()));
  }
  std::ranges::sort(operators_);
  std::ranges::sort(closings_);
}

bool Splitter::isBalanced(std::size_t begin, std::size_t end) const {
  std::size_t stop = end;
  const std::uint64_t too_many = keyOf(depths_[begin] - 1, 0, begin);
  const auto closing = std::ranges::lower_bound(closings_, too_many);
  if (closing != closings_.end() && *closing < keyOf(depths_[begin] - 1, 0, end))
    stop = placeIn(*closing) + 1;
  const auto pair = std::ranges::lower_bound(empty_pairs_, begin);
  if (pair != empty_pairs_.end()) stop = std::min(stop, *pair + 2);
  return depths_[stop] == depths_[begin];
}

}  // namespace zel
