#pragma once

#include <QIcon>
#include <QWidget>
#include <array>
#include <optional>

#include "pictures/number_layer.h"
#include "plot/session/trace.h"
#include "plot/session/zoom_rectangle.h"

namespace zel {

struct TraceCursor;

/// What is shown over a picture and is no part of it: the trace cursor with the slope beside it,
/// the zoom rectangle, and where they are wanted numbers, a grid and the pointer's coordinates.
/// Only what changes is painted anew, so a walk costs little. It lies over the whole of its parent,
/// whose coordinates are twips, and lets the mouse through. All is drawn for white paper, on curves
/// of any colour.
class PlotOverlay : public QWidget {
 public:
  static constexpr int kCursorLength = 25;  // of each line, in logical pixels
  static constexpr int kSlopeSide = 20;     // of the slope's image

  explicit PlotOverlay(QWidget& picture);

  void show(const std::optional<TraceCursor>& cursor,
            const std::optional<ZoomRectangle>& rectangle);
  void showNumbers(NumberLayer layer);
  /// In the size of the numbers.
  void showCoordinates(const std::optional<PictureLabel>& label, double font_size);

  /// Where the image of a slope lies, for a cursor at this place in logical pixels: on its side of
  /// the cursor, and within the picture.
  QRect slopePlace(QPoint cursor, Slope slope) const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  /// What cursor and rectangle cover.
  QRegion toolsRegion() const;
  void paintCursor(QPainter& painter) const;
  void paintRectangle(QPainter& painter) const;

  std::array<QIcon, 5> slopes_;
  std::optional<Point> place_;  // of the cursor, in twips
  Slope slope_ = Slope::igual;
  std::optional<ZoomRectangle> rectangle_;
  NumberLayer numbers_;
  std::optional<PictureLabel> coordinates_;
  double coordinates_size_ = 0;  // of their font, in twips
};

}  // namespace zel
