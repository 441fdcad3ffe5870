// Graph calls among 26 codes, themselves and circles included. The lines are the formulas of the
// graphs "a", "b" and so on; each graph is then called at a few x, by the engine, the reference,
// and where every operation is exact by the model that shares no code with them.
#include <array>
#include <memory>

#include "base/language.h"
#include "engine/compiler.h"
#include "engine/engine_pair.h"
#include "engine/model.h"
#include "fuzz.h"
#include "graphs/graph_table.h"

namespace zel::fuzz {
namespace {

constexpr std::size_t kLongestForModel = 600;  // it copies its texts at every step

class Calls {
 public:
  /// The graphs as the table keeps them.
  void declare(Input input) {
    GraphTable graphs;
    for (char letter = 'a'; letter <= 'z' && !input.isEmpty(); ++letter) {
      graphs.rebuildGraph(letter, std::string(input.line()), "", 0, 'F', nullptr);
      const std::string_view code = graphs.codeOf(letter);
      is_exact_ = is_exact_ && code.find_first_of("@#^") == std::string_view::npos;
      pair_.graphCode(letter) = code;
      model_.graphs[static_cast<std::size_t>(letter - 'a')] = code;
      ++count_;
    }
  }

  void callEach() {
    for (int i = 0; i < count_; ++i) {
      const char letter = static_cast<char>('a' + i);
      evaluate(2.5, std::string(1, letter) + "(x)");
      evaluate(-3, NormaliseFormula(std::string("1-") + letter + "(X/2)"));
    }
  }

 private:
  void evaluate(double x, const std::string& code) {
    requireNone(pair_.evaluate(x, code), "the engine gives what the reference gives");
    require(pair_.engine().costOfLast() <= Engine::kMaxExpandedCode + 1, "an expansion is bounded",
            code);
    // What it says of a text depends on all that came before.
    is_exact_ = is_exact_ && pair_.engine().costOfLast() <= kLongestForModel;
    if (is_exact_) require(pair_.last() == model_.evaluate(x, code), "the model agrees", code);
  }

  test::EnginePair pair_;
  test::Model model_;
  bool is_exact_ = true;
  int count_ = 0;
};

}  // namespace
}  // namespace zel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace zel::fuzz;
  zel::SetCurrentLanguage("ES");  // the model's
  Calls calls;
  calls.declare(Input(data, size));
  calls.callEach();
  return 0;
}
