#include "forms/plot/picture_box.h"

#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <utility>

#include "forms/accessible_graphic.h"
#include "platform/qt/bitmap_image.h"

namespace zel {
namespace {

char32_t characterCode(const QKeyEvent& event) {
  if (event.key() == Qt::Key_Escape) return 27;
  const auto code = event.text().toUcs4();
  return code.isEmpty() ? 0 : code.first();
}

/// The widget's size in pixels of the device, of which there is one at least.
QSize pixelsOf(const QWidget& widget) {
  const QSizeF pixels = QSizeF(widget.size()) * widget.devicePixelRatioF();
  return {std::max(1, static_cast<int>(std::ceil(pixels.width()))),
          std::max(1, static_cast<int>(std::ceil(pixels.height())))};
}

QSize sizeOf(const Bitmap& bitmap) { return {bitmap.width, bitmap.height}; }

}  // namespace

PictureBox::PictureBox(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
  showAsGraphic(*this);
}

/// What is shown stays, on pixels that are taken back when the next picture is shown.
void PictureBox::clear() {
  const QSize pixels = pixelsOf(*this);
  if (shows_drawn_)
    shown_ = {drawn_.exchange(std::move(shown_.bitmap)), ratio_};
  else
    drawn_.clear();
  if (pixels != sizeOf(drawn_.bitmap()) || ratio_ != devicePixelRatioF()) {
    ratio_ = devicePixelRatioF();
    drawn_ = RasterPicture(pixels.width(), pixels.height(), ratio_);
  }
  shows_drawn_ = false;
  is_stale_ = false;
  since_shown_.start();
  drawing_.clear();
}

void PictureBox::beginAxes() {
  drawn_.beginAxes();
  drawing_.beginAxes();
}

void PictureBox::line(Point from, Point to) {
  drawn_.line(from, to);
  drawing_.line(from, to);
}

void PictureBox::beginGraph(char letter, std::int32_t colour) {
  emit graphBegun(letter);
  drawn_.beginGraph(letter, colour);
  drawing_.beginGraph(letter, colour);
}

void PictureBox::startPiece(Point point) {
  drawn_.startPiece(point);
  drawing_.startPiece(point);
}

void PictureBox::extendPiece(Point point) {
  drawn_.extendPiece(point);
  drawing_.extendPiece(point);
}

void PictureBox::dot(Point centre, double radius) {
  drawn_.dot(centre, radius);
  drawing_.dot(centre, radius);
}

void PictureBox::showDrawn() {
  drawn_.finish();
  shows_drawn_ = true;
  // The next picture could not use its pixels, which may be hundreds of megabytes.
  if (sizeOf(shown_.bitmap) != sizeOf(drawn_.bitmap())) shown_ = {};
  update();
  emit shownAnew();
}

void PictureBox::showProgress() {
  if (since_shown_.elapsed() < kProgressInterval) return;
  shown_ = {drawn_.soFar(), ratio_};
  shows_drawn_ = false;
  since_shown_.start();
  update();
  emit shownAnew();
}

QImage PictureBox::image() const {
  QImage image = toImage(bitmap());
  image.setDevicePixelRatio(ratio_);
  return image;
}

void PictureBox::paintEvent(QPaintEvent* event) {
  noticeResolution();
  QImage image = viewOf(shows_drawn_ ? drawn_.bitmap() : shown_.bitmap);
  image.setDevicePixelRatio(shows_drawn_ ? ratio_ : shown_.ratio);
  QPainter painter(this);
  painter.fillRect(event->rect(), Qt::white);
  painter.drawImage(QPointF(), image);
}

void PictureBox::noticeResolution() {
  const bool shows_something = shows_drawn_ || !shown_.bitmap.pixels.empty();
  if (is_stale_ || !shows_something || ratio_ == devicePixelRatioF()) return;
  is_stale_ = true;
  QMetaObject::invokeMethod(this, &PictureBox::resolutionChanged, Qt::QueuedConnection);
}

void PictureBox::keyPressEvent(QKeyEvent* event) {
  if (const char32_t code = characterCode(*event))
    emit KeyPress(code);
  else
    QWidget::keyPressEvent(event);
}

}  // namespace zel
