#include "forms/plot/plot_overlay.h"

#include <QEvent>
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/icons/plot_icons.h"
#include "platform/qt/number_painter.h"
#include "plot/session/plot_session.h"

namespace zel {
namespace {

constexpr int kReach = PlotOverlay::kCursorLength / 2;  // of a line, to each side of its centre
constexpr int kSlopeGap = 4;                            // between cursor and slope
constexpr int kHaloWidth = 3;
constexpr QRgb kFrame = 0xFFA0AAB4;  // of the pointer's coordinates
constexpr std::array<Slope, 5> kSlopes = {Slope::creciente_der, Slope::creciente_izq,
                                          Slope::decreciente_der, Slope::decreciente_izq,
                                          Slope::igual};

/// The pixel of a place in twips; nothing where it is far outside of a picture of this size.
std::optional<QPoint> pixelOf(Point twips, QSize picture) {
  const double x = std::floor(twips.x / kTwipsPerPixel);
  const double y = std::floor(twips.y / kTwipsPerPixel);
  const bool is_near = x >= -kReach && x <= picture.width() + kReach && y >= -kReach &&
                       y <= picture.height() + kReach;
  if (!is_near) return std::nullopt;
  return QPoint(static_cast<int>(x), static_cast<int>(y));
}

QRectF outlineOf(const ZoomRectangle& twips) {
  return {twips.left / kTwipsPerPixel, twips.top / kTwipsPerPixel, twips.width / kTwipsPerPixel,
          twips.height / kTwipsPerPixel};
}

}  // namespace

PlotOverlay::PlotOverlay(QWidget& picture) : QWidget(&picture) {
  setObjectName(picture.objectName() + "_Overlay");
  setAttribute(Qt::WA_TransparentForMouseEvents);
  for (std::size_t i = 0; i < kSlopes.size(); ++i) slopes_[i] = plotIcon(slopeKey(kSlopes[i]));
  resize(picture.size());
  picture.installEventFilter(this);
}

void PlotOverlay::show(const std::optional<TraceCursor>& cursor,
                       const std::optional<ZoomRectangle>& rectangle) {
  const QRegion before = toolsRegion();
  place_.reset();
  if (cursor) {
    place_ = cursor->place;
    slope_ = cursor->slope;
  }
  rectangle_ = rectangle;
  update(before + toolsRegion());
}

void PlotOverlay::showNumbers(NumberLayer layer) {
  if (layer == numbers_) return;
  numbers_ = std::move(layer);
  update();
}

void PlotOverlay::showCoordinates(const std::optional<PictureLabel>& label, double font_size) {
  if (label == coordinates_) return;
  for (const auto& shown : {coordinates_, label})
    if (shown) update(boxOf(*shown).toAlignedRect().adjusted(-2, -2, 2, 2));
  coordinates_ = label;
  coordinates_size_ = font_size;
}

QRegion PlotOverlay::toolsRegion() const {
  QRegion region;
  if (const auto centre = place_ ? pixelOf(*place_, size()) : std::nullopt) {
    const int reach = kReach + kHaloWidth;
    region += QRect(*centre - QPoint(reach, reach), *centre + QPoint(reach, reach));
    region += slopePlace(*centre, slope_);
  }
  if (rectangle_) {
    constexpr int kPen = 2;
    region += outlineOf(*rectangle_).toAlignedRect().adjusted(-kPen, -kPen, kPen, kPen);
  }
  return region;
}

QRect PlotOverlay::slopePlace(QPoint cursor, Slope slope) const {
  const bool is_left = slope == Slope::creciente_izq || slope == Slope::decreciente_izq;
  constexpr int kDistance = kReach + kSlopeGap;
  QRect place(0, 0, kSlopeSide, kSlopeSide);
  place.moveCenter(cursor);
  place.moveLeft(is_left ? cursor.x() - kDistance - kSlopeSide : cursor.x() + kDistance + 1);
  place.moveLeft(std::clamp(place.left(), 0, std::max(0, width() - kSlopeSide)));
  place.moveTop(std::clamp(place.top(), 0, std::max(0, height() - kSlopeSide)));
  return place;
}

bool PlotOverlay::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize) resize(parentWidget()->size());
  return QWidget::eventFilter(watched, event);
}

void PlotOverlay::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  paintOver(painter, numbers_, event->rect());
  paintCursor(painter);
  paintRectangle(painter);
  if (!coordinates_) return;
  paintNumber(painter, *coordinates_, coordinates_size_);
  painter.setPen(QColor::fromRgb(kFrame));
  painter.drawRect(boxOf(*coordinates_).toAlignedRect());
}

void PlotOverlay::paintCursor(QPainter& painter) const {
  const auto centre = place_ ? pixelOf(*place_, size()) : std::nullopt;
  if (!centre) return;
  const QRect horizontal(centre->x() - kReach, centre->y(), kCursorLength, 1);
  const QRect vertical(centre->x(), centre->y() - kReach, 1, kCursorLength);
  constexpr int kHalo = kHaloWidth / 2;
  for (const QRect& line : {horizontal, vertical})
    painter.fillRect(line.adjusted(-kHalo, -kHalo, kHalo, kHalo), Qt::white);
  for (const QRect& line : {horizontal, vertical}) painter.fillRect(line, Qt::black);
  const auto icon = std::find(kSlopes.begin(), kSlopes.end(), slope_) - kSlopes.begin();
  slopes_[static_cast<std::size_t>(icon)].paint(&painter, slopePlace(*centre, slope_));
}

void PlotOverlay::paintRectangle(QPainter& painter) const {
  if (!rectangle_) return;
  const QRectF outline = outlineOf(*rectangle_);
  painter.setPen(QPen(Qt::white, 1));
  painter.drawRect(outline);
  painter.setPen(QPen(Qt::black, 1, Qt::DashLine));
  painter.drawRect(outline);
}

}  // namespace zel
