#pragma once

#include <span>
#include <string_view>

#include <muParser.h>

namespace zel::bench {

/// One of our formulas as muParser evaluates it. It reads the same text: the names that it lacks
/// are functions on plain doubles, and sines and their like take degrees.
class PlainDoubles {
 public:
  /// `x` is where each evaluation finds its x, in bulk mode the first one of them.
  PlainDoubles(std::string_view formula, double* x);

  double evaluate() { return parser_.Eval(); }
  /// As many values as there is room for.
  void evaluateBulk(std::span<double> values) {
    parser_.Eval(values.data(), static_cast<int>(values.size()));
  }

 private:
  mu::Parser parser_;
};

}  // namespace zel::bench
