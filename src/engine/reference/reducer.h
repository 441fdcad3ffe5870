#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "engine/outcome.h"
#include "engine/reference/descent.h"
#include "engine/reference/parse_cache.h"
#include "numbers/number_text.h"

namespace zel {

/// The texts of the names that a code can hold; "e" is a constant.
struct NameTexts {
  std::string_view x;
  std::string_view t;
  std::string_view p;
};

/// Reduces a code step by step to the number text of its value: takes the text apart through the
/// parse cache, reduces the left operand, then the right one, and applies the operator to their
/// texts. It walks with a stack of its own, so the depth of a code costs memory and nothing else.
class Reducer {
 public:
  explicit Reducer(ParseCache& cache) : cache_(cache) {}

  /// The first error or fault ends the reduction. After `value`, result() is the text of the
  /// value: number text, a number as it stands in the code, or the text of a name. `code` and the
  /// texts must outlive the result.
  Outcome::Kind reduce(std::string_view code, const NameTexts& names);

  std::string_view result() const { return value_.text(); }
  const std::string& message() const { return message_; }

 private:
  /// A text on its way up: a piece of the code, or number text made here.
  class Value {
   public:
    void borrow(std::string_view text) {
      borrowed_ = text;
      is_written_ = false;
    }
    void write(double number) {
      written_ = writeNumber(number);
      is_written_ = true;
    }
    std::string_view text() const { return is_written_ ? written_.view() : borrowed_; }

   private:
    std::string_view borrowed_;
    NumberText written_;
    bool is_written_ = false;
  };

  /// A split whose operands are being reduced.
  struct Pending {
    Split split;
    Value left;
    bool has_left = false;
  };

  /// The text of what needs no further reduction; false where it is an error.
  bool borrow(const Descent& leaf, const NameTexts& names);
  Outcome::Kind apply(const Pending& pending);
  void raise(std::string message) { message_ = std::move(message); }
  void raiseUnknownElement();

  ParseCache& cache_;
  std::vector<Pending> stack_;
  Value value_;
  std::string message_;
};

}  // namespace zel
