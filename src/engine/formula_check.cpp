// A formula is tried by one evaluation at x = t = p = 1. Only what can never be understood is
// refused: a formula that is not defined there may be defined elsewhere, and one without an
// operator is let through on purpose.

#include "engine/formula_check.h"

#include <algorithm>
#include <array>

#include "base/language.h"
#include "base/message_table.h"
#include "base/text.h"
#include "engine/compiler.h"

namespace zel {

bool CheckFormula(Engine& engine, std::string_view formula, std::string& message) {
  engine.SetX(1);
  engine.SetT(1);
  engine.SetP(1);
  message.clear();
  double value = 0;
  if (EvaluateFormula(engine, 1, value, formula, message)) return true;
  constexpr std::string_view kUnknownElement = "Error: No se entiende el elemento: ";
  const std::array<std::string_view, 3> refusals = {kUnknownElement, "Error de sintaxis.",
                                                    messages::kRangeTooClose};
  return std::ranges::none_of(refusals, [&](std::string_view refusal) {
    return containsIgnoringCase(message, Localize(refusal));
  });
}

}  // namespace zel
