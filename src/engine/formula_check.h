#pragma once

#include <string>
#include <string_view>

#include "engine/engine.h"

namespace zel {

/// Whether a formula may be declared. Sets "x", "t" and "p" to 1 and evaluates once; `message` is
/// what the evaluation said, empty when it succeeded. Only an expression that cannot be understood
/// and a syntax error refuse a formula: one that is merely undefined at 1 passes, and so, on
/// purpose, does one whose operator cannot be found ("x)").
bool CheckFormula(Engine& engine, std::string_view formula, std::string& message);

}  // namespace zel
