#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "engine/plan/plan.h"
#include "numbers/rounding_steps.h"

namespace zel {

/// A plan made ready for blocks of many x. A value that fails is NaN and stays so to the end, since
/// every result is an operand of a later operation.
class BlockProgram {
 public:
  /// So many values go through the registers together.
  static constexpr std::size_t kChunk = 16;
  struct alignas(64) Chunk {
    std::array<double, kChunk> lanes;
  };

  /// What a block came to, beside its values.
  struct Report {
    /// Something happened that only Plan::evaluateStrictly can tell, perhaps a fault.
    bool has_fault = false;
    /// Something ended, or may have ended, otherwise than by a fault.
    bool has_error = false;
    /// The position of the parse cache at the last operation that failed somewhere; 0 without one.
    std::size_t last_error = 0;
  };

  explicit BlockProgram(const Plan& plan, InstructionSet set = bestInstructionSet());

  /// The most x that run() takes.
  std::size_t capacity() const { return chunks_ * kChunk; }
  /// Before run(): the names other than x, as their text reads.
  void setNames(double t, double p);
  /// Gives `values` as many values as there are x; NaN where there is none. With `is_curve`, "t"
  /// is the x too.
  Report run(std::span<const double> xs, bool is_curve, std::span<double> values);

  struct Step {
    Operation operation;
    DecadeGuess guess;
  };

 private:
  using Run = Report (*)(BlockProgram& program, std::size_t chunks, bool is_curve);

  template <class Arithmetic>
  static Report run(BlockProgram& program, std::size_t chunks, bool is_curve);
  static Report runPlain(BlockProgram& program, std::size_t chunks, bool is_curve);
  static Report runV3(BlockProgram& program, std::size_t chunks, bool is_curve);
  static Report runV4(BlockProgram& program, std::size_t chunks, bool is_curve);
  static Run runFor(InstructionSet set);

  Chunk* value(std::uint32_t number) { return &values_[number * chunks_]; }
  void fill(std::uint32_t number, double constant);

  std::size_t chunks_;
  std::vector<Chunk> values_;
  std::vector<Step> steps_;
  DecadeGuess guess_of_x_;
  std::uint32_t result_;
  Run run_;
};

}  // namespace zel
