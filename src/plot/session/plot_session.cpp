// A session is closed, opened, drawn or refused. It is drawn for the first time when its window is
// shown; a range that cannot be drawn refuses it, tells why, and leads back to the main window.
// Events may run inside of each drawing, so whatever outlives one asks first whether it is still
// this opening that goes on.

#include "plot/session/plot_session.h"

#include "base/language.h"

namespace zel {
PlotSession::PlotSession(Engine& engine, const GraphTable& graphs, Picture& picture, Screen& screen,
                         PlotListener& listener)
    : engine_(engine),
      graphs_(graphs),
      drawing_(engine, graphs, picture, screen),
      screen_(screen),
      listener_(listener) {}

void PlotSession::open(const ViewSettings& view, const ScaleMarks& marks) {
  drawing_.giveUp();
  viewport_.view = view;
  opened_view_ = view;
  marks_ = marks;
  mode_ = PlotMode::normal;
  cursor_.reset();
  trace_x_ = 0;
  trace_y_.reset();
  rectangle_ = {};
  ignores_press_ = false;
  is_dragging_ = false;
  drags_in_mode_ = false;
  active_.reset();
  activateFirst();
  state_ = State::opened;
  ++opened_count_;
  listener_.toolsChanged();
}

void PlotSession::activateFirst() {
  const GraphDef* const first = graphs_.nextDefined('z');
  if (first && first->defined) active_ = first->nombre;
}

void PlotSession::close() {
  drawing_.giveUp();
  state_ = State::closed;
}

void PlotSession::drawFirst() {
  if (state_ == State::opened) redraw();
}

void PlotSession::redraw() {
  if (drawView() && cursor_) trace(tracePosition(), 0);  // a click meanwhile may have moved it
}

bool PlotSession::drawView() {
  if (state_ == State::closed || state_ == State::refused) return false;
  state_ = State::drawn;
  ++changes_;
  const RedrawOutcome outcome = drawing_.redraw(viewport_, marks_);
  // Whatever put an end to it, another redraw or a close, has the say now.
  if (outcome == RedrawOutcome::abandoned) return false;
  if (outcome != RedrawOutcome::drawn) state_ = State::refused;
  const auto opening = opened_count_;
  listener_.pictureDrawn();
  if (opening != opened_count_) return false;
  if (state_ == State::refused) report(outcome);
  return isDrawn();
}

bool PlotSession::takeView(const ViewSettings& view) {
  if (!isFinite(view)) {
    drawing_.giveUp();
    state_ = State::refused;
    report(RedrawOutcome::failed);
    return false;
  }
  viewport_.view = view;
  return true;
}

void PlotSession::report(RedrawOutcome outcome) {
  const auto opening = opened_count_;
  const auto drawn = drawing_.graph();
  listener_.showDrawingError(Localize(redrawMessage(outcome)), drawn ? drawn : active_);
  if (state_ == State::refused && opening == opened_count_) listener_.returnToMain();
}

bool PlotSession::takesSize(const PictureSize& size) {
  return size.width >= kSmallestSide && size.height >= kSmallestSide;
}

void PlotSession::resize(const PictureSize& size) {
  viewport_.size = size;
  if (state_ != State::drawn) return;
  setMode(PlotMode::normal);
  redraw();
}

void PlotSession::setMode(PlotMode mode) {
  mode_ = mode;
  ++changes_;
  drags_in_mode_ = false;
  if (mode != PlotMode::recorrido) {
    cursor_.reset();
    screen_.showStatus(rangeStatus(viewport_.view));
  }
  listener_.toolsChanged();
}

}  // namespace zel
