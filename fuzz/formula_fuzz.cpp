// Formulas and sequences of them on one engine: the first byte of each line is x, the rest is the
// formula. Nothing may crash, hang or grow, and a value must be a number.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "engine/compiler.h"
#include "engine/engine.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view input(reinterpret_cast<const char*>(data), size);
  zel::Engine engine([](char letter) -> std::string_view {
    return letter < 'm' ? "x+1" : letter < 'w' ? "2*a(x)-x" : "";
  });
  while (!input.empty()) {
    const std::string_view line = input.substr(0, input.find('\n'));
    input.remove_prefix(std::min(input.size(), line.size() + 1));
    if (line.empty()) continue;
    const double x = static_cast<signed char>(line[0]) / 8.0;
    const std::string code = zel::NormaliseFormula(line.substr(1));
    double value = 0;
    std::string message;
    for (int round = 0; round < 2; ++round) {
      const bool defined = engine.Evaluate(x, value, code, message);
      if (defined ? !std::isfinite(value) : message.empty()) std::abort();
    }
  }
  return 0;
}
