#include "engine/reference/parse_cache.h"

#include <algorithm>
#include <utility>

namespace zel {

void ParseCache::prepareFor(std::string_view code) {
  if (code != code_) invalidate();
}

void ParseCache::markValid(std::string_view code) {
  if (code != code_) code_ = code;
  position_ = 1;
}

std::string_view ParseCache::strip(std::string_view text) {
  if (!fits(kStripSlots)) return StripOuterParentheses(text);
  copyLayers();
  if (isValid()) return next();
  const std::string_view stripped = StripOuterParentheses(text);
  next() = stripped;
  return stripped;
}

Split ParseCache::split(std::string_view text) {
  if (!fits(kSplitSlots)) return SplitAtMainOperator(text);
  copyLayers();
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

void ParseCache::record(std::shared_ptr<const ParseRecord> texts, std::size_t count) {
  if (!layers_.empty() && layers_.back().texts == texts && layers_.back().count >= count) return;
  while (!layers_.empty() && layers_.back().count <= count) layers_.pop_back();
  if (count > 0) layers_.push_back({std::move(texts), count});
}

void ParseCache::copyLayers() {
  for (const Layer& layer : layers_) std::copy_n(layer.texts->begin(), layer.count, slots_.begin());
  layers_.clear();
}

std::string_view ParseCache::slot(std::size_t number) const {
  const auto layer = std::find_if(layers_.rbegin(), layers_.rend(),
                                  [&](const Layer& each) { return each.count >= number; });
  return layer == layers_.rend() ? slots_[number - 1] : (*layer->texts)[number - 1];
}

}  // namespace zel
