// One evaluation by the literal rules: the parse cache is prepared for the code as it was given,
// calls of graphs are put in, and the code is reduced from number text to number text. A value
// leaves a valid cache behind, an error an empty one, and a fault leaves the cache where it stood.

#include "engine/reference/reference_engine.h"

#include <cmath>
#include <optional>
#include <utility>

#include "base/language.h"

namespace zel {
namespace {

bool failWithFault(std::string& message) {
  message = Localize("Valores demasiado grandes para operar.");
  return false;
}

}  // namespace

ReferenceEngine::ReferenceEngine(GraphCodes graphs)
    : graphs_(std::move(graphs)), reducer_(cache_) {}

bool ReferenceEngine::Evaluate(double x, double& result, std::string_view code,
                               std::string& message) {
  if (!std::isfinite(x)) return failWithFault(message);
  SetX(x);
  cache_.prepareFor(code);
  if (!Expand(code)) return failWithFault(message);
  const auto kind = reducer_.reduce(references_.expanded, {value_x_, value_t_, value_p_});
  // A fault leaves the cache as it found it; an error invalidates it. Both are meant.
  if (kind == Outcome::Kind::fault) return failWithFault(message);
  cache_.markValid(code);
  if (kind == Outcome::Kind::error) {
    cache_.invalidate();
    message = reducer_.message();
    return false;
  }
  const std::string_view text = reducer_.result();
  const auto value = text.empty() ? 0.0 : readNumber(text);
  if (!value) return failWithFault(message);
  result = *value;
  return true;
}

bool ReferenceEngine::Expand(std::string_view code) {
  if (code == references_.code) return !references_.outgrown;
  // One that is too long by itself is not kept: to compare many megabytes takes longer than this.
  if (code.size() > kMaxExpandedCode) {
    references_ = {};
    return false;
  }
  auto expanded = ExpandReferences(code, graphs_, kMaxExpandedCode);
  references_.code = code;
  references_.outgrown = !expanded;
  references_.expanded = expanded ? std::move(*expanded) : std::string();
  return expanded.has_value();
}

}  // namespace zel
