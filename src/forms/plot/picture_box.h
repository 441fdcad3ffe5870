#pragma once

#include <QElapsedTimer>
#include <QImage>
#include <QWidget>

#include "pictures/bitmap.h"
#include "pictures/drawing_list.h"
#include "pictures/raster_picture.h"

namespace zel {

/// A widget with a picture that lasts: an expose shows what was drawn, and nobody is asked to draw
/// again. Geometry is in twips, 15 to a logical pixel; the image has the pixels of the device. What
/// is being drawn is seen at showDrawn and showProgress only, so a redraw that is quick does not
/// flicker. The picture is white paper in every palette, because the colours of graphs are chosen
/// for it.
class PictureBox : public QWidget, public Picture {
  Q_OBJECT

 public:
  static constexpr int kProgressInterval = 50;  // milliseconds

  explicit PictureBox(QWidget* parent = nullptr);

  /// Makes an image of the widget's present size where there is another, also while something else
  /// is being drawn.
  void clear() override;
  void beginAxes() override;
  void line(Point from, Point to) override;
  void beginGraph(char letter, std::int32_t colour) override;
  void startPiece(Point point) override;
  void extendPiece(Point point) override;
  void dot(Point centre, double radius) override;

  /// Shows what has been drawn, which is all.
  void showDrawn();
  /// Shows what has been drawn so far in a drawing that takes long, at most once in each interval
  /// from its beginning.
  void showProgress();

  /// A copy of what has been drawn so far.
  QImage image() const;
  /// The same in the pixels of the device.
  Bitmap bitmap() const { return drawn_.soFar(); }
  /// The same as it was drawn, in twips.
  const DrawingList& drawing() const { return drawing_; }

 signals:
  void graphBegun(char letter);
  /// What is shown is another picture than before, or more of it.
  void shownAnew();
  /// A character code: 27 for Esc.
  void KeyPress(char32_t key);
  /// The device has another resolution than the image, which should be drawn again.
  void resolutionChanged();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  /// A bitmap with as many pixels to a logical one.
  struct Shown {
    Bitmap bitmap;
    qreal ratio = 1;
  };

  void noticeResolution();

  DrawingList drawing_;
  RasterPicture drawn_{1, 1};
  qreal ratio_ = 1;           // of drawn_
  bool shows_drawn_ = false;  // what is shown is drawn_
  Shown shown_;               // what is shown otherwise
  QElapsedTimer since_shown_;
  bool is_stale_ = false;  // resolutionChanged was emitted
};

}  // namespace zel
