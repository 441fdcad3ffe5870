// What the parse cache is in for decides how a code is evaluated. At its first slot a plan gives
// what the reference would, whether the cache is valid or not; only the evaluation after a fault on
// a valid cache, which reads on from the middle of the record, is the reference's own.
#include "engine/engine.h"

#include <cmath>
#include <cstdint>
#include <cstring>
#include <utility>

#include "base/language.h"
#include "engine/compiler.h"
#include "numbers/rounding.h"

namespace zel {
namespace {

bool failWithFault(std::string* message) {
  if (message != nullptr) *message = Localize("Valores demasiado grandes para operar.");
  return false;
}

std::uint64_t wordAt(const char* text) {
  std::uint64_t word = 0;
  std::memcpy(&word, text, sizeof word);
  return word;
}

/// Whether two texts are the same. For the few words of a usual code a call of the library takes
/// longer than all else that goes before an evaluation.
bool isSame(std::string_view text, std::string_view other) {
  constexpr std::size_t kWord = sizeof(std::uint64_t);
  constexpr std::size_t kUsualSize = 8 * kWord;
  const std::size_t size = text.size();
  if (size != other.size()) return false;
  if (size < kWord || size > kUsualSize) return text == other;
  std::uint64_t difference =
      wordAt(text.data() + size - kWord) ^ wordAt(other.data() + size - kWord);
  for (std::size_t i = 0; i + kWord < size; i += kWord)
    difference |= wordAt(text.data() + i) ^ wordAt(other.data() + i);
  return difference == 0;
}

}  // namespace

Engine::Engine(GraphCodes graphs) : reference_(std::move(graphs)) {}

void Engine::InitEngine() { SetP(0); }

void Engine::SetX(double value) { reference_.SetX(value); }

void Engine::SetT(double value) {
  untold_t_ = value;
  names_.t = roundTo15Digits(value);
  has_readable_names_ = std::isfinite(names_.t) && std::isfinite(names_.p);
}

void Engine::SetP(double value) {
  untold_p_ = value;
  names_.p = roundTo15Digits(value);
  has_readable_names_ = std::isfinite(names_.t) && std::isfinite(names_.p);
}

double Engine::GetP() const { return std::isfinite(names_.p) ? names_.p : 0; }

bool Engine::Evaluate(double x, double& result, std::string_view code, std::string& message) {
  // The usual way, with all that can be known beforehand known.
  if (replays_ && has_readable_names_ && isSame(code, reference_.lastCode())) {
    const double value = plan_->scalar.evaluate(x, names_.t, names_.p);
    if (std::isfinite(value)) {
      result = value;
      return true;
    }
  }
  return evaluate(x, result, code, &message);
}

bool Engine::evaluate(double x, double& result, std::string_view code, std::string* message) {
  if (!std::isfinite(x) || !select(code)) return failWithFault(message);
  if (readsOn()) return readOn(x, result, code, message);
  const PlanOutcome outcome = evaluateByPlan(x);
  settle(outcome, code);
  switch (outcome.kind) {
    case Outcome::Kind::value: result = outcome.value; return true;
    case Outcome::Kind::fault: return failWithFault(message);
    default: break;
  }
  if (message != nullptr) *message = plan_->plan.message(outcome);
  return false;
}

bool Engine::select(std::string_view code) {
  if (code != reference_.lastCode() || !plan_) {
    plan_ = nullptr;
    recorded_ = 0;
    replays_ = false;
    if (reference_.Expand(code)) plan_ = plans_.find(reference_.expanded());
  }
  reference_.parseCache().prepareFor(code);
  return plan_ != nullptr;
}

bool Engine::readOn(double x, double& result, std::string_view code, std::string* message) {
  if (untold_t_) reference_.SetT(*std::exchange(untold_t_, std::nullopt));
  if (untold_p_) reference_.SetP(*std::exchange(untold_p_, std::nullopt));
  std::string unwanted;
  const bool defined =
      reference_.Evaluate(x, result, code, message != nullptr ? *message : unwanted);
  const ParseCache& cache = reference_.parseCache();
  replays_ = cache.position() == 1 && !cache.code().empty();
  return defined;
}

PlanOutcome Engine::evaluateByPlan(double x) {
  const double value =
      has_readable_names_ ? plan_->scalar.evaluate(x, names_.t, names_.p) : HUGE_VAL;
  if (std::isfinite(value)) return {.value = value, .position = plan_->plan.endPosition()};
  return evaluateStrictly(plan_->plan, x, names_.t, names_.p);
}

PlanOutcome Engine::evaluateStrictly(const Plan& plan, double x, double t, double p) {
  return plan.evaluateStrictly({roundTo15Digits(x), t, p});
}

void Engine::settle(const PlanOutcome& outcome, std::string_view code) {
  ParseCache& cache = reference_.parseCache();
  if (outcome.position - 1 > recorded_) {
    recorded_ = outcome.position - 1;
    cache.record(plan_->plan.record(), recorded_);
  }
  replays_ = outcome.kind == Outcome::Kind::value || outcome.at_the_end;
  if (replays_)
    cache.markValid(code);
  else if (outcome.kind == Outcome::Kind::fault)
    cache.moveTo(outcome.position);
  else
    cache.invalidate();
}

bool EvaluateFormula(Engine& engine, double x, double& result, std::string_view formula,
                     std::string& message) {
  return engine.Evaluate(x, result, NormaliseFormula(formula), message);
}

}  // namespace zel
