#include "graphs/graph_def.h"

#include "base/code_page.h"
#include "graphs/kinds.h"
#include "numbers/number_text.h"

namespace zel {
namespace {

std::string_view valueOf(const GraphDef& def, std::string_view key) {
  const std::string* const value = def.parameters ? def.parameters->find(key) : nullptr;
  return value == nullptr ? std::string_view() : std::string_view(*value);
}

}  // namespace

std::string kindText(const GraphDef& def) {
  return def.tipo == '\0' ? std::string() : fromCodePage({&def.tipo, 1});
}

std::string parameter(const GraphDef& def, std::string_view key) {
  return std::string(valueOf(def, key));
}

std::string displayText(const GraphDef& def) {
  std::string text;
  for (const std::string_view piece : displayPieces(def)) text += piece;
  return text;
}

std::vector<std::string_view> displayPieces(const GraphDef& def) {
  const std::string_view letter(&def.nombre, 1);
  switch (def.tipo) {
    case 'C':
    case 'P':
    case 'H':
    case 'E':
    case 'T': return {def.ecuacion};
    case 'F': return {letter, "(x)=", def.ecuacion};
    case 'Z': {
      const auto name = valueOf(def, "parametro");
      return {letter,
              "(x,",
              name,
              ")=",
              def.ecuacion,
              " [",
              valueOf(def, "inicio"),
              "<=",
              name,
              "<=",
              valueOf(def, "fin"),
              "]"};
    }
    default: return {};
  }
}

std::optional<double> mainParameter(const GraphDef& def) {
  switch (def.tipo) {
    case 'C': return readNumber(parameter(def, "r"));
    case 'E':
    case 'H': return readNumber(parameter(def, "a"));
    default: return std::nullopt;
  }
}

bool isTwoBranch(const GraphDef& def) {
  const KindInfo* const kind = kindInfo(def.tipo);
  return kind != nullptr && kind->two_branches;
}

}  // namespace zel
