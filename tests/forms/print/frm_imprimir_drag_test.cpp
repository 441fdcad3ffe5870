// The picture on the page of the print preview, moved with the mouse and the keys.
#include "forms/print/frm_imprimir_fixture.h"

namespace zel::test {
namespace {

class DraggedPicture : public PrintWindow {
 protected:
  DraggedPicture() {
    open();
    start = image().geometry();
  }

  QRect start;
};

TEST_F(DraggedPicture, TheOutlineFollowsTheMouseAndThePictureStays) {
  press();
  EXPECT_TRUE(outline().isVisible());
  EXPECT_EQ(outline().geometry(), start);
  EXPECT_EQ(image().cursor().shape(), Qt::ClosedHandCursor);
  moveBy({20, 10});
  EXPECT_EQ(outline().geometry(), start.translated(20, 10));
  EXPECT_EQ(image().geometry(), start);
  moveBy({-7, 3});
  EXPECT_EQ(outline().geometry(), start.translated(-7, 3));
}

TEST_F(DraggedPicture, ThePictureGoesToTheOutlineWhenTheButtonIsReleased) {
  press();
  moveBy({20, 10});
  release({20, 10});
  EXPECT_EQ(image().geometry(), start.translated(20, 10));
  EXPECT_FALSE(outline().isVisible());
  EXPECT_EQ(image().cursor().shape(), Qt::OpenHandCursor);
}

TEST_F(DraggedPicture, AnotherButtonOrAKeyDoesNotDisturbADrag) {
  press();
  moveBy({20, 10});
  QTest::mousePress(&image(), Qt::RightButton);
  QTest::mouseRelease(&image(), Qt::RightButton);
  QTest::keyClick(&image(), Qt::Key_Left);
  EXPECT_TRUE(outline().isVisible());
  EXPECT_EQ(image().geometry(), start);
  release({20, 10});
  EXPECT_EQ(image().geometry(), start.translated(20, 10));
}

TEST_F(DraggedPicture, IsPrintedWhereItStands) {
  drag({-20, 13});
  const double twips = 16840.0 / page().width();
  const Point position = printed().position;
  EXPECT_NEAR(position.x, image().x() * twips, twips / 2 + 1);
  EXPECT_NEAR(position.y, image().y() * twips, twips / 2 + 1);
}

TEST_F(DraggedPicture, TheOutlineStaysAtItsLastPlaceInsideThePage) {
  press();
  moveBy({20, 10});
  for (const QPoint way : {QPoint(-1000, 0), QPoint(1000, 0), QPoint(0, -1000), QPoint(0, 1000)}) {
    moveBy(way);
    EXPECT_EQ(outline().geometry(), start.translated(20, 10));
  }
  release({0, 1000});
  EXPECT_EQ(image().geometry(), start.translated(20, 10));
}

TEST_F(DraggedPicture, ReachesTheEdgesOfThePage) {
  drag(QPoint(1, 1) - start.topLeft());
  EXPECT_LE(image().x(), 2);
  EXPECT_LE(image().y(), 2);
  drag(page().rect().bottomRight() - image().geometry().bottomRight() - QPoint(1, 1));
  EXPECT_GE(image().geometry().right(), page().width() - 3);
  EXPECT_GE(image().geometry().bottom(), page().height() - 3);
}

TEST_F(DraggedPicture, AMouseWithoutAButtonMovesNothing) {
  QTest::mouseMove(&image(), start.center() - start.topLeft());
  QTest::mouseMove(&image(), {3, 3});
  EXPECT_EQ(outline().geometry(), start);
}

TEST_F(DraggedPicture, AClickMovesNothing) {
  const Point before = printed().position;
  drag({0, 0});
  EXPECT_EQ(printed().position, before);
}

TEST_F(DraggedPicture, MovesWithTheArrowKeysByATenthOfAnInch) {
  image().setFocus();
  QTest::keyClick(&image(), Qt::Key_Left);
  EXPECT_EQ(printed().position, (Point{5420 - 144, 3700}));
  QTest::keyClick(&image(), Qt::Key_Up);
  EXPECT_EQ(printed().position, (Point{5420 - 144, 3700 - 144}));
  for (int i = 0; i < 3; ++i) QTest::keyClick(&image(), Qt::Key_Right);
  for (int i = 0; i < 2; ++i) QTest::keyClick(&image(), Qt::Key_Down);
  EXPECT_EQ(printed().position, (Point{5420 + 2 * 144, 3700 + 144}));
  EXPECT_FALSE(outline().isVisible());
}

TEST_F(DraggedPicture, TheArrowKeysStopAtTheEdge) {
  for (int i = 0; i < 100; ++i) QTest::keyClick(&image(), Qt::Key_Left);
  const double left = printed().position.x;
  EXPECT_GE(left, 0);
  EXPECT_LT(left, 144);
}

TEST_F(DraggedPicture, StaysAtItsPlaceOnPaperWhenTheWindowGrows) {
  drag({-20, 13});
  const Point position = printed().position;
  window.resize(window.size() * 1.4);
  EXPECT_EQ(printed().position, position);
  EXPECT_NEAR(image().x(), position.x * page().width() / 16840, 1);
}

TEST_F(DraggedPicture, KeepsItsPlaceForTheNextTimeWhereItFits) {
  drag({-20, 13});
  const Point position = printed().position;
  window.close();
  open();
  EXPECT_EQ(printed().position, position);
  DrawnWindow larger({1000, 700});
  open(larger);
  EXPECT_EQ(printed().position, (Point{(16840 - 15000) / 2.0, (11900 - 10500) / 2.0}));
}

TEST_F(DraggedPicture, ALargerPictureIsCutAtThePageAndStays) {
  DrawnWindow larger({1920, 500});
  open(larger);
  EXPECT_LT(image().x(), 0);
  EXPECT_GT(image().geometry().right(), page().width());
  const QRect before = image().geometry();
  drag({0, 10});
  QTest::keyClick(&image(), Qt::Key_Down);
  EXPECT_EQ(image().geometry(), before);
  EXPECT_EQ(page().grab().toImage().pixelColor(1, page().height() / 2 - 5), QColor(Qt::red));
}

TEST_F(DraggedPicture, IsMetByTheMouseThroughItsOutline) {
  press();
  EXPECT_EQ(page().childAt(start.center()), &image());
}

}  // namespace
}  // namespace zel::test
