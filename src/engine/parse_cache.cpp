#include "engine/parse_cache.h"

namespace zel {
namespace {

constexpr std::size_t kStripSlots = 1;
constexpr std::size_t kSplitSlots = 3;

}  // namespace

void ParseCache::prepareFor(std::string_view code) {
  if (code != code_) invalidate();
}

void ParseCache::markValid(std::string_view code) {
  if (code != code_) code_ = code;
  position_ = 1;
}

std::string_view ParseCache::strip(std::string_view text) {
  if (!fits(kStripSlots)) return StripOuterParentheses(text);
  if (isValid()) return next();
  const std::string_view stripped = StripOuterParentheses(text);
  next() = stripped;
  return stripped;
}

Split ParseCache::split(std::string_view text) {
  if (!fits(kSplitSlots)) return SplitAtMainOperator(text);
  if (isValid()) {
    Split replayed;
    replayed.left = next();
    replayed.right = next();
    replayed.op = next();
    return replayed;
  }
  const Split computed = SplitAtMainOperator(text);
  next() = computed.left;
  next() = computed.right;
  next() = computed.op;
  return computed;
}

}  // namespace zel
