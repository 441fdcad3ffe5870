// A parameter is put into a template as text: each key, in the order of the parameters, is replaced
// by its value in parentheses wherever it occurs. A key that occurs in a value put in before is
// replaced too.

#include "graphs/kinds.h"

#include <array>
#include <cstddef>

#include "base/text.h"

namespace zel {
namespace {

constexpr std::size_t placeInTable(char letter) { return static_cast<std::size_t>(letter - 'A'); }

/// The names are kept as they are, accents or none. "7@" is the code of the square root.
constexpr std::array<KindInfo, 7> kKinds = {{
    {'F', "Función", false, "", ""},
    {'C', "Cincunferencia", true, "7@(r^2-(h-x)^2)+k", "-7@(r^2-(h-x)^2)+k"},
    {'E', "Elipse", true, "7@((1-(x-h)^2/a^2)*b^2)+k", "-7@((1-(x-h)^2/a^2)*b^2)+k"},
    {'P', "Parabola", false, "a*x^2-2*h*a*x+a*h^2+k", ""},
    {'H', "Hiperbola", true, "7@(((x-h)^2/a^2-1)*(c^2-a^2))+k", "-7@(((x-h)^2/a^2-1)*(c^2-a^2))+k"},
    {'Z', "Haz de rectas", false, "", ""},
    {'T', "Paramétrica", false, "", ""},
}};

constexpr auto kTable = [] {
  std::array<KindInfo, 26> table;
  for (const KindInfo& kind : kKinds) table[placeInTable(kind.letter)] = kind;
  return table;
}();

}  // namespace

const KindInfo* kindInfo(char letter) {
  return letter >= 'A' && letter <= 'Z' ? &kTable[placeInTable(letter)] : nullptr;
}

std::string substituteParameters(std::string_view code_template, const Parameters& parameters) {
  std::string code(code_template);
  for (const auto& [key, value] : parameters) {
    const std::string in_brackets = "(" + value + ")";
    code = replaceAllIgnoringCase(code, key, in_brackets);
  }
  return code;
}

}  // namespace zel
