#include "forms/plot/picture_box.h"

#include <QKeyEvent>
#include <QPaintEvent>
#include <cmath>

#include "pictures/picture_size.h"

namespace zel {
namespace {

char32_t characterCode(const QKeyEvent& event) {
  if (event.key() == Qt::Key_Escape) return 27;
  const auto code = event.text().toUcs4();
  return code.isEmpty() ? 0 : code.first();
}

}  // namespace

PictureBox::PictureBox(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
  makeImage();
}

void PictureBox::clear() {
  const QSize pixels(static_cast<int>(std::ceil(width() * devicePixelRatioF())),
                     static_cast<int>(std::ceil(height() * devicePixelRatioF())));
  if (drawn_.size() != pixels || drawn_.devicePixelRatio() != devicePixelRatioF()) makeImage();
  is_stale_ = false;
  since_shown_.start();
  picture_->clear();
  drawing_.clear();
}

void PictureBox::makeImage() {
  picture_.reset();
  if (painter_.isActive()) painter_.end();
  const qreal ratio = devicePixelRatioF();
  const QSizeF pixels = QSizeF(size()) * ratio;
  drawn_ = QImage(static_cast<int>(std::ceil(pixels.width())),
                  static_cast<int>(std::ceil(pixels.height())), QImage::Format_RGB32);
  if (drawn_.isNull()) drawn_ = QImage(1, 1, QImage::Format_RGB32);
  drawn_.setDevicePixelRatio(ratio);
  painter_.begin(&drawn_);
  painter_.scale(1 / kTwipsPerPixel, 1 / kTwipsPerPixel);
  const QSizeF twips = QSizeF(width() + 1, height() + 1) * kTwipsPerPixel;
  picture_.emplace(painter_, QRectF(QPointF(), twips), Qt::white, Qt::black);
}

void PictureBox::beginAxes() {
  picture_->beginAxes();
  drawing_.beginAxes();
}

void PictureBox::line(Point from, Point to) {
  picture_->line(from, to);
  drawing_.line(from, to);
}

void PictureBox::beginGraph(char letter, std::int32_t colour) {
  emit graphBegun(letter);
  picture_->beginGraph(letter, colour);
  drawing_.beginGraph(letter, colour);
}

void PictureBox::startPiece(Point point) {
  picture_->startPiece(point);
  drawing_.startPiece(point);
}

void PictureBox::extendPiece(Point point) {
  picture_->extendPiece(point);
  drawing_.extendPiece(point);
}

void PictureBox::dot(Point centre, double radius) {
  picture_->dot(centre, radius);
  drawing_.dot(centre, radius);
}

void PictureBox::showDrawn() {
  shown_ = image();
  since_shown_.start();
  update();
}

void PictureBox::showProgress() {
  if (since_shown_.elapsed() >= kProgressInterval) showDrawn();
}

QImage PictureBox::image() {
  picture_->flush();
  return drawn_.copy();
}

void PictureBox::paintEvent(QPaintEvent* event) {
  noticeResolution();
  QPainter painter(this);
  painter.fillRect(event->rect(), Qt::white);
  painter.drawImage(QPointF(), shown_);
}

void PictureBox::noticeResolution() {
  if (is_stale_ || shown_.isNull() || drawn_.devicePixelRatio() == devicePixelRatioF()) return;
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
