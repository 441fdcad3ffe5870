#include "plot/plot_session.h"

#include "base/language.h"

namespace zel {
namespace {

constexpr char32_t kEscape = 27;
constexpr char32_t kSpace = 32;

}  // namespace

PlotSession::PlotSession(Engine& engine, const GraphTable& graphs, Picture& picture, Screen& screen,
                         PlotListener& listener)
    : drawing_(engine, graphs, picture, screen), screen_(screen), listener_(listener) {}

void PlotSession::open(const ViewSettings& view, const ScaleMarks& marks) {
  drawing_.giveUp();
  viewport_.view = view;
  opened_view_ = view;
  marks_ = marks;
  mode_ = PlotMode::normal;
  state_ = State::opened;
  ++opened_count_;
}

void PlotSession::close() {
  drawing_.giveUp();
  state_ = State::closed;
}

void PlotSession::drawFirst() {
  if (state_ == State::opened) redraw();
}

void PlotSession::redraw() {
  if (state_ == State::closed || state_ == State::refused) return;
  state_ = State::drawn;
  const RedrawOutcome outcome = drawing_.redraw(viewport_, marks_);
  // Whatever put an end to it, another redraw or a close, has the say now.
  if (outcome == RedrawOutcome::abandoned) return;
  if (outcome != RedrawOutcome::drawn) state_ = State::refused;
  const auto opening = opened_count_;
  listener_.pictureDrawn();
  if (state_ == State::refused && opening == opened_count_) report(outcome);
}

void PlotSession::report(RedrawOutcome outcome) {
  const auto opening = opened_count_;
  listener_.showMessage(Localize(redrawMessage(outcome)));
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

void PlotSession::keyPressed(char32_t key) {
  if (key == kEscape || key == kSpace) drawing_.stop();
}

void PlotSession::setMode(PlotMode mode) {
  mode_ = mode;
  if (mode != PlotMode::recorrido) screen_.showStatus(rangeStatus(viewport_.view));
}

}  // namespace zel
