#include <cmath>
#include <utility>

#include "numbers/number_text.h"
#include "plot/session/graph_picker.h"
#include "plot/session/plot_session.h"

/// The mouse on the picture.
namespace zel {

void PlotSession::mouseDown(MouseButton button, Point mouse) {
  if (!isDrawn()) return;
  ignores_press_ = drawing_.inProgress();
  if (ignores_press_) return;
  if (button == MouseButton::right) return toggleZoom();
  if (button != MouseButton::left) return;
  if (mode_ != PlotMode::zoom) return walkOnce([&] { pick(mouse); });
  rectangle_.start(mouse);
  is_dragging_ = true;
  drags_in_mode_ = true;
  listener_.toolsChanged();
}

void PlotSession::mouseMove(MouseButton held, Point mouse) {
  if (!isDrawn()) return;
  pointer_ = mouse;
  if (mode_ == PlotMode::zoom)
    followMouse(held, mouse);
  else if (shows_numbers_)
    listener_.toolsChanged();
}

void PlotSession::followMouse(MouseButton held, Point mouse) {
  if (held != MouseButton::none && !ignores_press_) rectangle_.follow(mouse);
  const auto panel = [](const char* name, double value) {
    return std::isfinite(value) ? name + writeNumber(value).str() : "";
  };
  screen_.showStatus(
      {panel("X=", viewport_.planeX(mouse.x)), panel("Y=", viewport_.planeY(mouse.y)), "", ""});
  if (is_dragging_ || shows_numbers_) listener_.toolsChanged();
}

void PlotSession::mouseLeft() {
  pointer_.reset();
  if (shows_numbers_) listener_.toolsChanged();
}

void PlotSession::mouseUp(MouseButton button, Point) {
  const bool is_ignored = std::exchange(ignores_press_, false);
  is_dragging_ = false;
  const bool ends_drag = button == MouseButton::left && std::exchange(drags_in_mode_, false);
  if (!isDrawn()) return;
  listener_.toolsChanged();
  if (!is_ignored && ends_drag && rectangle_.isLargeEnough()) applyRectangle();
}

void PlotSession::wheelTurned(Zoom zoom, Point mouse) {
  if (!isDrawn()) return;
  zoomTo(zoomedAbout(viewport_.view, zoom, viewport_.planeX(mouse.x), viewport_.planeY(mouse.y)));
}

std::optional<ZoomRectangle> PlotSession::zoomRectangle() const {
  if (!is_dragging_ || mode_ != PlotMode::zoom) return std::nullopt;
  return rectangle_;
}

void PlotSession::toggleZoom() {
  setMode(mode_ == PlotMode::zoom ? PlotMode::normal : PlotMode::zoom);
}

void PlotSession::applyRectangle() {
  ViewSettings view = viewport_.view;
  view.xi = viewport_.planeX(rectangle_.left);
  view.yf = viewport_.planeY(rectangle_.top);
  view.xf = viewport_.planeX(rectangle_.left + rectangle_.width);
  view.yi = viewport_.planeY(rectangle_.top + rectangle_.height);
  if (takeView(view)) drawView();
}

void PlotSession::pick(Point mouse) {
  setMode(PlotMode::recorrido);
  const PlanePoint point = {viewport_.planeX(mouse.x), viewport_.planeY(mouse.y)};
  std::optional<PickedGraph> picked;
  Walk walk = beginWalk();
  if (active_ && viewport_.isInside(point.x, point.y))
    picked = pickGraph(engine_, graphs_, *active_, point, walk);
  if (walk.isEnded()) return;
  if (!picked) return setMode(PlotMode::normal);
  setActive(picked->letter);
  listener_.toolsChanged();
  trace(point.x, 1);
}

}  // namespace zel
