// A code is taken apart once, by the same descent that the reference goes step by step, and each
// split becomes an operation behind those of its operands: a list that is run from front to back. A
// code that the grammar rejects has a plan too, which ends with the rejection, because what stands
// before it may fail first.

#include <bit>
#include <cmath>
#include <map>
#include <optional>
#include <tuple>
#include <utility>

#include "engine/plan/plan.h"
#include "engine/reference/descent.h"
#include "numbers/number_text.h"
#include "numbers/rounding.h"

namespace zel {
namespace {

Kind kindOfPrefixFunction(double function) {
  const auto code = roundToInt32(function);
  if (!code) return Kind::other;
  switch (*code) {
    case 2: return Kind::absolute;
    case 3:
    case 16: return Kind::sign;
    case 4: return Kind::logarithm;
    case 5: return Kind::decimal_logarithm;
    case 6: return Kind::exponential;
    case 7:
    case 15: return Kind::square_root;
    case 8:
    case 17: return Kind::cube_root;
    case 9: return Kind::reciprocal;
    case 10:
    case 14: return Kind::sine;
    case 11: return Kind::cosine;
    case 12: return Kind::tangent;
    case 13: return Kind::arc_tangent;
    default: return Kind::other;
  }
}

Kind kindOf(char op, std::optional<double> left, std::optional<double> right) {
  switch (op) {
    case '+': return Kind::add;
    case '-': return Kind::subtract;
    case '*': return Kind::multiply;
    case '/': return Kind::divide;
    case '^': return right == 2 ? Kind::square : right == 3 ? Kind::cube : Kind::power;
    case '@': return left ? kindOfPrefixFunction(*left) : Kind::other;
    case '#': return right == 0 ? Kind::factorial : Kind::other;
    default: return Kind::other;
  }
}

}  // namespace

/// Walks through a code as Reducer does, with the numbers of values in the place of their texts.
/// What is computed twice is computed once, and what is constant is computed here.
class PlanMaker {
 public:
  PlanMaker() { plan_.values_ = {0, 0, 0}; }

  Plan make(std::string_view code);

 private:
  struct Pending {
    Split split;
    std::uint32_t left = 0;
    bool has_left = false;
  };

  /// The value of the whole code; nothing where the grammar rejects a part of it.
  std::optional<std::uint32_t> walk(std::string_view code);
  std::optional<std::uint32_t> leaf(const Descent& descent);
  std::uint32_t apply(const Pending& pending, std::uint32_t right);
  std::uint32_t constant(double value);
  /// The value of a constant; nothing for what is known at the evaluation only.
  std::optional<double> known(std::uint32_t number) const;

  ParseCache cache_;
  Splitter splitter_;
  Plan plan_;
  std::map<std::uint64_t, std::uint32_t> constants_;  // by their bits
  std::map<std::uint32_t, double> known_;
  std::map<std::tuple<char, std::uint32_t, std::uint32_t>, std::uint32_t> results_;
};

std::optional<std::uint32_t> PlanMaker::walk(std::string_view code) {
  std::vector<Pending> stack;
  std::string_view text = code;
  for (;;) {
    const Descent descent = descend(text, cache_, splitter_);
    if (descent.kind == Descent::Kind::split) {
      stack.push_back({descent.split, 0, false});
      text = descent.split.left;
      continue;
    }
    auto value = leaf(descent);
    while (value && !stack.empty() && stack.back().has_left) {
      value = apply(stack.back(), *value);
      stack.pop_back();
    }
    if (!value || stack.empty()) return value;
    stack.back().left = *value;
    stack.back().has_left = true;
    text = stack.back().split.right;
  }
}

std::optional<std::uint32_t> PlanMaker::leaf(const Descent& descent) {
  if (descent.kind == Descent::Kind::number)
    return constant(readNumber(descent.text).value_or(HUGE_VAL));
  if (descent.kind != Descent::Kind::name) {
    plan_.rejection_ = {descent.split.failure, std::string(descent.text)};
    return std::nullopt;
  }
  switch (descent.text[0]) {
    case 'x': return Plan::kX;
    case 't': return Plan::kT;
    case 'p': return Plan::kP;
    default: return constant(kEuler);
  }
}

std::uint32_t PlanMaker::apply(const Pending& pending, std::uint32_t right) {
  const char op = pending.split.op[0];
  const auto left_value = known(pending.left);
  const auto right_value = known(right);
  if (left_value && right_value && std::isfinite(*left_value) && std::isfinite(*right_value)) {
    const Computed computed = ComputeOperator(*left_value, *right_value, op);
    if (computed.failure == Failure::none) return constant(roundTo15Digits(computed.value));
  }
  const auto [place, is_new] = results_.try_emplace({op, pending.left, right});
  if (is_new) {
    place->second = static_cast<std::uint32_t>(plan_.values_.size());
    plan_.values_.push_back(0);
    plan_.operations_.push_back({kindOf(op, left_value, right_value), op, pending.left, right,
                                 place->second, static_cast<std::uint32_t>(cache_.position())});
  }
  return place->second;
}

std::uint32_t PlanMaker::constant(double value) {
  const auto [place, is_new] = constants_.try_emplace(std::bit_cast<std::uint64_t>(value));
  if (is_new) {
    place->second = static_cast<std::uint32_t>(plan_.values_.size());
    plan_.values_.push_back(value);
    known_[place->second] = value;
    if (!std::isfinite(value)) plan_.is_plain_ = false;
  }
  return place->second;
}

std::optional<double> PlanMaker::known(std::uint32_t number) const {
  const auto found = known_.find(number);
  return found == known_.end() ? std::nullopt : std::optional(found->second);
}

Plan PlanMaker::make(std::string_view code) {
  plan_.result_ = walk(code).value_or(Plan::kX);
  plan_.end_position_ = cache_.position();
  for (std::size_t slot = 1; slot < cache_.position(); ++slot)
    plan_.record_.emplace_back(cache_.slot(slot));
  return std::move(plan_);
}

Plan Plan::make(std::string_view expanded) { return PlanMaker().make(expanded); }

}  // namespace zel
