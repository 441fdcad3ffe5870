#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/function_library.h"
#include "engine/grammar.h"
#include "engine/outcome.h"
#include "engine/reference/parse_cache.h"

/// A code as a list of operations over numbered values, in the order in which the reference applies
/// them. docs/evaluation.md tells why both give the same.
namespace zel {

/// The names' values as their number text reads: rounded to 15 digits, or an infinity where the
/// text is too large to be read.
struct NameValues {
  double x = 0;
  double t = 0;
  double p = 0;
};

/// What an operation computes. `other` is whatever ComputeOperator does with its operator; the rest
/// are short cuts, with the function code or the exponent known.
enum class Kind : std::uint8_t {
  other,
  add,
  subtract,
  multiply,
  divide,
  power,
  square,
  cube,
  absolute,
  sign,
  logarithm,
  decimal_logarithm,
  exponential,
  square_root,
  cube_root,
  reciprocal,
  sine,
  cosine,
  tangent,
  arc_tangent,
  factorial,
};

struct Operation {
  Kind kind = Kind::other;
  char op = '+';
  /// Numbers of values. The operand of a function stands on the right, of "#" on the left.
  std::uint32_t left = 0;
  std::uint32_t right = 0;
  std::uint32_t result = 0;
  /// The position of the parse cache when the operator is applied.
  std::uint32_t position = 1;
};

/// What an evaluation by a plan comes to.
struct PlanOutcome {
  Outcome::Kind kind = Outcome::Kind::value;
  double value = 0;
  std::size_t position = 1;         // of the parse cache, where it ended
  Failure failure = Failure::none;  // of the operation; none where the grammar rejects the code
  double left = 0;                  // of the operation that failed,
  char op = '+';                    // with its operator
  bool at_the_end = false;          // the value itself is the fault: its text cannot be read
};

class Plan {
 public:
  static constexpr std::uint32_t kX = 0;
  static constexpr std::uint32_t kT = 1;
  static constexpr std::uint32_t kP = 2;

  /// Takes a code apart. Where the grammar rejects a part of it, the plan ends there.
  static Plan make(std::string_view expanded);

  /// Operation by operation as the reference does it, failures and all.
  PlanOutcome evaluateStrictly(const NameValues& names) const;
  /// The message of an error that it came to, in the current language.
  std::string message(const PlanOutcome& error) const;

  const std::vector<Operation>& operations() const { return operations_; }
  /// What the values start as: the names, the constants, then room for the results.
  const std::vector<double>& values() const { return values_; }
  /// The number of the value of the whole code.
  std::uint32_t result() const { return result_; }
  /// Whether a program can run it. Only evaluateStrictly knows what comes of a constant that is too
  /// large to be read, and of a code that the grammar rejects.
  bool isPlain() const { return is_plain_ && !rejection_; }

  /// The position of the parse cache after a whole evaluation.
  std::size_t endPosition() const { return end_position_; }
  /// What a whole evaluation leaves in the slots.
  const ParseRecord& record() const { return record_; }

 private:
  friend class PlanMaker;

  /// Why the grammar rejects a part of the code.
  struct Rejection {
    SplitFailure failure;
    std::string text;
  };

  std::vector<Operation> operations_;
  std::vector<double> values_;
  std::uint32_t result_ = 0;
  std::optional<Rejection> rejection_;
  bool is_plain_ = true;
  std::size_t end_position_ = 1;
  ParseRecord record_;
};

}  // namespace zel
