// Every graph is evaluated at the pointer's x, from the active one on in letter order, and the one
// with the smallest distance in y is picked; of equal ones the first. A family is tried member by
// member.

#include "plot/session/graph_picker.h"

#include <cmath>
#include <string>
#include <string_view>

#include "plot/curves/parameter_range.h"

namespace zel {
namespace {

/// Compares candidates as they come; an equally near one does not replace an earlier one.
class NearestGraph {
 public:
  NearestGraph(Engine& engine, const GraphTable& graphs, PlanePoint point, Walk& walk)
      : engine_(engine), graphs_(graphs), point_(point), walk_(walk) {}

  void visit(char letter) {
    const GraphDef* const def = graphs_.slot(letter);
    if (def != nullptr && def->defined) visitGraph(*def);
  }

  const std::optional<PickedGraph>& best() const { return best_; }

 private:
  void visitGraph(const GraphDef& def) {
    if (isTwoBranch(def)) {
      if (consider(def.nombre, parameter(def, "codigo1")))
        consider(def.nombre, parameter(def, "codigo2"));
    } else if (def.tipo == 'Z') {
      visitFamily(def);
    } else {
      consider(def.nombre, def.codigo);
    }
  }

  void visitFamily(const GraphDef& def) {
    const auto range = parameterRange(def);
    if (!range) return;
    int members = 0;
    forEachParameter(*range, [&](double p) {
      engine_.SetP(p);
      return consider(def.nombre, def.codigo, p) && range->variacion != 0 &&
             ++members < kMostPickedMembers;
    });
  }

  /// Whether the walk goes on.
  bool consider(char letter, std::string_view code, std::optional<double> member = std::nullopt) {
    double y = 0;
    if (engine_.Evaluate(point_.x, y, code, message_)) {
      const double distance = std::fabs(point_.y - y);
      if (!best_ || distance < best_distance_) {
        best_ = PickedGraph{letter, member};
        best_distance_ = distance;
      }
    }
    return walk_.goesOn();
  }

  Engine& engine_;
  const GraphTable graphs_;  // which stay as they are, whatever events run in the walk
  PlanePoint point_;
  Walk& walk_;
  std::optional<PickedGraph> best_;
  double best_distance_ = 0;
  std::string message_;
};

}  // namespace

std::optional<PickedGraph> pickGraph(Engine& engine, const GraphTable& graphs, char active,
                                     PlanePoint point, Walk& walk) {
  const double p = engine.GetP();
  NearestGraph nearest(engine, graphs, point, walk);
  for (int i = 0; i < GraphTable::kSlots && !walk.isEnded(); ++i) {
    const auto letter = static_cast<char>('a' + (active - 'a' + i) % GraphTable::kSlots);
    nearest.visit(letter);
  }
  if (walk.isEnded()) {
    engine.SetP(p);
    return std::nullopt;
  }
  if (nearest.best() && nearest.best()->member) engine.SetP(*nearest.best()->member);
  return nearest.best();
}

}  // namespace zel
