#include "forms/plot/picture_box.h"

#include <QElapsedTimer>
#include <QTest>
#include <QTimer>
#include <vector>

#include <gmock/gmock.h>

#include "forms/plot/panel_bar.h"
#include "forms/plot/plot_screen.h"
#include "support/qt_application.h"
#include "support/recorder_picture.h"

namespace zel::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// On a screen of any density.
class DenseBox : public PictureBox {
 public:
  double ratio = 1;

 protected:
  int metric(PaintDeviceMetric which) const override {
    if (which == PdmDevicePixelRatio) return static_cast<int>(ratio);
    if (which == PdmDevicePixelRatioScaled)
      return static_cast<int>(ratio * devicePixelRatioFScale());
    return PictureBox::metric(which);
  }
};

class Box : public ::testing::Test {
 protected:
  Box() {
    box.resize(100, 80);
    QObject::connect(&box, &PictureBox::resolutionChanged, [this] { ++changes; });
  }

  void drawLine() {
    box.clear();
    box.beginGraph('a', 0x0000FF);
    box.startPiece({0, 40 * 15});
    box.extendPiece({100 * 15, 40 * 15});
  }

  static QColor middle(const QImage& image) {
    return image.pixelColor(image.width() / 2, image.height() / 2);
  }

  QApplication& app = application();
  DenseBox box;
  int changes = 0;
};

TEST_F(Box, HasAnImageOfItsSizeFromTheFirstDrawingOn) {
  drawLine();
  EXPECT_EQ(box.image().size(), QSize(100, 80));
  EXPECT_LT(middle(box.image()).blue(), 128);
}

TEST_F(Box, ShowsWhatWasDrawnWhenItIsToldTo) {
  drawLine();
  EXPECT_EQ(middle(box.grab().toImage()), QColor(Qt::white));
  box.showDrawn();
  EXPECT_LT(middle(box.grab().toImage()).blue(), 128);
}

TEST_F(Box, ShowsProgressOnceInAnInterval) {
  QElapsedTimer clock;
  clock.start();
  drawLine();
  box.showProgress();
  // On a machine that is busy the interval may be over already.
  if (clock.elapsed() < PictureBox::kProgressInterval) {
    EXPECT_EQ(middle(box.grab().toImage()), QColor(Qt::white));
  }
  QTest::qSleep(PictureBox::kProgressInterval + 5);
  box.showProgress();
  EXPECT_LT(middle(box.grab().toImage()).blue(), 128);
}

TEST_F(Box, ShowsTheOldPictureUntilTheNextOneIsShown) {
  drawLine();
  box.showDrawn();
  for (int i = 0; i < 3; ++i) {
    box.clear();
    box.beginGraph('a', 0xFF0000);
    box.startPiece({50 * 15, 0});
    box.extendPiece({50 * 15, 80 * 15});
    EXPECT_LT(box.grab().toImage().pixelColor(20, 40).blue(), 128);
    EXPECT_EQ(box.grab().toImage().pixelColor(50, 20), QColor(Qt::white));
    box.showDrawn();
    EXPECT_EQ(box.grab().toImage().pixelColor(20, 40), QColor(Qt::white));
    EXPECT_LT(box.grab().toImage().pixelColor(50, 20).red(), 128);
    drawLine();
    box.showDrawn();
  }
}

TEST_F(Box, LookingAtItWhileItIsDrawnChangesNothing) {
  drawLine();
  box.extendPiece({50 * 15, 60 * 15});
  const QImage expected = box.image();
  drawLine();
  QTest::qSleep(PictureBox::kProgressInterval + 5);
  box.showProgress();
  box.grab();
  box.image();
  box.extendPiece({50 * 15, 60 * 15});
  EXPECT_EQ(box.image(), expected);
}

TEST_F(Box, TheImageMayBeReplacedInTheMiddleOfAPiece) {
  drawLine();
  box.resize(200, 160);
  box.clear();
  box.extendPiece({200 * 15, 80 * 15});
  box.dot({100 * 15, 80 * 15}, 5 * 15);
  box.line({0, 0}, {200 * 15, 160 * 15});
  EXPECT_EQ(box.image().size(), QSize(200, 160));
}

TEST_F(Box, KeepsItsImageUntilTheNextDrawing) {
  drawLine();
  box.showDrawn();
  box.resize(200, 160);
  EXPECT_EQ(box.image().size(), QSize(100, 80));
  EXPECT_LT(box.grab().toImage().pixelColor(50, 40).blue(), 128);
  EXPECT_EQ(box.grab().toImage().pixelColor(150, 120), QColor(Qt::white));
}

TEST_F(Box, ACopyOfTheImageStaysAsItIs) {
  drawLine();
  const QImage copy = box.image();
  box.clear();
  EXPECT_LT(middle(copy).blue(), 128);
  EXPECT_EQ(middle(box.image()), QColor(Qt::white));
}

TEST_F(Box, KeepsWhatWasDrawnAsAListToo) {
  box.beginGraph('z', 0);
  drawLine();
  box.beginAxes();
  box.line({0, 0}, {15, 15});
  box.dot({30, 30}, 20);
  RecorderPicture recorder;
  box.drawing().replay(recorder);
  EXPECT_THAT(recorder.texts(), ElementsAre("graph a #ff0000", "start 0,600", "extend 1500,600",
                                            "axes", "line 0,0 15,15", "dot 30,30 radius 20"));
}

TEST_F(Box, TheListDrawsTheSameImage) {
  drawLine();
  box.dot({300, 300}, 60);
  PictureBox other;
  other.resize(100, 80);
  other.clear();
  box.drawing().replay(other);
  EXPECT_EQ(other.image(), box.image());
}

TEST_F(Box, GivesItsImageAsABitmap) {
  drawLine();
  const Bitmap bitmap = box.bitmap();
  EXPECT_EQ(bitmap.width, 100);
  EXPECT_EQ(bitmap.height, 80);
  EXPECT_EQ(bitmap.pixels.at(0), 0xFFFFFFFF);
  EXPECT_EQ(bitmap.pixels.at(40 * 100 + 50), box.image().pixel(50, 40));
}

TEST_F(Box, NoSizeIsTooSmall) {
  box.resize(0, 0);
  drawLine();
  box.showDrawn();
  EXPECT_FALSE(box.image().isNull());
}

TEST_F(Box, HasThePixelsOfTheDevice) {
  for (const double ratio : {1.0, 1.25, 1.5, 2.0, 3.0}) {
    box.ratio = ratio;
    drawLine();
    const QImage image = box.image();
    EXPECT_EQ(image.size(), (QSizeF(100, 80) * ratio).toSize());
    EXPECT_EQ(image.devicePixelRatio(), ratio);
    EXPECT_LT(middle(image).blue(), 128) << ratio;
    EXPECT_EQ(image.pixelColor(image.width() / 2, image.height() / 2 - 6), QColor(Qt::white));
  }
}

TEST_F(Box, ReplacesAnImageOfAsManyPixelsButAnotherDensity) {
  drawLine();
  box.resize(50, 40);
  box.ratio = 2;
  box.clear();
  EXPECT_EQ(box.image().size(), QSize(100, 80));
  EXPECT_EQ(box.image().devicePixelRatio(), 2);
}

TEST_F(Box, AsksOnceForARedrawWhenTheDensityChanges) {
  drawLine();
  box.showDrawn();
  box.show();
  QTest::qWait(1);
  EXPECT_EQ(changes, 0);
  box.ratio = 2;
  for (int i = 0; i < 3; ++i) {
    box.repaint();
    QCoreApplication::processEvents();
  }
  EXPECT_EQ(changes, 1);
  drawLine();
  box.showDrawn();
  box.repaint();
  QCoreApplication::processEvents();
  EXPECT_EQ(changes, 1);
}

TEST_F(Box, GivesKeysAsCharacterCodes) {
  std::vector<char32_t> keys;
  QObject::connect(&box, &PictureBox::KeyPress, [&](char32_t key) { keys.push_back(key); });
  QTest::keyClick(&box, Qt::Key_Escape);
  QTest::keyClick(&box, Qt::Key_Space);
  QTest::keyClick(&box, 'C');
  QTest::keyClick(&box, 'c');
  QTest::keyClick(&box, Qt::Key_Left);
  QTest::keyClick(&box, Qt::Key_Shift);
  EXPECT_THAT(keys, ElementsAre(27, 32, 'C', 'c'));
}

TEST_F(Box, TellsWhichGraphIsBegun) {
  std::string letters;
  QObject::connect(&box, &PictureBox::graphBegun, [&](char letter) { letters += letter; });
  drawLine();
  box.beginGraph('z', 0);
  EXPECT_EQ(letters, "az");
}

TEST_F(Box, PendingEventsRunAtMostEveryFewMilliseconds) {
  PanelBar bar("StatusBar1");
  PlotScreen screen(box, bar);
  int runs = 0;
  const auto post = [&] {
    QMetaObject::invokeMethod(
        &box, [&] { ++runs; }, Qt::QueuedConnection);
  };
  post();
  QElapsedTimer clock;
  clock.start();
  screen.runPendingEvents();
  EXPECT_EQ(runs, 1);
  post();
  screen.runPendingEvents();
  if (clock.elapsed() < PlotScreen::kEventInterval) {
    EXPECT_EQ(runs, 1);
  }
  QTest::qSleep(PlotScreen::kEventInterval + 1);
  screen.runPendingEvents();
  EXPECT_EQ(runs, 2);
}

}  // namespace
}  // namespace zel::test
