#include "plot/curves/parameter_range.h"

#include "numbers/number_text.h"

namespace zel {

std::optional<ParameterRange> parameterRange(const GraphDef& def) {
  const auto inicio = readNumber(parameter(def, "inicio"));
  const auto fin = readNumber(parameter(def, "fin"));
  const auto variacion = readNumber(parameter(def, "variacion"));
  if (!inicio || !fin || !variacion) return std::nullopt;
  return ParameterRange{*inicio, *fin, *variacion};
}

}  // namespace zel
