// One evaluation after the other by the engine, each formula over one sweep.
#include <string>

#include <benchmark/benchmark.h>

#include "engine/compiler.h"
#include "engine/engine.h"
#include "formulas.h"

namespace {

void evaluateSweep(benchmark::State& state) {
  const auto formula = zel::bench::kFormulas[static_cast<std::size_t>(state.range(0))];
  const std::string code = zel::NormaliseFormula(formula);
  zel::Engine engine;
  std::string message;
  for (auto _ : state) {
    double x = zel::bench::kFirstX;
    for (int i = 0; i < zel::bench::kSamples; ++i, x += zel::bench::kXStep) {
      double y = 0;
      benchmark::DoNotOptimize(engine.Evaluate(x, y, code, message));
      benchmark::DoNotOptimize(y);
    }
  }
  state.SetItemsProcessed(state.iterations() * zel::bench::kSamples);
  state.SetLabel(std::string(formula));
}
BENCHMARK(evaluateSweep)->DenseRange(0, static_cast<int>(zel::bench::kFormulas.size()) - 1);

}  // namespace
