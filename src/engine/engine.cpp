#include "engine/engine.h"

#include <cmath>
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
  if (state_ == State::replaying && has_readable_names_ && code == reference_.lastCode()) {
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
  return state_ == State::mixed ? evaluateByReference(x, result, code, message)
                                : evaluateByPlan(x, result, code, message);
}

bool Engine::select(std::string_view code) {
  if (!expand(code)) return false;
  if (state_ == State::unknown) state_ = findState(code);
  return true;
}

bool Engine::expand(std::string_view code) {
  if (code == reference_.lastCode()) return !reference_.hasOutgrown();
  state_ = State::unknown;
  mixed_replays_ = 0;
  clean_plan_ = nullptr;
  if (!reference_.Expand(code)) return false;
  clean_plan_ = plans_.find(reference_.expanded());
  return true;
}

Engine::State Engine::findState(std::string_view code) {
  const ParseCache& cache = reference_.parseCache();
  plan_ = clean_plan_;
  if (plan_ && cache.position() > ParseCache::kSlots) return State::exhausted;
  if (cache.position() != 1) return State::mixed;
  const bool is_valid = !code.empty() && cache.code() == code;
  if (!is_valid) {
    mixed_replays_ = 0;
    return plan_ ? State::recording : State::mixed;
  }
  // Taking apart what the slots hold pays only where it stays for a while.
  constexpr int kReplaysBeforePlan = 8;
  if (++mixed_replays_ < kReplaysBeforePlan) return State::mixed;
  auto plan = Plan::make(reference_.expanded(), cache);
  plan_ = plan ? std::make_shared<PreparedPlan>(std::move(*plan)) : nullptr;
  return plan_ ? State::replaying : State::mixed;
}

bool Engine::evaluateByReference(double x, double& result, std::string_view code,
                                 std::string* message) {
  if (untold_t_) reference_.SetT(*std::exchange(untold_t_, std::nullopt));
  if (untold_p_) reference_.SetP(*std::exchange(untold_p_, std::nullopt));
  std::string unwanted;
  state_ = State::unknown;
  return reference_.Evaluate(x, result, code, message != nullptr ? *message : unwanted);
}

bool Engine::evaluateByPlan(double x, double& result, std::string_view code, std::string* message) {
  const double value =
      has_readable_names_ ? plan_->scalar.evaluate(x, names_.t, names_.p) : HUGE_VAL;
  if (std::isfinite(value)) {
    result = value;
    if (state_ != State::replaying)
      settle({.value = value, .position = plan_->plan.endPosition()}, code);
    return true;
  }
  const PlanOutcome outcome = evaluateStrictly(*plan_, x, names_.t);
  settle(outcome, code);
  if (outcome.failure == Failure::fault) return failWithFault(message);
  if (outcome.failure == Failure::none) {
    result = outcome.value;
    return true;
  }
  if (message != nullptr) *message = FailureMessage(outcome.failure, outcome.left, outcome.op);
  return false;
}

PlanOutcome Engine::evaluateStrictly(const PreparedPlan& prepared, double x, double t) const {
  return prepared.plan.evaluateStrictly({roundTo15Digits(x), t, names_.p});
}

void Engine::settle(const PlanOutcome& outcome, std::string_view code) {
  ParseCache& cache = reference_.parseCache();
  if (state_ != State::replaying) cache.prepareFor(code);
  if (state_ == State::recording) cache.record(plan_->plan.record(), outcome.position - 1);
  if (outcome.failure == Failure::fault && !outcome.at_the_end) {
    if (state_ != State::exhausted) cache.moveTo(outcome.position);
    state_ = State::unknown;
  } else if (outcome.failure == Failure::none || outcome.at_the_end) {
    cache.markValid(code);
    state_ = state_ == State::exhausted ? State::unknown : State::replaying;
  } else {
    cache.moveTo(1);
    cache.invalidate();
    state_ = State::unknown;
  }
}

bool EvaluateFormula(Engine& engine, double x, double& result, std::string_view formula,
                     std::string& message) {
  return engine.Evaluate(x, result, NormaliseFormula(formula), message);
}

}  // namespace zel
