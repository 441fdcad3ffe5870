#include "platform/qt/number_painter.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <algorithm>
#include <cmath>

#include "pictures/picture_size.h"

namespace zel {
namespace {

QColor qtColour(std::int32_t colour) {
  return {colour & 0xFF, colour >> 8 & 0xFF, colour >> 16 & 0xFF};
}

QFont numberFont(double font_size) {
  QFont font = QGuiApplication::font();
  font.setPixelSize(std::max(1, qRound(font_size / kTwipsPerPixel)));
  return font;
}

QString textOf(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// A pixel's first edge and its width in logical pixels, as an axis at this place has them.
struct Stripe {
  double first;
  double width;
};

Stripe stripeAt(double twips, double density) {
  const double width = std::max(1.0, std::round(density));
  const double first = std::floor(twips / kTwipsPerPixel * density - (width - 1) / 2);
  return {first / density, width / density};
}

}  // namespace

TextMeasure numberMeasure() {
  constexpr double kOfTheFont = 0.85;
  constexpr int kSmallest = 9;  // pixels
  const int pixels = QFontInfo(QGuiApplication::font()).pixelSize();
  const double size = std::max(kSmallest, qRound(pixels * kOfTheFont)) * kTwipsPerPixel;
  const QFontMetricsF metrics(numberFont(size));
  return {size, std::ceil(metrics.height()) * kTwipsPerPixel, [metrics](std::string_view text) {
            return std::ceil(metrics.horizontalAdvance(textOf(text)) + 2) * kTwipsPerPixel;
          }};
}

QRectF boxOf(const PictureLabel& label) {
  return {label.corner.x / kTwipsPerPixel, label.corner.y / kTwipsPerPixel,
          label.width / kTwipsPerPixel, label.height / kTwipsPerPixel};
}

void paintGrid(QPainter& painter, const NumberLayer& layer) {
  const double density = painter.deviceTransform().m11();
  const QColor colour = qtColour(kGridColour);
  for (const GridLine& line : layer.grid) {
    const bool is_upright = line.from.x == line.to.x;
    const Stripe stripe = stripeAt(is_upright ? line.from.x : line.from.y, density);
    const double length = (is_upright ? line.to.y : line.to.x) / kTwipsPerPixel;
    painter.fillRect(is_upright ? QRectF(stripe.first, 0, stripe.width, length)
                                : QRectF(0, stripe.first, length, stripe.width),
                     colour);
  }
}

void paintNumber(QPainter& painter, const PictureLabel& label, double font_size) {
  QColor white(Qt::white);
  white.setAlphaF(static_cast<float>(kNumberBackground));
  painter.fillRect(boxOf(label), white);
  painter.setFont(numberFont(font_size));
  painter.setPen(qtColour(kNumberColour));
  painter.drawText(boxOf(label), Qt::AlignCenter | Qt::TextDontClip | Qt::TextSingleLine,
                   textOf(label.text));
}

void paintNumbers(QPainter& painter, const NumberLayer& layer, const QRectF& part) {
  for (const PictureLabel& label : layer.labels)
    if (part.intersects(boxOf(label))) paintNumber(painter, label, layer.font_size);
}

void paintOver(QPainter& painter, const NumberLayer& layer, const QRectF& part) {
  painter.setCompositionMode(QPainter::CompositionMode_Multiply);
  paintGrid(painter, layer);
  painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
  paintNumbers(painter, layer, part);
}

}  // namespace zel
