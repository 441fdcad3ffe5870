#pragma once

#include <QColor>
#include <QPainter>
#include <QPolygonF>

#include "pictures/picture.h"

namespace zel {

/// A picture on whatever a QPainter paints on, whose coordinates must be twips. Each piece of curve
/// is collected and painted in polylines as long as the painter is fastest with.
class PainterPicture : public Picture {
 public:
  /// The painter must outlive the picture. `background` covers the picture when it is cleared.
  PainterPicture(QPainter& painter, QRectF area, QColor background, QColor axes);
  /// Paints what is still held back.
  ~PainterPicture() override;

  void clear() override;
  void beginAxes() override;
  void line(Point from, Point to) override;
  void beginGraph(char letter, std::int32_t colour) override;
  void startPiece(Point point) override;
  void extendPiece(Point point) override;
  void dot(Point centre, double radius) override;

  /// Paints the points of the current piece that have not been painted yet; the piece goes on.
  void flush();

 private:
  void paintPiece();

  QPainter& painter_;
  QRectF area_;
  QColor background_;
  QColor axes_;
  qsizetype longest_part_;
  QPolygonF piece_;
  bool is_continued_ = false;  // the first point of piece_ has been painted
};

}  // namespace zel
