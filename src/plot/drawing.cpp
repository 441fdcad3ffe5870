// A redraw clears, lays out the view, draws the axes and then the graphs in letter order, and lets
// events run between them. An event may begin another redraw: each has a number, and one that finds
// itself older than the latest ends at once. Redraws within redraws are bounded; the innermost then
// begins anew in place of the next.

#include "plot/drawing.h"

#include <string>

#include "base/language.h"
#include "base/message_table.h"
#include "numbers/number_text.h"

namespace zel {
namespace {

RedrawOutcome refusal(RangeVerdict verdict) {
  switch (verdict) {
    case RangeVerdict::too_close: return RedrawOutcome::too_close;
    case RangeVerdict::too_large: return RedrawOutcome::too_large;
    default: return RedrawOutcome::failed;
  }
}

/// The place of the letter in the alphabet is shown, not that of the graph in the document: " (6 de
/// 2)" is meant.
StatusPanels progressStatus(char letter, int graph_count) {
  StatusPanels panels;
  panels.first = " [" + Localize("GRAFICANDO") + "]... " + letter + "(x)";
  panels.second =
      " (" + std::to_string(letter - 'a' + 1) + " de " + std::to_string(graph_count) + ")";
  return panels;
}

}  // namespace

std::string_view redrawMessage(RedrawOutcome outcome) {
  switch (outcome) {
    case RedrawOutcome::too_close: return messages::kRangeTooClose;
    case RedrawOutcome::too_large: return "Error: Los valores del rango son demasiado elevados.";
    case RedrawOutcome::failed:
      return "Error: No se puede graficar con la ecuación y rango elegidos.";
    default: return {};
  }
}

StatusPanels rangeStatus(const ViewSettings& view) {
  const auto panel = [](std::string_view name, double value) {
    return " " + std::string(name) + "=" + writeNumber(value).str() + "  ";
  };
  return {panel("Xmin", view.xi), panel("XMAX", view.xf), panel("Ymin", view.yi),
          panel("YMAX", view.yf)};
}

Drawing::Drawing(Engine& engine, const GraphTable& graphs, Picture& picture, Screen& screen)
    : engine_(engine), graphs_(graphs), picture_(picture), screen_(screen) {}

RedrawOutcome Drawing::redraw(Viewport& viewport, const ScaleMarks& marks) {
  if (nested_ == kMostNested) {
    giveUp();
    begins_anew_ = true;
    return RedrawOutcome::abandoned;
  }
  const Nesting nesting(*this);
  auto outcome = RedrawOutcome::abandoned;
  do {
    begins_anew_ = false;
    outcome = drawOnce(viewport, marks);
  } while (begins_anew_);
  return outcome;
}

Drawing::Nesting::~Nesting() {
  --drawing_.nested_;
  if (std::uncaught_exceptions() == exceptions_) return;
  drawing_.in_progress_ = false;
  drawing_.putParameterBack();
}

RedrawOutcome Drawing::drawOnce(Viewport& viewport, const ScaleMarks& marks) {
  Flag flag(*this, ++latest_);
  in_progress_ = false;  // a curve of an older redraw ends here
  putParameterBack();
  graph_.reset();
  picture_.clear();
  const RangeVerdict verdict = viewport.prepare();
  if (verdict != RangeVerdict::drawable) return refusal(verdict);
  if (!drawAxes(viewport, marks, picture_)) return RedrawOutcome::failed;
  screen_.runPendingEvents();
  if (flag.isAbandoned()) return RedrawOutcome::abandoned;
  const RedrawOutcome outcome = drawGraphs(viewport, flag);
  if (outcome == RedrawOutcome::drawn) screen_.showStatus(rangeStatus(viewport.view));
  return outcome;
}

RedrawOutcome Drawing::drawGraphs(const Viewport& viewport, Flag& flag) {
  const SampleGrid grid(viewport);
  const CurveTools tools = {viewport, grid, engine_, picture_, screen_, flag};
  for (char letter = 'a'; letter <= 'z'; ++letter) {
    const auto def = graphs_.graph(letter);
    if (!def || !def->defined) continue;
    screen_.showStatus(progressStatus(letter, graphs_.count()));
    picture_.beginGraph(letter, def->color);
    graph_ = letter;
    const bool drawn = drawGraph(tools, *def);
    putParameterBack();
    if (flag.isAbandoned()) return RedrawOutcome::abandoned;
    if (!drawn) return RedrawOutcome::failed;
    screen_.runPendingEvents();
    if (flag.isAbandoned()) return RedrawOutcome::abandoned;
    graph_.reset();
  }
  return RedrawOutcome::drawn;
}

bool Drawing::drawGraph(const CurveTools& tools, const GraphDef& def) {
  if (isTwoBranch(def)) return sweepBranches(tools, def);
  if (def.tipo == 'Z') return drawFamily(tools, def);
  if (def.tipo == 'T') return sweepParametric(tools, def);
  sweepFunction(tools, def.codigo);
  return true;
}

bool Drawing::drawFamily(const CurveTools& tools, const GraphDef& def) {
  parameter_ = engine_.GetP();
  return sweepFamily(tools, def);
}

void Drawing::putParameterBack() {
  if (parameter_) engine_.SetP(*parameter_);
  parameter_.reset();
}

}  // namespace zel
