#include "platform/icons/plot_icons.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

#include "platform/icons/icons.h"

namespace zel {
namespace {

// The colours in the files, which are those of a light palette.
constexpr const char* kInk = "#202428";
constexpr const char* kAccent = "#1a6fc4";

constexpr const char* kAccentOnDark = "#6cb8ff";
constexpr qreal kDisabledOpacity = 0.35;

/// An SVG file whose colours follow the palette.
class PaletteIcon : public QIconEngine {
 public:
  explicit PaletteIcon(QByteArray svg) : svg_(std::move(svg)) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    if (mode != QIcon::Disabled) return QSvgRenderer(coloured()).render(painter, rect);
    // Faded as a whole: lines that cross are not darker there.
    const qreal ratio = painter->device()->devicePixelRatioF();
    const qreal opacity = painter->opacity();
    painter->setOpacity(opacity * kDisabledOpacity);
    painter->drawPixmap(rect, pixmap(rect.size() * ratio, QIcon::Normal, state));
    painter->setOpacity(opacity);
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return pixmap;
  }

  QIconEngine* clone() const override { return new PaletteIcon(*this); }

 private:
  QByteArray coloured() const {
    const QColor ink = QGuiApplication::palette().color(QPalette::Active, QPalette::ButtonText);
    QByteArray svg = svg_;
    svg.replace(kInk, ink.name().toLatin1());
    if (ink.lightnessF() > 0.5F) svg.replace(kAccent, kAccentOnDark);
    return svg;
  }

  QByteArray svg_;
};

}  // namespace

QIcon plotIcon(std::string_view key) {
  initIcons();
  QFile file(":/plot/" + QString::fromUtf8(key.data(), static_cast<qsizetype>(key.size())) +
             ".svg");
  if (!file.open(QIODevice::ReadOnly)) return {};
  return QIcon(new PaletteIcon(file.readAll()));
}

}  // namespace zel
