// Compiling is replacing text. The names are replaced in the order of their codes, and that order
// is part of the format: "lngamma" goes before "gamma" and "ln", so that no name is damaged by one
// that is part of it.

#include "engine/compiler.h"

#include "base/text.h"

namespace zel {
namespace {

constexpr std::array<std::string_view, 12> kSpanishOffer = {
    "log", "ln", "atn", "cos", "sen", "tan", "!", "exp", "raiz2", "raiz3", "sig", "abs"};
constexpr std::array<std::string_view, 12> kEnglishOffer = {
    "log", "ln", "atn", "cos", "sin", "tan", "!", "exp", "sqrt", "trpl", "sgn", "abs"};

}  // namespace

std::span<const std::string_view> offeredFunctions(std::string_view language) {
  return language == "EN" ? kEnglishOffer : kSpanishOffer;
}

std::string NormaliseFormula(std::string_view formula) {
  std::string code = toLower(formula);
  std::erase(code, ' ');
  for (std::size_t i = 0; i < PrefixFunctions.size(); ++i)
    replaceWithin(code, PrefixFunctions[i], std::to_string(i) + "@");
  for (std::size_t i = 0; i < PostfixFunctions.size(); ++i)
    replaceWithin(code, PostfixFunctions[i], std::string("#").append(std::to_string(i)));
  return code;
}

}  // namespace zel
