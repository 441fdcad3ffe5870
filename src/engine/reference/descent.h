#pragma once

#include <string_view>

#include "engine/grammar.h"
#include "engine/reference/parse_cache.h"
#include "engine/reference/splitter.h"

namespace zel {

/// One step down into a code: what a text is, after its outer parentheses have been taken off and
/// its operands found through the parse cache.
struct Descent {
  enum class Kind {
    number,         // `text` passes the numeric test
    name,           // `text` is "x", "t", "p" or "e"
    split,          // both operands are there
    failed,         // the grammar rejects `text`; split.failure says why
    user_function,  // what the cache was read on for came without an operand
  };

  Kind kind;
  std::string_view text;
  Split split;
};

Descent descend(std::string_view text, ParseCache& cache, Splitter& splitter);

}  // namespace zel
