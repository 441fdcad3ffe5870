#include "engine/engine.h"

#include <cmath>
#include <optional>
#include <utility>

#include "base/language.h"
#include "engine/compiler.h"

namespace zel {
namespace {

bool failWithFault(std::string& message) {
  message = Localize("Valores demasiado grandes para operar.");
  return false;
}

}  // namespace

Engine::Engine(GraphCodes graphs) : graphs_(std::move(graphs)), reducer_(cache_) {
  SetX(0);
  InitEngine();
}

void Engine::InitEngine() { SetP(0); }

void Engine::SetX(double value) { value_x_ = writeNumber(value); }
void Engine::SetT(double value) { value_t_ = writeNumber(value); }
void Engine::SetP(double value) { value_p_ = writeNumber(value); }

double Engine::GetP() const { return readNumber(value_p_).value_or(0); }

bool Engine::Evaluate(double x, double& result, std::string_view code, std::string& message) {
  if (!std::isfinite(x)) return failWithFault(message);
  SetX(x);
  if (!expand(code)) return failWithFault(message);
  cache_.prepareFor(code);
  const auto kind = reducer_.reduce(references_.expanded, {value_x_, value_t_, value_p_});
  // A fault leaves the cache as it found it; an error rewinds and invalidates it. Both are meant.
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

bool Engine::expand(std::string_view code) {
  if (code == references_.code) return !references_.outgrown;
  auto expanded = ExpandReferences(code, graphs_, kMaxExpandedCode);
  references_.code = code;
  references_.outgrown = !expanded;
  references_.expanded = expanded ? std::move(*expanded) : std::string();
  return expanded.has_value();
}

bool EvaluateFormula(Engine& engine, double x, double& result, std::string_view formula,
                     std::string& message) {
  return engine.Evaluate(x, result, NormaliseFormula(formula), message);
}

}  // namespace zel
