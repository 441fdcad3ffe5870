#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "engine/reference/parse_cache.h"
#include "engine/reference/reducer.h"
#include "engine/reference/reference_expansion.h"
#include "numbers/number_text.h"

namespace zel {

/// The evaluation that defines the language: from number text to number text, by one step of the
/// grammar after the other. An Engine gives what this one gives, and asks it for the evaluation
/// after a fault that reads on in the parse cache.
class ReferenceEngine {
 public:
  /// The longest code that is evaluated, after the expansion of its graph calls, in bytes. A longer
  /// one fails like an arithmetic fault.
  static constexpr std::size_t kMaxExpandedCode = 16384;

  /// Without graphs each call of one stands for an empty code.
  explicit ReferenceEngine(GraphCodes graphs = {});
  ReferenceEngine(const ReferenceEngine&) = delete;
  ReferenceEngine& operator=(const ReferenceEngine&) = delete;

  void SetX(double value) { value_x_ = writeNumber(value); }
  void SetT(double value) { value_t_ = writeNumber(value); }
  void SetP(double value) { value_p_ = writeNumber(value); }

  /// As Engine::Evaluate.
  bool Evaluate(double x, double& result, std::string_view code, std::string& message);

  /// The first step of an evaluation: brings the reference cache up to the code. False when the
  /// expansion outgrew its limit.
  bool Expand(std::string_view code);
  /// The last code that was expanded, and what became of it; kept even when the graphs change
  /// meanwhile, which is meant.
  std::string_view lastCode() const { return references_.code; }
  std::string_view expanded() const { return references_.expanded; }

  ParseCache& parseCache() { return cache_; }
  const ParseCache& parseCache() const { return cache_; }

 private:
  struct ReferenceCache {
    std::string code;
    std::string expanded;
    bool outgrown = false;
  };

  GraphCodes graphs_;
  NumberText value_x_ = writeNumber(0);
  NumberText value_t_;
  NumberText value_p_ = writeNumber(0);
  ParseCache cache_;
  ReferenceCache references_;
  Reducer reducer_;
};

}  // namespace zel
