// The sweeps of Engine. A value by a plan does not depend on the parse cache, so a block of them is
// computed at once; then the parse cache is led through what each of the evaluations does to it.
// Only the value after a fault on a valid cache is another one, and is asked for by itself.
#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "engine/engine.h"
#include "engine/plan/operation_steps.h"
#include "numbers/rounding.h"

namespace zel {
namespace {

/// Shorter ones are not worth a block.
constexpr std::size_t kShortestBlock = 4;

/// One evaluation by itself, perhaps operation by operation or by the reference, takes longer than
/// a value of a block by as much.
constexpr std::size_t kSingleCost = 8;

/// Any error will do where nobody asks for the message.
constexpr PlanOutcome kSomeError = {.kind = Outcome::Kind::error};

/// So many samples are a block, whatever one of them costs: a block computes its chunks whole.
std::size_t roomFor(std::size_t cost) {
  return std::max(BlockProgram::kChunk, Engine::kMostWork / cost);
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
    done += SweepPart(code, xs.subspan(done), values.subspan(done));
}

std::size_t Engine::SweepPart(std::string_view code, std::span<const double> xs,
                              std::span<double> values) {
  std::size_t done = 0;
  for (std::size_t work = 0; done < xs.size() && work < kMostWork;)
    done += sweepBlock(code, xs.subspan(done), values.subspan(done), work);
  return done;
}

bool Engine::canRunBlocks(const Plan& plan) const {
  return plan.isPlain() && std::isfinite(names_.p);
}

std::size_t Engine::sweepBlock(std::string_view code, std::span<const double> xs,
                               std::span<double> values, std::size_t& work) {
  if (xs.size() >= kShortestBlock && std::isfinite(xs[0]) && select(code) &&
      canRunBlocks(plan_->plan) && std::isfinite(names_.t)) {
    BlockProgram& blocks = blocksOf(*plan_);
    const std::size_t count = std::min({blocks.capacity(), xs.size(), roomFor(costOfLast())});
    blocks.setNames(names_.t, names_.p);
    const auto report = blocks.run(xs.first(count), false, values);
    work += count * costOfLast() + settleBlock(report, code, xs.first(count), values);
    return count;
  }
  values[0] = kNone;
  evaluate(xs[0], values[0], code, nullptr);
  work += kSingleCost * costOfLast();
  return 1;
}

std::size_t Engine::settleBlock(const BlockProgram::Report& report, std::string_view code,
                                std::span<const double> xs, std::span<double> values) {
  // Where there is both, it takes an evaluation by itself to know what a failure is.
  const bool is_unclear = report.has_fault && report.has_error;
  const PlanOutcome some_value = {.position = plan_->plan.endPosition()};
  if (!report.has_fault && !report.has_error && !readsOn()) {
    if (!replays_) settle(some_value, code);
    return 0;
  }
  std::size_t singles = 0;
  for (std::size_t i = 0; i < xs.size(); ++i) {
    const bool is_last = i + 1 == xs.size() || !std::isfinite(xs[i + 1]);
    if (!std::isfinite(xs[i])) {
      values[i] = kNone;  // nothing was evaluated
    } else if (readsOn()) {
      values[i] = kNone;
      readOn(xs[i], values[i], code, nullptr);
      ++singles;
    } else if (isDefined(values[i])) {
      if (!replays_) settle(some_value, code);
    } else if (is_unclear || recorded_ + 1 < report.last_error ||
               (report.has_fault && (replays_ || is_last))) {
      settle(evaluateStrictly(plan_->plan, xs[i], names_.t, names_.p), code);
      ++singles;
    } else {
      settle(kSomeError, code);
    }
  }
  return singles * kSingleCost * costOfLast();
}

std::size_t Engine::CurvePart(std::string_view code_x, std::string_view code_y,
                              std::span<const double> ts, std::span<double> xs,
                              std::span<double> ys) {
  std::size_t done = 0;
  for (std::size_t work = 0; done < ts.size() && work < kMostWork;)
    done += curveBlock(code_x, code_y, ts.subspan(done), xs.subspan(done), ys.subspan(done), work);
  return done;
}

std::size_t Engine::curveBlock(std::string_view code_x, std::string_view code_y,
                               std::span<const double> ts, std::span<double> xs,
                               std::span<double> ys, std::size_t& work) {
  // Where `code_x` was evaluated last, the first point still has its expansion and its record.
  if (ts.size() >= kShortestBlock && code_x != code_y && reference_.lastCode() != code_x &&
      select(code_x) && canRunBlocks(plan_->plan)) {
    const auto plan_x = plan_;
    const std::size_t cost_x = costOfLast();
    if (select(code_y) && canRunBlocks(plan_->plan)) {
      BlockProgram& blocks_x = blocksOf(*plan_x);
      BlockProgram& blocks_y = blocksOf(*plan_);
      const std::size_t cost = cost_x + costOfLast();
      const std::size_t count =
          std::min({blocks_x.capacity(), blocks_y.capacity(), ts.size(), roomFor(cost)});
      blocks_x.setNames(0, names_.p);
      blocks_y.setNames(0, names_.p);
      blocks_x.run(ts.first(count), true, xs);
      blocks_y.run(ts.first(count), true, ys);
      SetT(ts[count - 1]);
      settleCurve(plan_x->plan, code_y, ts.first(count), xs, ys);
      work += count * cost;
      return count;
    }
  }
  SetT(ts[0]);
  xs[0] = ys[0] = kNone;
  evaluate(ts[0], xs[0], code_x, nullptr);
  work += kSingleCost * costOfLast();
  evaluate(ts[0], ys[0], code_y, nullptr);
  work += kSingleCost * costOfLast();
  return 1;
}

void Engine::settleCurve(const Plan& plan_x, std::string_view code_y, std::span<const double> ts,
                         std::span<const double> xs, std::span<const double> ys) {
  const auto outcomeOf = [&](const Plan& plan, double t, double value) -> PlanOutcome {
    if (isDefined(value)) return {.position = plan.endPosition()};
    return evaluateStrictly(plan, t, roundTo15Digits(t), names_.p);
  };
  const Plan& plan_y = plan_->plan;
  const PlanOutcome last = outcomeOf(plan_y, ts.back(), ys[ts.size() - 1]);
  // Each evaluation records over what is there, so that of the earlier ones only what is longer
  // than all later ones is left.
  std::vector<std::pair<const Plan*, std::size_t>> records = {{&plan_y, last.position - 1}};
  const std::size_t longest = std::max(plan_x.record().size(), plan_y.record().size());
  const auto add = [&](const Plan& plan, double t, double value) {
    if (records.back().second == longest) return;
    const std::size_t count = outcomeOf(plan, t, value).position - 1;
    if (count > records.back().second) records.emplace_back(&plan, count);
  };
  for (std::size_t i = ts.size(); i-- > 0 && records.back().second < longest;) {
    if (i + 1 < ts.size()) add(plan_y, ts[i], ys[i]);
    add(plan_x, ts[i], xs[i]);
  }
  for (; !records.empty(); records.pop_back())
    reference_.parseCache().record(records.back().first->record(), records.back().second);
  recorded_ = last.position - 1;
  settle(last, code_y);
}

}  // namespace zel
