// The sweeps of Engine: blocks where the parse cache is in a plain state and nothing faults, single
// evaluations everywhere else.
#include <algorithm>
#include <cmath>

#include "engine/engine.h"
#include "engine/plan/operation_steps.h"
#include "numbers/rounding.h"

namespace zel {
namespace {

/// Shorter ones are not worth a block.
constexpr std::size_t kShortestBlock = 4;

/// Any error will do where nobody asks for the message.
PlanOutcome errorAt(std::size_t position) {
  return {.failure = Failure::syntax, .position = position};
}

BlockProgram& blocksOf(PreparedPlan& prepared) {
  if (!prepared.blocks) prepared.blocks = std::make_unique<BlockProgram>(prepared.plan);
  return *prepared.blocks;
}

bool isDefined(double value) { return !std::isnan(value); }

}  // namespace

void Engine::EvaluateSweep(std::string_view code, std::span<const double> xs,
                           std::span<double> values) {
  for (std::size_t done = 0; done < xs.size();)
    done += sweepBlock(code, xs.subspan(done), values.subspan(done));
}

bool Engine::canRunBlocks(const PreparedPlan* prepared) const {
  return prepared != nullptr && prepared->plan.isPlain() && std::isfinite(names_.p);
}

std::size_t Engine::sweepBlock(std::string_view code, std::span<const double> xs,
                               std::span<double> values) {
  std::size_t count = 1;
  if (xs.size() >= kShortestBlock && std::isfinite(xs[0]) && select(code) &&
      state_ != State::mixed && plan_ == clean_plan_ && canRunBlocks(plan_.get()) &&
      std::isfinite(names_.t)) {
    BlockProgram& blocks = blocksOf(*plan_);
    count = std::min(blocks.capacity(), xs.size());
    blocks.setNames(names_.t, names_.p);
    const auto report = blocks.run(xs.first(count), false, values);
    if (const auto settled = settleBlock(report, code, xs.first(count), values); settled > 0)
      return settled;
    if (state_ == State::exhausted) count = 1;
  }
  for (std::size_t i = 0; i < count; ++i) {
    values[i] = kNone;
    evaluate(xs[i], values[i], code, nullptr);
  }
  return count;
}

std::size_t Engine::settleBlock(const BlockProgram::Report& report, std::string_view code,
                                std::span<const double> xs, std::span<const double> all_values) {
  const auto values = all_values.first(xs.size());
  const auto first = std::find_if(values.begin(), values.end(), isDefined);
  if (state_ == State::exhausted) {
    if (report.has_error || first == values.begin()) return 0;
    reference_.parseCache().prepareFor(code);  // and that is all that a fault does there
    return static_cast<std::size_t>(first - values.begin());
  }
  if (report.has_fault) return 0;
  if (first != values.end()) {
    settle({.position = plan_->plan.endPosition()}, code);
    if (!isDefined(values.back())) settle(errorAt(1), code);
    return xs.size();
  }
  // Nothing but errors: what is recorded is what the one that came furthest records.
  std::size_t position = 1;
  const std::size_t furthest = state_ == State::recording ? report.last_error : 1;
  for (std::size_t i = 0; i < xs.size() && position < furthest; ++i)
    position = std::max(position, evaluateStrictly(*plan_, xs[i], names_.t).position);
  settle(errorAt(position), code);
  return xs.size();
}

void Engine::EvaluateCurve(std::string_view code_x, std::string_view code_y,
                           std::span<const double> ts, std::span<double> xs, std::span<double> ys) {
  for (std::size_t done = 0; done < ts.size();)
    done += curveBlock(code_x, code_y, ts.subspan(done), xs.subspan(done), ys.subspan(done));
}

std::size_t Engine::curveBlock(std::string_view code_x, std::string_view code_y,
                               std::span<const double> ts, std::span<double> xs,
                               std::span<double> ys) {
  std::size_t count = 1;
  const ParseCache& cache = reference_.parseCache();
  // Where `code_x` was expanded last, the first point still has that expansion, and the others not.
  const bool is_plain = ts.size() >= kShortestBlock && code_x != code_y && cache.position() == 1 &&
                        cache.code() != code_x && reference_.lastCode() != code_x &&
                        expand(code_x) && canRunBlocks(clean_plan_.get());
  const auto plan_x = clean_plan_;
  if (is_plain && expand(code_y) && canRunBlocks(clean_plan_.get())) {
    const auto plan_y = clean_plan_;
    BlockProgram& blocks_x = blocksOf(*plan_x);
    BlockProgram& blocks_y = blocksOf(*plan_y);
    count = std::min({blocks_x.capacity(), blocks_y.capacity(), ts.size()});
    blocks_x.setNames(0, names_.p);
    blocks_y.setNames(0, names_.p);
    const bool has_fault = blocks_x.run(ts.first(count), true, xs).has_fault ||
                           blocks_y.run(ts.first(count), true, ys).has_fault;
    if (!has_fault) {
      SetT(ts[count - 1]);
      settleCurve(*plan_x, code_y, ts.first(count), xs, ys);
      return count;
    }
  }
  for (std::size_t i = 0; i < count; ++i) {
    SetT(ts[i]);
    xs[i] = ys[i] = kNone;
    evaluate(ts[i], xs[i], code_x, nullptr);
    evaluate(ts[i], ys[i], code_y, nullptr);
  }
  return count;
}

void Engine::settleCurve(const PreparedPlan& plan_x, std::string_view code_y,
                         std::span<const double> ts, std::span<const double> xs,
                         std::span<const double> ys) {
  ParseCache& cache = reference_.parseCache();
  const auto record = [&](const PreparedPlan& prepared, double t, double value) {
    const std::size_t position = isDefined(value)
                                     ? prepared.plan.endPosition()
                                     : evaluateStrictly(prepared, t, roundTo15Digits(t)).position;
    cache.record(prepared.plan.record(), position - 1);
  };
  // The last point that has both values hides whatever was recorded before it.
  std::size_t first = ts.size();
  while (first > 0 && !(isDefined(xs[first - 1]) && isDefined(ys[first - 1]))) --first;
  for (std::size_t i = first > 0 ? first - 1 : 0; i < ts.size(); ++i) {
    record(plan_x, ts[i], xs[i]);
    record(*clean_plan_, ts[i], ys[i]);
  }
  cache.invalidate();
  state_ = State::unknown;
  if (!isDefined(ys[ts.size() - 1])) return;
  cache.markValid(code_y);
  plan_ = clean_plan_;
  state_ = State::replaying;
}

}  // namespace zel
