// Every strip takes the next slot and every split the next three, in the order in which an
// evaluation asks for them. A valid cache answers from the slots; one that is not computes and
// records. Nobody asks beyond the last slot: what does not fit is computed each time.

#include "engine/reference/parse_cache.h"

#include <algorithm>

namespace zel {

void ParseCache::prepareFor(std::string_view code) {
  if (!isValid() || code != code_) invalidate();
}

void ParseCache::markValid(std::string_view code) {
  if (code != code_) code_ = code;
  position_ = 1;
}

void ParseCache::invalidate() {
  code_.clear();
  position_ = 1;
}

std::string_view ParseCache::strip(std::string_view text, Splitter& splitter) {
  if (!fits(kStripSlots)) return splitter.strip(text);
  if (isValid()) return next();
  const std::string_view stripped = splitter.strip(text);
  next() = stripped;
  return stripped;
}

Split ParseCache::split(std::string_view text, Splitter& splitter) {
  if (!fits(kSplitSlots)) return splitter.split(text);
  if (isValid()) {
    Split replayed;
    replayed.left = next();
    replayed.right = next();
    replayed.op = next();
    return replayed;
  }
  const Split computed = splitter.split(text);
  next() = computed.left;
  next() = computed.right;
  next() = computed.op;
  return computed;
}

void ParseCache::record(const ParseRecord& texts, std::size_t count) {
  std::copy_n(texts.begin(), count, slots_.begin());
}

}  // namespace zel
