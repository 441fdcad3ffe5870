#include "graphs/graph_def.h"

#include "base/code_page.h"
#include "graphs/kinds.h"
#include "numbers/number_text.h"

namespace zel {

std::string kindText(const GraphDef& def) {
  return def.tipo == '\0' ? std::string() : fromCodePage({&def.tipo, 1});
}

std::string parameter(const GraphDef& def, std::string_view key) {
  return def.parameters ? def.parameters->Item(key) : std::string();
}

std::string displayText(const GraphDef& def) {
  switch (def.tipo) {
    case 'C':
    case 'P':
    case 'H':
    case 'E':
    case 'T': return def.ecuacion;
    case 'F': return std::string(1, def.nombre) + "(x)=" + def.ecuacion;
    case 'Z': {
      const std::string name = parameter(def, "parametro");
      return std::string(1, def.nombre) + "(x," + name + ")=" + def.ecuacion + " [" +
             parameter(def, "inicio") + "<=" + name + "<=" + parameter(def, "fin") + "]";
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
