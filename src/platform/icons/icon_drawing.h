#pragma once

#include <QByteArray>
#include <QColor>
#include <QPainterPath>
#include <QPen>
#include <QRectF>
#include <functional>
#include <optional>
#include <vector>

class QPainter;

namespace zel {

/// A small picture of filled and stroked shapes, read from as much of SVG as the icons use: one
/// `svg` element with a viewBox, and in it `path`, `rect` (corners as round as `rx` says) and
/// `circle` elements with plain colours; what a shape does not say of itself, the `svg` element
/// says for it.
class IconDrawing {
 public:
  /// What a colour of the file is painted as.
  using Colouring = std::function<QColor(const QColor&)>;

  /// Nothing when the text is no such picture, down to a single attribute that is not understood.
  static std::optional<IconDrawing> read(const QByteArray& svg);

  /// Fills the rectangle with the viewBox, smoothly and at the painter's full resolution.
  void paint(QPainter& painter, const QRectF& rectangle, const Colouring& colouring) const;

 private:
  friend class IconReader;

  struct Shape {
    QPainterPath path;
    QColor fill;  // invalid: not filled
    QPen stroke;  // NoPen: not stroked
  };

  QRectF view_box_;
  std::vector<Shape> shapes_;
};

}  // namespace zel
