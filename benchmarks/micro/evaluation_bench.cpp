// Each formula over one sweep, by one evaluation after the other and by the engine's sweep.
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "benchmarks/formulas.h"
#include "engine/compiler.h"
#include "engine/engine.h"

namespace {

constexpr int kLastFormula = static_cast<int>(zel::bench::kFormulas.size()) - 1;

std::string codeOf(benchmark::State& state) {
  const auto formula = zel::bench::kFormulas[static_cast<std::size_t>(state.range(0))];
  state.SetLabel(std::string(formula));
  return zel::NormaliseFormula(formula);
}

void evaluateSingly(benchmark::State& state) {
  const std::string code = codeOf(state);
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
}
BENCHMARK(evaluateSingly)->DenseRange(0, kLastFormula);

void evaluateSweep(benchmark::State& state) {
  const std::string code = codeOf(state);
  zel::Engine engine;
  std::vector<double> xs;
  double x = zel::bench::kFirstX;
  for (int i = 0; i < zel::bench::kSamples; ++i, x += zel::bench::kXStep) xs.push_back(x);
  std::vector<double> values(xs.size());
  for (auto _ : state) {
    engine.EvaluateSweep(code, xs, values);
    benchmark::ClobberMemory();
  }
  state.SetItemsProcessed(state.iterations() * zel::bench::kSamples);
}
BENCHMARK(evaluateSweep)->DenseRange(0, kLastFormula);

}  // namespace
