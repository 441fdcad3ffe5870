#include "plot/curves/function_sweep.h"

namespace zel {

void sweepFunction(const CurveTools& tools, std::string_view code) {
  sweepSamples(tools, code, [](const Sample&) {});
}

}  // namespace zel
