// A plan for many x: each operation goes over a block of values before the next one begins, and
// rounds them to 15 digits as the text would. A value that fails becomes none and stays none. The
// loops are compiled for each instruction set and give the same bits.

#include "engine/plan/block_program.h"

#include <algorithm>

#include "engine/plan/block_steps.h"

namespace zel {
namespace {

/// The values of a block stay in the nearest cache.
constexpr std::size_t kCachedChunks = 32768 / sizeof(Chunk);
constexpr std::size_t kMostChunks = 16;

/// A name as an operation that gives its operand.
constexpr Operation kName = {Kind::add, '+', Plan::kX, Plan::kX, Plan::kX, 1};

}  // namespace

template <class Arithmetic>
ZEL_ALWAYS_INLINE BlockProgram::Report BlockProgram::run(BlockProgram& program, std::size_t chunks,
                                                         bool is_curve) {
  Report report;
  Chunk* const x = program.value(Plan::kX);
  roundBlock<Arithmetic>(kName, {x, x, x, chunks}, program.guess_of_x_, report);
  if (is_curve) std::copy_n(x, chunks, program.value(Plan::kT));
  for (Step& step : program.steps_) {
    const Operation& operation = step.operation;
    const Block block = {program.value(operation.left), program.value(operation.right),
                         program.value(operation.result), chunks};
    runStep<Arithmetic>(step, block, report);
  }
  return report;
}

BlockProgram::Report BlockProgram::runPlain(BlockProgram& program, std::size_t chunks,
                                            bool is_curve) {
  return run<PlainArithmetic>(program, chunks, is_curve);
}

#if ZEL_HAS_TARGETS
ZEL_TARGET_V3 BlockProgram::Report BlockProgram::runV3(BlockProgram& program, std::size_t chunks,
                                                       bool is_curve) {
  return run<FusedArithmetic>(program, chunks, is_curve);
}

ZEL_TARGET_V4 BlockProgram::Report BlockProgram::runV4(BlockProgram& program, std::size_t chunks,
                                                       bool is_curve) {
  return run<FusedArithmetic>(program, chunks, is_curve);
}
#endif

BlockProgram::Run BlockProgram::runFor(InstructionSet set) {
#if ZEL_HAS_TARGETS
  switch (set) {
    case InstructionSet::v4: return runV4;
    case InstructionSet::v3: return runV3;
    default: break;
  }
#endif
  static_cast<void>(set);
  return runPlain;
}

BlockProgram::BlockProgram(const Plan& plan, InstructionSet set)
    : chunks_(std::clamp<std::size_t>(kCachedChunks / plan.values().size(), 1, kMostChunks)),
      values_(chunks_ * plan.values().size()),
      result_(plan.result()),
      run_(runFor(set)) {
  for (std::uint32_t i = 0; i < plan.values().size(); ++i) fill(i, plan.values()[i]);
  for (const Operation& operation : plan.operations()) steps_.push_back({operation, {}});
}

void BlockProgram::fill(std::uint32_t number, double constant) {
  for (std::size_t c = 0; c < chunks_; ++c) value(number)[c].lanes.fill(constant);
}

void BlockProgram::setNames(double t, double p) {
  fill(Plan::kT, t);
  fill(Plan::kP, p);
}

BlockProgram::Report BlockProgram::run(std::span<const double> xs, bool is_curve,
                                       std::span<double> values) {
  const std::size_t chunks = (xs.size() + kChunk - 1) / kChunk;
  double* const lanes = value(Plan::kX)->lanes.data();
  const auto padded = std::transform(xs.begin(), xs.end(), lanes, [](double x) {
    return std::isnan(x) ? HUGE_VAL : x;  // fails and says so
  });
  std::fill(padded, lanes + chunks * kChunk, xs.back());
  const Report report = run_(*this, chunks, is_curve);
  std::copy_n(value(result_)->lanes.data(), xs.size(), values.begin());
  return report;
}

}  // namespace zel
