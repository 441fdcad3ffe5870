// The search walks by half steps and compares the directions of two neighbouring differences. A
// direction needs two samples side by side: a sample that is not defined, and the jump back to the
// left end, forget what came before. The fourth sample is the first that can be a turn.

#include "plot/session/extremum_search.h"

#include <string>

namespace zel {
namespace {

constexpr int kSamplesBefore = 3;

int signOf(double difference) { return (difference > 0) - (difference < 0); }

/// The label of a pair of directions; empty when the graph does not turn there.
std::string_view turn(int before, int now) {
  if ((before > 0 && now <= 0) || (before == 0 && now < 0)) return "MAX";
  if ((before < 0 && now >= 0) || (before == 0 && now > 0)) return "Min";
  return {};
}

/// What the search remembers from sample to sample.
class Turns {
 public:
  /// The label of the turn that a sample shows; empty when it shows none.
  std::string_view take(PlanePoint sample, bool is_inside) {
    std::string_view label;
    const int direction = samples_ > 0 ? signOf(sample.y - previous_.y) : 0;
    if (taken_ >= kSamplesBefore && is_inside && samples_ > 1) label = turn(direction_, direction);
    ++taken_;
    ++samples_;
    before_ = previous_;
    previous_ = sample;
    direction_ = direction;
    return label;
  }

  /// The graph is not defined between here and the next sample: no direction leads across.
  void forget() { samples_ = 0; }

  /// The sample before the one taken last.
  PlanePoint before() const { return before_; }

 private:
  int taken_ = 0;    // in all
  int samples_ = 0;  // since the last one was forgotten; a direction needs two of them
  PlanePoint previous_;
  PlanePoint before_;
  int direction_ = 0;  // from the sample before the previous one to it
};

}  // namespace

std::optional<Extremum> searchExtremum(Engine& engine, std::string_view code,
                                       const Viewport& viewport, double start, Walk& walk) {
  const double step = viewport.xStep() / 2;
  Turns turns;
  bool wrapped = false;
  std::string message;
  for (double x = walkStart(viewport, start, step);;) {
    const double next = x + step;
    // A step that no longer advances ends the pass as if the range had run out.
    if (next > viewport.view.xf || !(next > x)) {
      if (wrapped) return std::nullopt;
      wrapped = true;
      turns.forget();
      x = viewport.view.xi;
    } else {
      x = next;
    }
    double y = 0;
    if (engine.Evaluate(x, y, code, message)) {
      const std::string_view label = turns.take({x, y}, viewport.isInside(x, y));
      if (!label.empty()) return Extremum{label, turns.before(), {x, y}};
    } else {
      turns.forget();
    }
    if ((wrapped && x > start) || !walk.goesOn()) return std::nullopt;
  }
}

}  // namespace zel
