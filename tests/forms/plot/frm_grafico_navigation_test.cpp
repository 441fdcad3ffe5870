#include "frm_grafico_fixture.h"

/// How the plot window moves over the plane: buttons, keys, wheel and the zoom rectangle.
namespace zel::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr double kSixth = 20.0 / 6;

class GraficoNavigation : public GraficoTest {
 protected:
  GraficoNavigation() { addFunction('a', "x"); }

  PlotMode mode() const { return window.session().mode(); }

  /// Drags from one place to another, in twips of the picture.
  void drag(Point from, Point to, Qt::MouseButton button = Qt::LeftButton) {
    mouseDown(pixels(from), button);
    mouseMove(pixels(to), button);
    mouseUp(pixels(to), button);
  }
  static QPointF pixels(Point twips) {
    return {twips.x / kTwipsPerPixel, twips.y / kTwipsPerPixel};
  }
};

TEST_F(GraficoNavigation, PansBySixthsWithButtonsAndArrowKeys) {
  struct Row {
    const char* button;
    Qt::Key key;
    double dx, dy;
  };
  const Row rows[] = {
      {"Arriba", Qt::Key_Up, 0, kSixth},
      {"Abajo", Qt::Key_Down, 0, -kSixth},
      {"Izquierda", Qt::Key_Left, -kSixth, 0},
      {"Derecha", Qt::Key_Right, kSixth, 0},
  };
  for (const Row& row : rows) {
    openUsual();
    click(row.button);
    expectView(-10 + row.dx, 10 + row.dx, -10 + row.dy, 10 + row.dy);
    EXPECT_EQ(begun, "a");
    openUsual();
    press(row.key);
    expectView(-10 + row.dx, 10 + row.dx, -10 + row.dy, 10 + row.dy);
    EXPECT_EQ(mode(), PlotMode::normal);
  }
}

TEST_F(GraficoNavigation, ZoomsAboutTheMiddleWithButtonsAndKeys) {
  struct Row {
    const char* button;
    char key;
    double end;
  };
  const Row rows[] = {{"Acercar", '+', 10 - kSixth}, {"Alejar", '-', 10 + kSixth}};
  for (const Row& row : rows) {
    openUsual();
    click("Recorrer");
    click(row.button);
    expectView(-row.end, row.end, -row.end, row.end);
    EXPECT_EQ(mode(), PlotMode::normal);
    EXPECT_EQ(window.session().cursor(), std::nullopt);
    openUsual();
    QTest::keyClick(picture, row.key);
    expectView(-row.end, row.end, -row.end, row.end);
  }
  openUsual();
  click("Acercar");
  click("Alejar");
  EXPECT_NEAR(window.session().view().xf * 2, 20 * 8.0 / 9, 1e-9);
}

TEST_F(GraficoNavigation, KeysWorkWhereverTheFocusIsInTheWindow) {
  openUsual();
  QToolButton& parar = button("Parar");
  parar.setFocus();
  QTest::keyClick(&parar, '+');
  expectView(-10 + kSixth, 10 - kSixth, -10 + kSixth, 10 - kSixth);
  QTest::keyClick(&parar, Qt::Key_C, Qt::ControlModifier);
  EXPECT_THAT(services.clipboard.calls, ElementsAre("clear", "picture"));
  openUsual();
  window.setFocus();
  QTest::keyClick(&window, Qt::Key_Up);
  expectView(-10, 10, -10 + kSixth, 10 + kSixth);
}

TEST_F(GraficoNavigation, PageKeysChangeTheActiveGraph) {
  addFunction('f', "1");
  addFunction('h', "2");
  openUsual();
  press(Qt::Key_PageDown);
  EXPECT_EQ(window.session().activeGraph(), 'f');
  press(Qt::Key_PageUp);
  press(Qt::Key_PageUp);
  EXPECT_EQ(window.session().activeGraph(), 'h');
  EXPECT_EQ(begun, "");
}

TEST_F(GraficoNavigation, F1OffersTheHelpFileOfTheApplicationInSpanishOnly) {
  openUsual();
  program.help_file = "ayuda_otra.hlp";
  press(Qt::Key_F1);
  EXPECT_THAT(services.help.shown, ElementsAre(std::pair<std::string, int>("ayuda_otra.hlp", 15)));
  SetCurrentLanguage("EN");
  press(Qt::Key_F1);
  EXPECT_EQ(services.help.shown.size(), 1u);
}

TEST_F(GraficoNavigation, KeysWithCtrlOrAltDoNotPan) {
  openUsual();
  for (const auto modifier : {Qt::ControlModifier, Qt::AltModifier})
    QTest::keyClick(picture, Qt::Key_Right, modifier);
  expectView(-10, 10, -10, 10);
}

TEST_F(GraficoNavigation, ANotchOfTheWheelZoomsAboutThePlaceUnderThePointer) {
  openUsual();
  turnWheel(at(5, -5), {0, 120});
  expectView(-5, 5 + 5 * 2.0 / 3, -5 - 5 * 2.0 / 3, 5);
  openUsual();
  turnWheel(at(5, -5), {0, -120});
  expectView(5 - 15 * 4.0 / 3, 5 + 5 * 4.0 / 3, -5 - 5 * 4.0 / 3, -5 + 15 * 4.0 / 3);
  EXPECT_EQ(mode(), PlotMode::normal);
}

TEST_F(GraficoNavigation, TheCoordinatesBesideThePointerFollowTheView) {
  openUsual();
  control<QAbstractButton>("CmdNumeros").click();
  const auto expectThoseOfThePointer = [this] {
    const QImage shown = picture->grab().toImage();
    mouseMove(at(5, -5));
    EXPECT_TRUE(shown == picture->grab().toImage());
  };
  mouseMove(at(5, -5));
  turnWheel(at(5, -5), {0, 120});
  expectThoseOfThePointer();
  press(Qt::Key_Right);
  expectThoseOfThePointer();
}

TEST_F(GraficoNavigation, ATouchpadZoomsOnceItsSmallTurnsMakeANotch) {
  openUsual();
  for (int i = 0; i < 7; ++i) turnWheel(at(0, 0), {0, 15});
  expectView(-10, 10, -10, 10);
  turnWheel(at(0, 0), {0, 15});
  expectView(-10 + kSixth, 10 - kSixth, -10 + kSixth, 10 - kSixth);
  turnWheel(at(0, 0), {240, 0});
  expectView(-10 + kSixth, 10 - kSixth, -10 + kSixth, 10 - kSixth);
}

TEST_F(GraficoNavigation, HasTheArrowAndOverACustomZoomTheCrossHair) {
  openUsual();
  EXPECT_EQ(picture->cursor().shape(), Qt::ArrowCursor);
  click("Zoom_a_Medida");
  EXPECT_EQ(picture->cursor().shape(), Qt::CrossCursor);
  click("Recorrer");
  EXPECT_EQ(picture->cursor().shape(), Qt::ArrowCursor);
  click("Zoom_a_Medida");
  click("Parar");
  EXPECT_EQ(picture->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(GraficoNavigation, TheRightButtonTogglesTheCustomZoomHoweverFastItIsClicked) {
  openUsual();
  mouseClick(at(0, 0), Qt::RightButton);
  EXPECT_EQ(mode(), PlotMode::zoom);
  mouse(QEvent::MouseButtonDblClick, at(0, 0), Qt::RightButton, Qt::RightButton);
  EXPECT_EQ(mode(), PlotMode::normal);
}

TEST_F(GraficoNavigation, TheMouseReachesThePictureThroughWhatLiesOverIt) {
  openUsual();
  click("Recorrer");
  QTest::mouseClick(window.windowHandle(), Qt::RightButton, {},
                    picture->mapTo(&window, QPoint(20, 20)));
  EXPECT_EQ(mode(), PlotMode::zoom);
}

TEST_F(GraficoNavigation, ACustomZoomShowsThePlaneUnderThePointer) {
  openUsual();
  mouseMove(at(1, 1));
  EXPECT_EQ(panels().front(), " Xmin=-10  ");
  click("Zoom_a_Medida");
  mouseMove(at(2.5, -4));
  EXPECT_THAT(panels(), ElementsAre("X=2,5", "Y=-4"));
  mouseDown(at(0, 0));
  mouseMove(at(3, 1), Qt::LeftButton);
  EXPECT_THAT(panels(), ElementsAre("X=3", "Y=1"));
  mouseUp(at(3, 1));
}

TEST_F(GraficoNavigation, ADraggedRectangleBecomesTheViewAndTheModeStays) {
  openUsual();
  click("Zoom_a_Medida");
  drag({1500, 1500}, {4500, 3000});
  expectView(-5, 5, 0, 5);
  EXPECT_EQ(begun, "a");
  EXPECT_EQ(mode(), PlotMode::zoom);
  EXPECT_EQ(window.session().zoomRectangle(), std::nullopt);
  drag({0, 0}, {3000, 3000});
  expectView(-5, 0, 2.5, 5);
}

TEST_F(GraficoNavigation, ARectangleOf50TwipsIsIgnored) {
  openUsual();
  click("Zoom_a_Medida");
  drag({0, 0}, {50, 3000});
  expectView(-10, 10, -10, 10);
  drag({0, 0}, {3000, 50});
  expectView(-10, 10, -10, 10);
  drag({0, 0}, {51, 51});
  expectView(-10, -10 + 51 / 300.0, 10 - 51 / 300.0, 10);
}

TEST_F(GraficoNavigation, ADragToTheUpperLeftGrowsToTheLowerRight) {
  openUsual();
  click("Zoom_a_Medida");
  mouseDown(pixels({1000, 1000}));
  mouseMove(pixels({400, 1600}), Qt::LeftButton);
  const auto rectangle = window.session().zoomRectangle();
  ASSERT_TRUE(rectangle);
  EXPECT_NEAR(rectangle->left, 1000, 1e-6);
  EXPECT_NEAR(rectangle->top, 1000, 1e-6);
  EXPECT_NEAR(rectangle->width, 600, 1e-6);
  EXPECT_NEAR(rectangle->height, 600, 1e-6);
  mouseUp(pixels({400, 1600}));
}

TEST_F(GraficoNavigation, ShowsTheRectangleOverThePictureWhileItIsDragged) {
  openUsual();
  click("Zoom_a_Medida");
  const QImage before = picture->grab().toImage();
  const QImage image = picture->image();
  mouseDown(QPointF(100, 100));
  mouseMove(QPointF(180, 160), Qt::LeftButton);
  const QImage seen = picture->grab().toImage();
  EXPECT_EQ(seen.pixelColor(101, 100), QColor(Qt::black));
  EXPECT_EQ(seen.pixelColor(181, 130), before.pixelColor(181, 130));
  EXPECT_EQ(picture->image(), image);
  mouseUp(QPointF(180, 160), Qt::RightButton);
  EXPECT_EQ(picture->grab().toImage(), before);
  expectView(-10, 10, -10, 10);
}

TEST_F(GraficoNavigation, OtherButtonsDrawNoRectangleAndPickNothing) {
  openUsual();
  mouseClick(at(0, 0), Qt::MiddleButton);
  EXPECT_EQ(mode(), PlotMode::normal);
  click("Zoom_a_Medida");
  drag({0, 0}, {3000, 3000}, Qt::MiddleButton);
  expectView(-10, 10, -10, 10);
}

TEST_F(GraficoNavigation, ClicksAreIgnoredWhileAFamilyIsDrawnAndButtonsAreNot) {
  addEndlessFamily('b');
  std::vector<PlotMode> seen;
  inside('b', 1, [&] {
    mouseClick(at(0, 0), Qt::RightButton);
    seen.push_back(mode());
    mouseClick(at(0, 0));
    seen.push_back(mode());
    click("Zoom_a_Medida");
    seen.push_back(mode());
    click("Parar");
    later(60, [&] {
      seen.push_back(mode());
      EXPECT_EQ(panels().front(), " Xmin=-10  ");
      press(Qt::Key_Space);
    });
  });
  open(view);
  EXPECT_THAT(seen,
              ElementsAre(PlotMode::normal, PlotMode::normal, PlotMode::zoom, PlotMode::normal));
}

TEST_F(GraficoNavigation, APanInTheMiddleOfADrawingDrawsThatViewInstead) {
  addEndlessFamily('b');
  inside('b', 1, [&] { press(Qt::Key_Right); });
  inside('b', 2, [&] { press(Qt::Key_Escape); });
  open(view);
  settle();
  EXPECT_EQ(begun, "abab");
  expectView(-10 + kSixth, 10 + kSixth, -10, 10);
  EXPECT_EQ(panels().size(), 4u);
}

TEST_F(GraficoNavigation, AViewBeyondAllNumbersIsRefusedLikeADrawing) {
  program.graphs.clearGraphs();
  view.xi = -8e307;
  view.xf = 8e307;
  openUsual();
  if (services.boxes.shown.empty()) {
    click("Alejar");
    click("Alejar");
    click("Alejar");
  }
  EXPECT_EQ(services.boxes.shown.size(), 1u);
  EXPECT_EQ(caller.shown, 1);
  EXPECT_FALSE(window.isVisible());
}

}  // namespace
}  // namespace zel::test
