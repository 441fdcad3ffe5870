#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

/// Turns a formula as typed into its code: the same infix text without blanks and in lower case,
/// every function name replaced by its code and an application operator. The code is the only form
/// that is ever evaluated.
namespace zel {

/// Names of the prefix functions; the place of a name is its function code. The order is part of
/// the document format: "lngamma" is replaced before "gamma" and "ln", so no name damages another.
inline constexpr std::array<std::string_view, 18> PrefixFunctions = {
    "lngamma", "gamma", "abs", "sig", "ln",  "log", "exp",  "raiz2", "raiz3",
    "inv",     "sen",   "cos", "tan", "atn", "sin", "sqrt", "sgn",   "trpl"};

inline constexpr std::array<std::string_view, 1> PostfixFunctions = {"!"};

/// The names offered to a user of the language ("EN" or any other for Spanish), in menu order. The
/// compiler accepts the names of both languages always.
std::span<const std::string_view> offeredFunctions(std::string_view language);

/// Never fails: what is no formula is found out when its code is evaluated.
/// "raiz2(x^2 + 1)" gives "7@(x^2+1)"; "Sig X!" gives "3@x#0".
std::string NormaliseFormula(std::string_view formula);

}  // namespace zel
