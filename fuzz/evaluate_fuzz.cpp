// Sequences of evaluations on one engine beside the reference: single ones, sweeps and curves, in
// any order, with graphs and names that change in between. Each line is a step:
//   f=CODE   the code of graph "f"
//   t X      p X      the names
//   e X CODE          one evaluation
//   s X STEP COUNT CODE             a sweep
//   c T STEP COUNT CODE_X;CODE_Y    a curve
#include <vector>

#include "engine/engine_pair.h"
#include "fuzz.h"

namespace zel::fuzz {
namespace {

constexpr int kMostSteps = 12;
constexpr std::size_t kMostSamples = 150;

/// Samples side by side; a step beyond the largest double leads to what is no number.
std::vector<double> samples(double first, double step, double count, bool is_finite) {
  std::vector<double> xs(count >= 0 && count < kMostSamples ? static_cast<std::size_t>(count) : 33);
  double x = first;
  for (double& each : xs) {
    each = is_finite && !std::isfinite(x) ? 1 : x;
    x += step;
  }
  return xs;
}

/// What went apart by it; empty where nothing did.
std::string doStep(test::EnginePair& pair, std::string_view line) {
  if (line.size() < 2) return {};
  const char command = line[0];
  Input rest(line.substr(2));
  if (line[1] == '=' && command >= 'a' && command <= 'z') {
    pair.graphCode(command) = std::string(rest.rest());
    return {};
  }
  const double x = command == 'e' || command == 's' ? rest.number() : rest.finiteNumber();
  if (command == 't') pair.setT(x);
  if (command == 'p') pair.setP(x);
  if (command == 'e') return pair.evaluate(x, std::string(rest.rest()));
  if (command != 's' && command != 'c') return {};
  const double step = rest.number();
  const auto xs = samples(x, step, rest.number(), command == 'c');
  if (command == 's') return pair.sweep(xs, std::string(rest.rest()));
  const std::string code_x(rest.until(';'));
  return pair.curve(xs, code_x, std::string(rest.rest()));
}

}  // namespace
}  // namespace zel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace zel::fuzz;
  Input input(data, size);
  zel::test::EnginePair pair;
  for (int step = 0; step < kMostSteps && !input.isEmpty(); ++step)
    requireNone(doStep(pair, input.line()), "the engine gives what the reference gives");
  return 0;
}
