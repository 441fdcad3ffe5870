#include "platform/qt/painter_picture.h"

#include <QPaintEngine>
#include <QPen>
#include <algorithm>
#include <cmath>

#include "pictures/line_style.h"

namespace zel {
namespace {

/// Beyond this many twips a painter's own coordinates lose their precision.
constexpr double kFarAway = 1e6;
/// How many points are held back at the most: painting a piece in parts bounds the memory of a
/// curve that never ends.
constexpr qsizetype kLongestPart = 4096;
/// The same where the painter computes pixels. A stroke costs it much more than twice as much when
/// it is twice as long; parts of so many points look the same, and are the fastest ones.
constexpr qsizetype kLongestRasterPart = 17;

bool isNear(QPointF point) {
  return std::fabs(point.x()) <= kFarAway && std::fabs(point.y()) <= kFarAway;
}

/// The share of a line in which one coordinate, going from `from` by `delta`, is near; narrows
/// [first, last]. False when nothing is left.
bool narrow(double from, double delta, double& first, double& last) {
  if (delta == 0) return std::fabs(from) <= kFarAway;
  const double one = (-kFarAway - from) / delta;
  const double other = (kFarAway - from) / delta;
  first = std::max(first, std::min(one, other));
  last = std::min(last, std::max(one, other));
  return first <= last;
}

void paintClipped(QPainter& painter, QPointF from, QPointF to) {
  const QPointF delta = to - from;
  double first = 0;
  double last = 1;
  if (narrow(from.x(), delta.x(), first, last) && narrow(from.y(), delta.y(), first, last))
    painter.drawLine(from + first * delta, from + last * delta);
}

/// Joins are not round: between two lines that go on almost straight, a painter makes a blot of a
/// round one.
QPen roundPen(QColor colour, double width) {
  return {colour, width, Qt::SolidLine, Qt::RoundCap, Qt::BevelJoin};
}

/// The width of the axes in whole pixels of the device, so that both are alike on every screen.
double axisWidth(const QPainter& painter) {
  const double pixels_per_twip = painter.deviceTransform().m11();
  return std::max(1.0, std::round(kAxisWidth * pixels_per_twip)) / pixels_per_twip;
}

/// Whether the last point of a piece lies on the straight line from the one before to the next.
bool goesStraightOn(const QPolygonF& piece, QPointF next) {
  if (piece.size() < 2) return false;
  const QPointF before = piece.last() - piece[piece.size() - 2];
  const QPointF after = next - piece.last();
  return before.x() * after.y() == before.y() * after.x() && QPointF::dotProduct(before, after) > 0;
}

qsizetype longestPart(const QPainter& painter) {
  const QPaintEngine* const engine = painter.paintEngine();
  return engine && engine->type() == QPaintEngine::Raster ? kLongestRasterPart : kLongestPart;
}

QColor fromRgb(std::int32_t colour) {
  return {colour & 0xFF, colour >> 8 & 0xFF, colour >> 16 & 0xFF};
}

}  // namespace

PainterPicture::PainterPicture(QPainter& painter, QRectF area, QColor background, QColor axes)
    : painter_(painter),
      area_(area),
      background_(background),
      axes_(axes),
      longest_part_(longestPart(painter)) {}

PainterPicture::~PainterPicture() { paintPiece(); }

void PainterPicture::clear() {
  piece_.clear();
  is_continued_ = false;
  painter_.fillRect(area_, background_);
}

void PainterPicture::beginAxes() {
  paintPiece();
  painter_.setRenderHint(QPainter::Antialiasing, false);  // a pixel wide, and none of it grey
  painter_.setPen(roundPen(axes_, axisWidth(painter_)));
}

void PainterPicture::line(Point from, Point to) {
  painter_.drawLine(QPointF(from.x, from.y), QPointF(to.x, to.y));
}

void PainterPicture::beginGraph(char, std::int32_t colour) {
  paintPiece();
  painter_.setRenderHint(QPainter::Antialiasing);
  painter_.setPen(roundPen(fromRgb(colour), kCurveWidth));
  painter_.setBrush(fromRgb(colour));
}

void PainterPicture::startPiece(Point point) {
  paintPiece();
  piece_.append({point.x, point.y});
}

void PainterPicture::extendPiece(Point point) {
  const QPointF next(point.x, point.y);
  if (goesStraightOn(piece_, next)) piece_.removeLast();
  piece_.append(next);
  if (piece_.size() >= longest_part_) flush();
}

void PainterPicture::dot(Point centre, double radius) {
  const QPen pen = painter_.pen();
  painter_.setPen(Qt::NoPen);
  painter_.drawEllipse(QPointF(centre.x, centre.y), radius, radius);
  painter_.setPen(pen);
}

void PainterPicture::flush() {
  if (piece_.isEmpty()) return;
  const QPointF last = piece_.last();
  paintPiece();
  piece_.append(last);
  is_continued_ = true;
}

void PainterPicture::paintPiece() {
  if (piece_.size() == 1) {
    if (!is_continued_) painter_.drawPoint(piece_.first());
  } else if (std::ranges::all_of(piece_, isNear)) {
    painter_.drawPolyline(piece_);
  } else {
    for (qsizetype i = 1; i < piece_.size(); ++i) paintClipped(painter_, piece_[i - 1], piece_[i]);
  }
  piece_.clear();
  is_continued_ = false;
}

}  // namespace zel
