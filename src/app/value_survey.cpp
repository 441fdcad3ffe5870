// The samples of a drawing are evaluated again until one has a value. That is soon found where
// there is one, so only a formula without any is gone through to its end.

#include "app/value_survey.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

#include "plot/curves/parameter_range.h"
#include "plot/curves/sample_grid.h"

namespace zel {
namespace {

constexpr std::size_t kBlock = 64;  // samples that are evaluated in one go, or fewer

bool holdsValue(std::span<const double> values) {
  return std::any_of(values.begin(), values.end(), [](double value) { return !std::isnan(value); });
}

class Survey {
 public:
  Survey(const GraphDef& def, const Viewport& viewport, Engine& engine,
         const std::function<bool()>& goes_on)
      : def_(def), grid_(viewport), engine_(engine), goes_on_(goes_on) {}

  std::optional<ValuelessFormula> find() {
    if (def_.tipo == 'F') return valueless(0, def_.codigo, !hasValue());
    if (def_.tipo == 'Z') return valueless(0, def_.codigo, !hasMemberWithValue());
    if (def_.tipo != 'T') return std::nullopt;
    lookAtCurve();
    if (auto x = valueless(0, parameter(def_, "codigo_xt"), !x_has_value_)) return x;
    return valueless(1, parameter(def_, "codigo_yt"), !y_has_value_);
  }

 private:
  bool goesOn() { return goes_on_at_all_ = goes_on_at_all_ && goes_on_(); }

  /// Whether the graph's code has one, with the parameter as it is.
  bool hasValue() {
    std::array<double, kBlock> values;
    for (auto xs = grid_.xs(); !xs.empty() && goesOn();) {
      const auto block = xs.first(std::min(kBlock, xs.size()));
      const auto room = std::span(values).first(block.size());
      const std::size_t count = engine_.SweepPart(def_.codigo, block, room);
      if (holdsValue(room.first(count))) return true;
      xs = xs.subspan(count);
    }
    return false;
  }

  bool hasMemberWithValue() {
    const auto range = parameterRange(def_);
    bool found = false;
    if (!range) return found;
    forEachParameter(*range, [&](double p) {
      engine_.SetP(p);
      found = hasValue();
      return !found && goes_on_at_all_;
    });
    return found;
  }

  void lookAtCurve() {
    const auto range = parameterRange(def_);
    const std::string code_x = parameter(def_, "codigo_xt");
    const std::string code_y = parameter(def_, "codigo_yt");
    if (!range) return;
    forEachParameter(*range, [&](double t) {
      double x = 0;
      double y = 0;
      engine_.CurvePart(code_x, code_y, {&t, 1}, {&x, 1}, {&y, 1});
      x_has_value_ = x_has_value_ || !std::isnan(x);
      y_has_value_ = y_has_value_ || !std::isnan(y);
      return !(x_has_value_ && y_has_value_) && goesOn();
    });
  }

  std::optional<ValuelessFormula> valueless(std::size_t field, const std::string& code,
                                            bool is_valueless) {
    if (!is_valueless || !goes_on_at_all_) return std::nullopt;
    ValuelessFormula formula{field, {}};
    double value = 0;
    engine_.Evaluate(grid_.xs().front(), value, code, formula.reason);
    return formula;
  }

  const GraphDef& def_;
  SampleGrid grid_;
  Engine& engine_;
  const std::function<bool()>& goes_on_;
  bool goes_on_at_all_ = true;
  bool x_has_value_ = false;
  bool y_has_value_ = false;
};

}  // namespace

std::optional<ValuelessFormula> findValuelessFormula(const GraphDef& def, const Viewport& viewport,
                                                     Engine& engine,
                                                     const std::function<bool()>& goes_on) {
  return Survey(def, viewport, engine, goes_on).find();
}

}  // namespace zel
