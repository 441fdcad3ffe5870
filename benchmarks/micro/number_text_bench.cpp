// Number text written and read back, on values as formulas produce them.
#include <random>
#include <vector>

#include <benchmark/benchmark.h>

#include "numbers/number_text.h"

namespace {

std::vector<double> values() {
  std::mt19937_64 random(1);
  std::uniform_real_distribution<double> uniform(-1000, 1000);
  std::vector<double> result(4096);
  for (double& value : result) value = uniform(random);
  return result;
}

void writeNumberText(benchmark::State& state) {
  const auto numbers = values();
  for (auto _ : state)
    for (const double number : numbers) benchmark::DoNotOptimize(zel::writeNumber(number));
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(numbers.size()));
}
BENCHMARK(writeNumberText);

void readNumberText(benchmark::State& state) {
  std::vector<zel::NumberText> texts;
  for (const double number : values()) texts.push_back(zel::writeNumber(number));
  for (auto _ : state)
    for (const auto& text : texts) benchmark::DoNotOptimize(zel::readNumber(text));
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(texts.size()));
}
BENCHMARK(readNumberText);

}  // namespace
