#include "forms/pixel_frame.h"

#include <QWidget>
#include <set>

#include <gtest/gtest.h>

#include "support/qt_application.h"

namespace zel::test {
namespace {

/// A widget with a frame at its edge, and nothing else.
class Framed : public QWidget {
 public:
  Framed(QWidget* parent, int width) : QWidget(parent), width_(width) {}

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    paintPixelFrame(painter, rect(), QPen(Qt::black, width_));
  }

 private:
  int width_;
};

constexpr int kFramedSide = 20;  // logical pixels of the framed widget

/// The columns, or the rows, of an image that are black across the middle of the other direction.
std::set<int> blackAlong(const QImage& image, bool across, int middle) {
  std::set<int> black;
  for (int i = 0; i < image.width(); ++i) {
    const QRgb pixel = across ? image.pixel(i, middle) : image.pixel(middle, i);
    if (pixel == qRgb(0, 0, 0)) black.insert(i);
  }
  return black;
}

QImage framedAt(double scale, QPoint place, int width) {
  QWidget parent;
  parent.setPalette(QPalette(Qt::white));
  parent.resize(2 * kFramedSide, 2 * kFramedSide);
  Framed framed(&parent, width);
  framed.setGeometry(QRect(place, QSize(kFramedSide, kFramedSide)));
  QImage image((QSizeF(parent.size()) * scale).toSize(), QImage::Format_RGB32);
  image.setDevicePixelRatio(scale);
  image.fill(Qt::white);
  parent.render(&image);
  return image;
}

TEST(PixelFrame, HasAllFourSidesOfOneWidthAtEveryScale) {
  application();
  for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.0}) {
    for (int place = 1; place <= 8; ++place) {
      for (const int width : {1, 2}) {
        const QImage image = framedAt(scale, {place, place}, width);
        const int first = qRound(place * scale);
        const int end = qRound((place + kFramedSide) * scale);
        std::set<int> wanted;
        for (int i = 0; i < static_cast<int>(width * scale); ++i)
          wanted.insert({first + i, end - 1 - i});
        for (const bool across : {true, false})
          EXPECT_EQ(blackAlong(image, across, (first + end) / 2), wanted)
              << "scale " << scale << ", place " << place << ", width " << width;
      }
    }
  }
}

}  // namespace
}  // namespace zel::test
