#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "base/number_text.h"
#include "engine/parse_cache.h"
#include "engine/reducer.h"
#include "engine/reference_expansion.h"

namespace zel {

/// Evaluates codes. One engine serves the whole program; its state (the values of the names, the
/// parse cache and the reference cache) carries over from one evaluation to the next, and
/// evaluations must not interleave.
class Engine {
 public:
  /// The longest code that is evaluated, after the expansion of its graph calls, in bytes. A longer
  /// one fails like an arithmetic fault.
  static constexpr std::size_t kMaxExpandedCode = 16384;

  /// Without graphs each call of one stands for an empty code.
  explicit Engine(GraphCodes graphs = {});
  Engine(const Engine&) = delete;
  Engine& operator=(const Engine&) = delete;

  /// Puts "p" back to "0".
  void InitEngine();

  /// Values must be finite. "t" is an empty text until it is set first, which reads as 0.
  void SetX(double value);
  void SetT(double value);
  void SetP(double value);
  /// "p" as a number; 0 when its text is empty.
  double GetP() const;

  /// The value of a code at x; trigonometric functions take degrees. False means that the code is
  /// undefined there: `message` says why, in the current language, and `result` is unchanged.
  bool Evaluate(double x, double& result, std::string_view code, std::string& message);

  const ParseCache& parseCache() const { return cache_; }

 private:
  /// The last code that was expanded and what became of it; kept even when the graphs change
  /// meanwhile, which is meant.
  struct ReferenceCache {
    std::string code;
    std::string expanded;
    bool outgrown = false;
  };

  /// Brings the reference cache up to the code; false when the expansion outgrew its limit.
  bool expand(std::string_view code);

  GraphCodes graphs_;
  NumberText value_x_;
  NumberText value_t_;
  NumberText value_p_;
  ParseCache cache_;
  ReferenceCache references_;
  Reducer reducer_;
};

/// NormaliseFormula, then Evaluate.
bool EvaluateFormula(Engine& engine, double x, double& result, std::string_view formula,
                     std::string& message);

}  // namespace zel
