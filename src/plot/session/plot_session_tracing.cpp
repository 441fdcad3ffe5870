#include "base/language.h"
#include "numbers/number_text.h"
#include "plot/session/extremum_search.h"
#include "plot/session/plot_session.h"

/// The cursor on the active graph.
namespace zel {
namespace {

constexpr double kSlopeWidth = 555;  // twips that the picture of the slope takes beside the cursor

std::string coordinate(std::string_view name, double value) {
  return std::string(name) + "=" + writeNumber(value).str();
}

}  // namespace

void PlotSession::walkOnce(const std::function<void()>& task) {
  if (is_walking_) return;
  is_walking_ = true;
  try {
    task();
  } catch (...) {  // for want of memory: the next walk may begin
    is_walking_ = false;
    throw;
  }
  is_walking_ = false;
}

Walk PlotSession::beginWalk() {
  return Walk(engine_, [this, changes = changes_] {
    screen_.runPendingEvents();
    return isDrawn() && changes == changes_;
  });
}

void PlotSession::startTrace(double x, int direction) {
  walkOnce([&] {
    setMode(PlotMode::recorrido);
    trace(x, direction);
  });
}

void PlotSession::trace(double x, int direction) {
  if (drawing_.inProgress()) return;
  const GraphDef def = activeDef();
  Walk walk = beginWalk();
  const auto point = traceStep(engine_, def.codigo, viewport_, x, direction, walk);
  if (walk.isEnded()) return;
  if (!point) return setMode(PlotMode::normal);
  placeCursor(*point, *point, direction < 0);
  screen_.showStatus(
      {coordinate("X", point->x), coordinate("Y", point->y), parameterText(def), ""});
}

void PlotSession::search() {
  setMode(PlotMode::recorrido);
  const GraphDef def = activeDef();
  Walk walk = beginWalk();
  const auto found = searchExtremum(engine_, def.codigo, viewport_, tracePosition(), walk);
  if (walk.isEnded()) return;
  if (!found)
    return screen_.showStatus({Localize("No se encuentran MÁXIMOS ni Mínimos."), "", "", ""});
  placeCursor(found->before, found->after, false);
  screen_.showStatus({Localize("Posible") + " " + std::string(found->label),
                      coordinate("X", found->after.x), coordinate("Y", found->after.y),
                      parameterText(def)});
}

void PlotSession::placeCursor(PlanePoint cursor, PlanePoint traced, bool to_the_left) {
  const Point place = viewport_.map(cursor.x, cursor.y);
  // The picture of the slope goes ahead of the cursor, unless it would be cut off there.
  const bool fits_left = place.x >= kSlopeWidth;
  const bool fits_right = place.x <= viewport_.size.scale_width - kSlopeWidth;
  const bool left = to_the_left ? fits_left || !fits_right : fits_left && !fits_right;
  const double from_y = trace_y_.value_or(traced.y);
  cursor_ =
      TraceCursor{place, slopeBetween(from_y, traced.y, left ? SlopeSide::left : SlopeSide::right)};
  trace_x_ = traced.x;
  trace_y_ = traced.y;
  listener_.toolsChanged();
}

std::string PlotSession::parameterText(const GraphDef& def) const {
  return def.tipo == 'Z' ? coordinate("P", engine_.GetP()) : "";
}

}  // namespace zel
