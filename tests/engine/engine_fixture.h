#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "engine/compiler.h"
#include "engine/engine.h"
#include "support/language_guard.h"

namespace zel::test {

/// An engine with 26 graph codes to fill, in Spanish.
class EngineTest : public ::testing::Test {
 protected:
  std::string& graphCode(char letter) { return codes_[static_cast<std::size_t>(letter - 'a')]; }

  /// "= 2,5" for a value, "! message" for a failure.
  std::string evaluateCode(std::string_view code, double x = 1) {
    double value = 0;
    std::string message;
    if (engine.Evaluate(x, value, code, message)) return "= " + writeNumber(value).str();
    return "! " + message;
  }

  std::string evaluate(std::string_view formula, double x = 1) {
    return evaluateCode(NormaliseFormula(formula), x);
  }

 private:
  LanguageGuard language_{"ES"};
  std::array<std::string, 26> codes_;

 protected:
  Engine engine{[this](char letter) -> std::string_view { return graphCode(letter); }};
};

inline constexpr std::string_view kFault = "! Valores demasiado grandes para operar.";
inline constexpr std::string_view kNoOperator = "! No se encuentra el operador.";
inline constexpr std::string_view kSyntaxError = "! Error de sintaxis.";
inline constexpr std::string_view kUserFunction =
    "! Error: No se entiende el elemento: \r\nFunción ingresada por usuario";

}  // namespace zel::test
