#pragma once

#include <array>
#include <cmath>
#include <cstdint>

#include "engine/plan/block_program.h"
#include "engine/plan/operation_steps.h"
#include "engine/plan/power_shortcuts.h"
#include "numbers/rounding_steps.h"

/// The loops of BlockProgram, to be compiled for each instruction set.
namespace zel {

using Chunk = BlockProgram::Chunk;
constexpr std::size_t kLanes = BlockProgram::kChunk;

/// The operands and the result of a step, so many chunks of each.
struct Block {
  const Chunk* left;
  const Chunk* right;
  Chunk* result;
  std::size_t chunks;
};

/// Whether a failure is an error with a message for sure, rather than perhaps a fault.
inline bool isError(const Operation& operation, double left, double right) {
  switch (operation.kind) {
    case Kind::logarithm:
    case Kind::decimal_logarithm:
    case Kind::square_root: return true;
    case Kind::divide: return right == 0;
    case Kind::other: return ComputeOperator(left, right, operation.op).failure != Failure::fault;
    default: return false;
  }
}

/// One operation on all lanes, before the rounding.
template <Kind kind>
ZEL_ALWAYS_INLINE void computeBlock(const Block& block, char op) {
  // These would make a number of what is none.
  constexpr bool kHidesNone = kind == Kind::power || kind == Kind::sign || kind == Kind::other;
  for (std::size_t c = 0; c < block.chunks; ++c) {
    const double* const left = block.left[c].lanes.data();
    const double* const right = block.right[c].lanes.data();
    double* __restrict const result = block.result[c].lanes.data();
    for (std::size_t i = 0; i < kLanes; ++i) {
      const bool is_none = kHidesNone && (std::isnan(left[i]) || std::isnan(right[i]));
      result[i] = is_none ? kNone : compute<kind>(left[i], right[i], op);
    }
  }
}

/// The same for a power that has a short cut; only what that leaves in doubt is computed.
template <Kind kind>
ZEL_ALWAYS_INLINE void shortcutBlock(const Block& block, const DecadeGuess& last) {
  DecadeGuess guess = last;
  for (std::size_t c = 0; c < block.chunks; ++c) {
    const double* const left = block.left[c].lanes.data();
    double* __restrict const result = block.result[c].lanes.data();
    alignas(64) std::array<std::uint64_t, kLanes> doubts;
    std::uint64_t doubt = 0;
    for (std::size_t i = 0; i < kLanes; ++i) {
      const DoubleDouble power = shortcut<kind>(left[i]);
      const bool is_outside = !guess.holds(power.high);
      const bool is_doubtful = isDoubtful(power, guess.scale);
      result[i] = power.high;
      doubts[i] = (is_outside | is_doubtful) ? 1 : 0;
      doubt |= doubts[i];
    }
    if (doubt == 0) continue;
    for (std::size_t i = 0; i < kLanes; ++i) {
      if (doubts[i] == 0 || std::isnan(left[i])) continue;
      guess.moveTo(result[i]);
      const DoubleDouble power = shortcut<kind>(left[i]);
      const bool is_sure = guess.holds(power.high) && !isDoubtful(power, guess.scale);
      if (!is_sure) result[i] = compute<kind>(left[i], block.right[c].lanes[i], '^');
    }
  }
}

/// Rounds the lanes of a chunk one by one, and finds those that have just failed.
template <class Arithmetic>
ZEL_ALWAYS_INLINE void roundLanes(const Operation& operation, const Chunk& left, const Chunk& right,
                                  Chunk& result, BlockProgram::Report& report) {
  for (std::size_t i = 0; i < kLanes; ++i) {
    double& value = result.lanes[i];
    if (std::isfinite(value)) {
      value = roundAny<Arithmetic>(value);
      if (std::isfinite(value)) continue;
      report.has_fault = report.has_error = true;  // if it is the last step it is no fault in it
    } else if (!std::isnan(left.lanes[i]) && !std::isnan(right.lanes[i])) {
      report.last_error = operation.position;
      const bool is_error = isError(operation, left.lanes[i], right.lanes[i]);
      (is_error ? report.has_error : report.has_fault) = true;
    }
    value = kNone;
  }
}

template <class Arithmetic>
ZEL_ALWAYS_INLINE void roundBlock(const Operation& operation, const Block& block, DecadeGuess& last,
                                  BlockProgram::Report& report) {
  DecadeGuess guess = last;
  for (std::size_t c = 0; c < block.chunks; ++c) {
    Chunk& result = block.result[c];
    if constexpr (Arithmetic::kIsFused) {
      alignas(64) std::array<double, kLanes> rounded;
      std::uint64_t outside = 0;
      for (std::size_t i = 0; i < kLanes; ++i) {
        outside |= guess.holds(result.lanes[i]) ? 0U : 1U;
        rounded[i] = guess.round(result.lanes[i]);
      }
      if (outside == 0) {
        result.lanes = rounded;
        continue;
      }
      guess.moveTo(result.lanes[kLanes - 1]);
    }
    roundLanes<Arithmetic>(operation, block.left[c], block.right[c], result, report);
  }
  last = guess;
}

template <class Arithmetic>
ZEL_ALWAYS_INLINE void runStep(BlockProgram::Step& step, const Block& block,
                               BlockProgram::Report& report) {
  withKind(step.operation.kind, [&]<Kind kind>() ZEL_INLINE_LAMBDA {
    if constexpr (Arithmetic::kIsFused && hasShortcut(kind))
      shortcutBlock<kind>(block, step.guess);
    else
      computeBlock<kind>(block, step.operation.op);
  });
  roundBlock<Arithmetic>(step.operation, block, step.guess, report);
}

}  // namespace zel
