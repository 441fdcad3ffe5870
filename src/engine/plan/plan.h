#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "engine/function_library.h"
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
  reciprocal,
  sine,
  cosine,
  tangent,
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
  Failure failure = Failure::none;
  double value = 0;
  std::size_t position = 1;  // of the parse cache, where it ended
  double left = 0;           // of the operation that failed,
  char op = '+';             // with its operator
  bool at_the_end = false;   // the value itself is the fault: its text cannot be read
};

class Plan {
 public:
  static constexpr std::uint32_t kX = 0;
  static constexpr std::uint32_t kT = 1;
  static constexpr std::uint32_t kP = 2;

  /// Takes a code apart through a parse cache, which is used up by it: a new one for an evaluation
  /// that records, a copy of one that is valid for an evaluation that replays. Nothing where the
  /// grammar rejects a part of the code.
  static std::unique_ptr<Plan> make(std::string_view expanded, ParseCache cache);

  /// Operation by operation as the reference does it, failures and all.
  PlanOutcome evaluateStrictly(const NameValues& names) const;

  const std::vector<Operation>& operations() const { return operations_; }
  /// What the values start as: the names, the constants, then room for the results.
  const std::vector<double>& values() const { return values_; }
  /// The number of the value of the whole code.
  std::uint32_t result() const { return result_; }
  /// A constant that is too large to be read: only evaluateStrictly knows what comes of it.
  bool isPlain() const { return is_plain_; }

  /// The position of the parse cache after a whole evaluation.
  std::size_t endPosition() const { return end_position_; }
  /// What a whole evaluation leaves in the slots.
  const std::shared_ptr<const ParseRecord>& record() const { return record_; }

 private:
  friend class PlanMaker;

  std::vector<Operation> operations_;
  std::vector<double> values_;
  std::uint32_t result_ = 0;
  bool is_plain_ = true;
  std::size_t end_position_ = 1;
  std::shared_ptr<const ParseRecord> record_;
};

}  // namespace zel
