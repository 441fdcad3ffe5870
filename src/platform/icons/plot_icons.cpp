#include "platform/icons/plot_icons.h"

#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QPalette>

#include "platform/icons/icon_drawing.h"
#include "platform/icons/icons.h"
#include "platform/icons/painted_icon.h"

namespace zel {
namespace {

// The colours in the files, which are those of a light palette.
constexpr QRgb kInk = 0xff202428;
constexpr QRgb kAccent = 0xff1a6fc4;

constexpr QRgb kAccentOnDark = 0xff6cb8ff;
constexpr qreal kDisabledOpacity = 0.35;

/// The colours of the files in the application's palette.
QColor inPalette(const QColor& colour) {
  const QColor ink = QGuiApplication::palette().color(QPalette::Active, QPalette::ButtonText);
  if (colour == QColor(kInk)) return ink;
  return colour == QColor(kAccent) && ink.lightnessF() > 0.5F ? QColor(kAccentOnDark) : colour;
}

/// A drawing whose colours follow the palette.
class PaletteIcon : public PaintedIcon {
 public:
  explicit PaletteIcon(IconDrawing drawing) : drawing_(std::move(drawing)) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    if (mode != QIcon::Disabled) return drawing_.paint(*painter, rect, inPalette);
    // Faded as a whole: lines that cross are not darker there.
    const qreal ratio = painter->device()->devicePixelRatioF();
    const qreal opacity = painter->opacity();
    painter->setOpacity(opacity * kDisabledOpacity);
    painter->drawPixmap(rect, pixmap(rect.size() * ratio, QIcon::Normal, state));
    painter->setOpacity(opacity);
  }

  QIconEngine* clone() const override { return new PaletteIcon(*this); }

 private:
  IconDrawing drawing_;
};

}  // namespace

QIcon plotIcon(std::string_view key) {
  initIcons();
  QFile file(":/plot/" + QString::fromUtf8(key.data(), static_cast<qsizetype>(key.size())) +
             ".svg");
  if (!file.open(QIODevice::ReadOnly)) return {};
  auto drawing = IconDrawing::read(file.readAll());
  return drawing ? QIcon(new PaletteIcon(*std::move(drawing))) : QIcon();
}

}  // namespace zel
