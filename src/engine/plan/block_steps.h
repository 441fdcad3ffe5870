#pragma once

#include <array>
#include <cmath>
#include <cstdint>

#include "engine/plan/block_program.h"
#include "engine/plan/operation_steps.h"
#include "numbers/elementary/lanes.h"
#include "numbers/rounding_steps.h"

/// The loops of BlockProgram, to be compiled for each instruction set: an operation over the lanes
/// of each chunk, then their rounding. That guesses that all lanes are in the decade of the last
/// ones, otherwise rounds each as of any decade, and goes lane by lane only where one is in doubt
/// or has failed.
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
    case Kind::square_root:
    case Kind::cube_root: return true;
    case Kind::divide: return right == 0;
    case Kind::factorial:
    case Kind::other: return ComputeOperator(left, right, operation.op).failure != Failure::fault;
    default: return false;
  }
}

/// One operation on the lanes of a chunk, before the rounding. A lane that has no value keeps none.
template <Kind kind, class Arithmetic>
ZEL_ALWAYS_INLINE void computeChunk(const double* left, const double* right,
                                    double* __restrict result, char op) {
  if constexpr (hasStages(kind)) {
    computeLanes<kLanes>(
        result,
        [&](std::size_t i)
            ZEL_INLINE_LAMBDA { return firstStageOf<kind, Arithmetic>(left[i], right[i]); },
        [&](std::size_t i) ZEL_INLINE_LAMBDA { return settledOf<kind>(left[i], right[i]); });
  } else {
    // These would make a number of what is none.
    constexpr bool kHidesNone = kind == Kind::sign || kind == Kind::other;
    for (std::size_t i = 0; i < kLanes; ++i) {
      const bool is_none = kHidesNone && (std::isnan(left[i]) || std::isnan(right[i]));
      result[i] = is_none ? kNone : compute<kind, Arithmetic>(left[i], right[i], op);
    }
  }
}

template <Kind kind, class Arithmetic>
ZEL_ALWAYS_INLINE void computeBlock(const Block& block, char op) {
  for (std::size_t c = 0; c < block.chunks; ++c)
    computeChunk<kind, Arithmetic>(block.left[c].lanes.data(), block.right[c].lanes.data(),
                                   block.result[c].lanes.data(), op);
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

/// Rounds the lanes of a chunk at once; false, and nothing done, where one of them needs a look.
ZEL_ALWAYS_INLINE bool roundTogether(Chunk& result, const DecadeGuess& guess) {
  alignas(64) std::array<double, kLanes> rounded;
  std::uint64_t outside = 0;
  for (std::size_t i = 0; i < kLanes; ++i) {
    outside |= guess.holds(result.lanes[i]) ? 0U : 1U;
    rounded[i] = guess.round(result.lanes[i]);
  }
  if (outside == 0) {
    result.lanes = rounded;
    return true;
  }
  std::uint64_t doubt = 0;
  for (std::size_t i = 0; i < kLanes; ++i) {
    const Candidate candidate = roundingCandidate<FusedArithmetic>(result.lanes[i]);
    rounded[i] = candidate.value;
    doubt |= candidate.isSure() ? 0U : 1U;
  }
  if (doubt != 0) return false;
  result.lanes = rounded;
  return true;
}

template <class Arithmetic>
ZEL_ALWAYS_INLINE void roundBlock(const Operation& operation, const Block& block, DecadeGuess& last,
                                  BlockProgram::Report& report) {
  DecadeGuess guess = last;
  for (std::size_t c = 0; c < block.chunks; ++c) {
    Chunk& result = block.result[c];
    if constexpr (Arithmetic::kIsFused) {
      const double last_lane = result.lanes[kLanes - 1];
      const bool is_done = roundTogether(result, guess);
      if (!guess.holds(last_lane)) guess.moveTo(last_lane);
      if (is_done) continue;
    }
    roundLanes<Arithmetic>(operation, block.left[c], block.right[c], result, report);
  }
  last = guess;
}

template <class Arithmetic>
ZEL_ALWAYS_INLINE void runStep(BlockProgram::Step& step, const Block& block,
                               BlockProgram::Report& report) {
  withKind(step.operation.kind, [&]<Kind kind>() ZEL_INLINE_LAMBDA {
    computeBlock<kind, Arithmetic>(block, step.operation.op);
  });
  roundBlock<Arithmetic>(step.operation, block, step.guess, report);
}

}  // namespace zel
