#include "forms/plot/plot_overlay.h"

#include <QImage>
#include <QPaintEvent>
#include <QTest>

#include <gtest/gtest.h>

#include "plot/session/plot_session.h"
#include "support/patience.h"
#include "support/qt_application.h"

namespace zel::test {
namespace {

/// What a widget is asked to paint.
class PaintedRegion : public QObject {
 public:
  explicit PaintedRegion(QWidget& widget) { widget.installEventFilter(this); }
  QRegion region;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) region += static_cast<QPaintEvent*>(event)->region();
    return false;
  }
};

class Overlay : public ::testing::Test {
 protected:
  Overlay() {
    paper.resize(200, 150);
    overlay = std::make_unique<PlotOverlay>(paper);
  }

  QImage seen(Qt::GlobalColor background) {
    QPalette palette;
    palette.setColor(QPalette::Window, background);
    paper.setPalette(palette);
    return paper.grab().toImage();
  }
  static int differences(const QImage& one, const QImage& other) {
    int count = 0;
    for (int y = 0; y < one.height(); ++y)
      for (int x = 0; x < one.width(); ++x)
        if (one.pixel(x, y) != other.pixel(x, y)) ++count;
    return count;
  }

  QApplication& qt = application();
  QWidget paper;
  std::unique_ptr<PlotOverlay> overlay;
};

TEST_F(Overlay, CoversItsPictureAndLetsTheMouseThrough) {
  EXPECT_EQ(overlay->geometry(), QRect(0, 0, 200, 150));
  paper.resize(300, 50);
  paper.grab();
  EXPECT_EQ(overlay->size(), paper.size());
  EXPECT_EQ(paper.childAt(10, 10), nullptr);
}

TEST_F(Overlay, DrawsTwoLinesOfOneLengthCentredOnThePoint) {
  overlay->show(TraceCursor{{1500, 900}, Slope::igual}, std::nullopt);
  const QImage image = seen(Qt::white);
  constexpr int kReach = PlotOverlay::kCursorLength / 2;
  for (int i = -kReach - 3; i <= kReach + 3; ++i) {
    const QColor expected = std::abs(i) <= kReach ? Qt::black : Qt::white;
    EXPECT_EQ(image.pixelColor(100 + i, 60), expected) << i;
    EXPECT_EQ(image.pixelColor(100, 60 + i), expected) << i;
  }
}

TEST_F(Overlay, IsSeenOnBlackAndOnWhite) {
  for (const auto background : {Qt::black, Qt::white, Qt::blue}) {
    overlay->show(std::nullopt, std::nullopt);
    const QImage empty = seen(background);
    overlay->show(TraceCursor{{1500, 900}, Slope::creciente_der}, std::nullopt);
    EXPECT_GT(differences(seen(background), empty), 40);
    overlay->show(std::nullopt, ZoomRectangle{300, 300, 600, 600});
    EXPECT_GT(differences(seen(background), empty), 40);
  }
}

TEST_F(Overlay, PutsTheSlopeOnItsSideOfTheCursorAndWithinThePicture) {
  const auto place = [&](QPoint cursor, Slope slope) { return overlay->slopePlace(cursor, slope); };
  for (const Slope slope : {Slope::creciente_der, Slope::decreciente_der, Slope::igual})
    EXPECT_GT(place({100, 60}, slope).left(), 100);
  for (const Slope slope : {Slope::creciente_izq, Slope::decreciente_izq})
    EXPECT_LT(place({100, 60}, slope).right(), 100);
  for (const QPoint cursor : {QPoint(0, 0), QPoint(199, 149), QPoint(199, 0), QPoint(0, 149)})
    for (const Slope slope : {Slope::creciente_der, Slope::creciente_izq})
      EXPECT_TRUE(overlay->rect().contains(place(cursor, slope)));
}

TEST_F(Overlay, ShowsNumbersAndAGridThatLeavesTheCurvesAsDarkAsTheyAre) {
  const QImage empty = seen(Qt::white);
  overlay->showNumbers({150, {{{1500, 0}, {1500, 2250}}}, {{"7", {300, 600}, 150, 180}}});
  const QImage white = seen(Qt::white);
  EXPECT_EQ(white.pixelColor(100, 100), QColor(0xD9, 0xE1, 0xEA));
  EXPECT_EQ(white.pixelColor(99, 100), QColor(Qt::white));
  EXPECT_GT(differences(white.copy(20, 40, 10, 12), empty.copy(20, 40, 10, 12)), 5);
  EXPECT_EQ(seen(Qt::black).pixelColor(100, 100), QColor(Qt::black));
  overlay->showNumbers({});
  EXPECT_EQ(seen(Qt::white), empty);
}

TEST_F(Overlay, ShowsCoordinatesUntilThereAreNone) {
  const QImage empty = seen(Qt::white);
  overlay->showCoordinates(PictureLabel{"X=1  Y=2", {300, 600}, 900, 180}, 150);
  EXPECT_GT(differences(seen(Qt::white), empty), 20);
  overlay->showCoordinates(std::nullopt, 0);
  EXPECT_EQ(seen(Qt::white), empty);
}

TEST_F(Overlay, PaintsNoMoreThanWhatAStepOfAWalkChanges) {
  paper.show();
  overlay->show(TraceCursor{{1500, 900}, Slope::creciente_der}, std::nullopt);
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&paper, kPatience));
  QCoreApplication::processEvents();
  PaintedRegion painted(*overlay);
  overlay->show(TraceCursor{{1515, 900}, Slope::creciente_der}, std::nullopt);
  QCoreApplication::processEvents();
  ASSERT_FALSE(painted.region.isEmpty());
  EXPECT_LT(painted.region.boundingRect().width(), 80);
  EXPECT_LT(painted.region.boundingRect().height(), 50);
}

TEST_F(Overlay, ShowsADifferentImageForEachSlope) {
  std::vector<QImage> images;
  for (const Slope slope : {Slope::creciente_der, Slope::creciente_izq, Slope::decreciente_der,
                            Slope::decreciente_izq, Slope::igual}) {
    overlay->show(TraceCursor{{1500, 900}, slope}, std::nullopt);
    images.push_back(seen(Qt::white));
    for (std::size_t i = 0; i + 1 < images.size(); ++i)
      EXPECT_GT(differences(images[i], images.back()), 20);
  }
}

TEST_F(Overlay, ACursorFarOutsideIsNotDrawn) {
  const QImage empty = seen(Qt::white);
  for (const Point place : {Point{1e300, 5}, Point{5, -1e18}, Point{-9000, 100}}) {
    overlay->show(TraceCursor{place, Slope::igual}, std::nullopt);
    EXPECT_EQ(seen(Qt::white), empty);
  }
}

}  // namespace
}  // namespace zel::test
