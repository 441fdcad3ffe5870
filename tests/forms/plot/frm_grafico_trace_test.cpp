#include "forms/plot/plot_overlay.h"
#include "frm_grafico_fixture.h"

/// Tracing, searching and calculating in the plot window.
namespace zel::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class GraficoTrace : public GraficoTest {
 protected:
  PlotMode mode() const { return window.session().mode(); }

  /// Whether the cursor is seen at a place of the plane: black on it, and on nothing but the
  /// picture on the screen.
  bool isCursorAt(double x, double y) {
    const QPoint centre = at(x, y).toPoint();
    const QPoint beside = centre + QPoint(PlotOverlay::kCursorLength / 2, 0);
    const QImage seen = picture->grab().toImage();
    const bool is_seen = seen.pixelColor(centre) == QColor(Qt::black) &&
                         seen.pixelColor(beside) == QColor(Qt::black);
    return is_seen && picture->image().pixelColor(centre + QPoint(3, 1)) != QColor(Qt::black);
  }

  /// The pixels that the overlay adds to the picture.
  int pixelsOver() {
    const QImage seen = picture->grab().toImage().convertToFormat(QImage::Format_RGB32);
    const QImage image = picture->image();
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x)
        if (seen.pixel(x, y) != image.pixel(x, y)) ++count;
    return count;
  }
};

TEST_F(GraficoTrace, WalksAlongTheActiveGraph) {
  addFunction('a', "x/2+3");
  openUsual();
  click("Recorrer");
  EXPECT_EQ(mode(), PlotMode::recorrido);
  EXPECT_THAT(panels(), ElementsAre("X=-9,5", "Y=-1,75"));
  EXPECT_TRUE(isCursorAt(-9.5, -1.75));
  click("Recorrer_Adelante");
  click("Recorrer_Adelante");
  EXPECT_THAT(panels(), ElementsAre("X=-8,5", "Y=-1,25"));
  click("Recorrer_Atras");
  EXPECT_THAT(panels(), ElementsAre("X=-9", "Y=-1,5"));
  EXPECT_TRUE(isCursorAt(-9, -1.5));
  click("Parar");
  EXPECT_EQ(mode(), PlotMode::normal);
  EXPECT_EQ(panels().front(), " Xmin=-10  ");
  EXPECT_EQ(pixelsOver(), 0);
}

TEST_F(GraficoTrace, ShiftAndAnArrowKeyWalkAsTheStepButtonsDo) {
  addFunction('a', "x");
  openUsual();
  QTest::keyClick(picture, Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_EQ(mode(), PlotMode::recorrido);
  EXPECT_THAT(panels(), ElementsAre("X=0,5", "Y=0,5"));
  QKeyEvent held(QEvent::KeyPress, Qt::Key_Right, Qt::ShiftModifier, QString(), true);
  for (int i = 0; i < 3; ++i) QApplication::sendEvent(picture, &held);
  EXPECT_THAT(panels(), ElementsAre("X=2", "Y=2"));
  QTest::keyClick(picture, Qt::Key_Left, Qt::ShiftModifier);
  EXPECT_THAT(panels(), ElementsAre("X=1,5", "Y=1,5"));
  expectView(-10, 10, -10, 10);
  window.setFocus();
  QTest::keyClick(&window, Qt::Key_Left, Qt::ShiftModifier);
  EXPECT_THAT(panels(), ElementsAre("X=1", "Y=1"));
}

TEST_F(GraficoTrace, BeginsAt0WhereNothingWasTracedYet) {
  addFunction('a', "x");
  openUsual();
  click("Recorrer_Adelante");
  EXPECT_THAT(panels(), ElementsAre("X=0,5", "Y=0,5"));
}

TEST_F(GraficoTrace, EndsBehindTheRange) {
  addFunction('a', "x");
  openUsual();
  mouseClick(at(9, 9));
  EXPECT_THAT(panels(), ElementsAre("X=9,5", "Y=9,5"));
  click("Recorrer_Adelante");
  EXPECT_EQ(mode(), PlotMode::recorrido);
  click("Recorrer_Adelante");
  EXPECT_EQ(mode(), PlotMode::normal);
  EXPECT_EQ(pixelsOver(), 0);
  EXPECT_EQ(panels().front(), " Xmin=-10  ");
}

TEST_F(GraficoTrace, AClickPicksTheNearestGraph) {
  addFunction('a', "8");
  addFunction('c', "-x");
  addFunction('k', "x");
  openUsual();
  mouseClick(at(5, 7));
  EXPECT_EQ(window.session().activeGraph(), 'a');
  mouseClick(at(5, -4.5));
  EXPECT_EQ(window.session().activeGraph(), 'c');
  EXPECT_THAT(panels(), ElementsAre("X=5,5", "Y=-5,5"));
  EXPECT_EQ(fromQt(control<QLabel>("LblGrafico").text()), "c(x)=-x");
  mouseClick(at(-5, -4.5));
  EXPECT_EQ(window.session().activeGraph(), 'k');
  EXPECT_TRUE(isCursorAt(-4.5, -4.5));
}

TEST_F(GraficoTrace, AClickPicksAMemberOfAFamily) {
  addFamily('f');
  openUsual();
  mouseClick(at(-4, -1.5));
  EXPECT_THAT(panels(), ElementsAre("X=-3,5", "Y=-1,5", "P=2"));
  mouseClick(at(-4, -6.5));
  EXPECT_THAT(panels(), ElementsAre("X=-3,5", "Y=-5,5", "P=-2"));
}

TEST_F(GraficoTrace, AClickWhereNoGraphIsEndsTheMode) {
  openUsual();
  mouseClick(at(1, 1));
  EXPECT_EQ(mode(), PlotMode::normal);
  addFunction('a', "ln(x)");
  openUsual();
  click("Recorrer");
  mouseClick(at(-5, 1));
  EXPECT_EQ(mode(), PlotMode::normal);
  EXPECT_EQ(panels().front(), " Xmin=-10  ");
}

TEST_F(GraficoTrace, ShowsTheSlopeBesideTheCursorAndNeverInThePicture) {
  addFunction('a', "x/2");
  openUsual();
  const QImage image = picture->image();
  click("Recorrer_Adelante");
  click("Recorrer_Adelante");
  EXPECT_EQ(window.session().cursor()->slope, Slope::creciente_der);
  EXPECT_EQ(picture->image(), image);
  const auto& overlay = control<QWidget>("picGrafico_Overlay");
  const QRect place = static_cast<const PlotOverlay&>(overlay).slopePlace(at(1, 0.5).toPoint(),
                                                                          Slope::creciente_der);
  int blue = 0;
  const QImage seen = picture->grab().toImage();
  for (int y = place.top(); y <= place.bottom(); ++y)
    for (int x = place.left(); x <= place.right(); ++x)
      if (seen.pixelColor(x, y) == QColor("#0b5cad")) ++blue;
  EXPECT_GT(blue, 20);
}

TEST_F(GraficoTrace, PansWithTheCursorOnItsPoint) {
  addFunction('a', "x/2");
  openUsual();
  click("Recorrer_Adelante");
  click("Recorrer_Adelante");
  const double x = window.session().tracePosition();
  press(Qt::Key_Right);
  EXPECT_EQ(mode(), PlotMode::recorrido);
  EXPECT_EQ(window.session().tracePosition(), x);
  EXPECT_THAT(panels(), ElementsAre("X=1", "Y=0,5"));
  const double moved = at(1, 0.5).x() * kTwipsPerPixel - 20.0 / 6 * 300;
  EXPECT_NEAR(window.session().cursor()->place.x, moved, 1);
  press(Qt::Key_Right);
  press(Qt::Key_Right);
  press(Qt::Key_Right);  // and now the point is out of the view
  EXPECT_EQ(mode(), PlotMode::normal);
}

TEST_F(GraficoTrace, FindsAMinimumHalfAStepAheadOfTheCursor) {
  addFunction('a', "x^2");
  openUsual();
  mouseClick(at(-3, 9));
  click("Buscar_Max_Min");
  EXPECT_THAT(panels(), ElementsAre("Posible Min", "X=0,25", "Y=0,0625"));
  EXPECT_EQ(window.session().tracePosition(), 0.25);
  EXPECT_TRUE(isCursorAt(0, 0));
  SetCurrentLanguage("EN");
  click("Buscar_Max_Min");
  EXPECT_EQ(panels().front(), "Possible Min");
}

TEST_F(GraficoTrace, TellsThatAStraightLineHasNone) {
  addFunction('a', "x");
  openUsual();
  for (const std::string code : {"ES", "EN"}) {
    SetCurrentLanguage(code);
    click("Buscar_Max_Min");
    EXPECT_EQ(mode(), PlotMode::recorrido);
    EXPECT_THAT(panels(), ElementsAre(code == "ES" ? "No se encuentran MÁXIMOS ni Mínimos."
                                                   : "Cannot find maximun nor minimun values."));
  }
}

TEST_F(GraficoTrace, CalculatesValuesUntilTheUserHasEnough) {
  addFunction('a', "1/x");
  openUsual();
  for (const std::string code : {"ES", "EN"}) {
    SetCurrentLanguage(code);
    services.boxes.shown.clear();
    services.inputs.asked.clear();
    services.inputs.answers = {"4", "nada", "0", ""};
    click("Calcular_Y");
    const std::string prompt =
        code == "ES" ? "Gráfico: a(x)=1/x\r\nIngrese un valor de X para evaluar la función.\r\n"
                       "Para salir presione 'Cancelar'."
                     : "Graphic: a(x)=1/x\r\nPlease enter a value for 'X' in order to evaluate "
                       "function.\r\nPress 'cancel' to return.";
    const std::string title =
        code == "ES" ? "Cálculo de un valor específico" : "Evaluate specific values.";
    EXPECT_EQ(services.inputs.asked.size(), 4u);
    for (const auto& asked : services.inputs.asked) {
      EXPECT_EQ(asked.first, prompt);
      EXPECT_EQ(asked.second, title);
    }
    ASSERT_EQ(services.boxes.shown.size(), 2u);
    EXPECT_EQ(services.boxes.shown[0].text, "X=4\r\nY=0,25");
    EXPECT_EQ(services.boxes.shown[0].title, code == "ES" ? "Información" : "Information");
    EXPECT_EQ(services.boxes.shown[0].style, BoxStyle::cancel_try_again_continue);
    EXPECT_TRUE(services.boxes.shown[1].text.starts_with(
        code == "ES" ? "X=0\r\nY= DESCONOCIDO\r\nCausa: " : "X=0\r\nY= UNKNOWN\r\nReason: "))
        << services.boxes.shown[1].text;
  }
}

TEST_F(GraficoTrace, CalculatesNothingOfAParametricGraph) {
  addParametric('a');
  openUsual();
  button("Calcular_Y").defaultAction()->trigger();
  emit button("Calcular_Y").defaultAction()->triggered();
  EXPECT_THAT(services.inputs.asked, IsEmpty());
}

TEST_F(GraficoTrace, EndsAskingWhenTheWindowIsClosedMeanwhile) {
  addFunction('a', "x");
  openUsual();
  services.inputs.answers = {"1", "2", "3"};
  services.inputs.on_ask = [this] { window.close(); };
  click("Calcular_Y");
  EXPECT_EQ(services.inputs.asked.size(), 1u);
  EXPECT_EQ(caller.shown, 1);
}

TEST_F(GraficoTrace, ACapitalCShowsTheCodeOfTheActiveGraph) {
  addFunction('a', "raiz2(x^2+1)");
  openUsual();
  QTest::keyClick(picture, 'c');
  EXPECT_THAT(services.boxes.shown, IsEmpty());
  QTest::keyClicks(picture, "C");
  const FakeMessageBoxes::Box box = {"7@(x^2+1)", "Información",
                                     BoxStyle::cancel_try_again_continue};
  EXPECT_THAT(services.boxes.shown, ElementsAre(box));
}

TEST_F(GraficoTrace, ATraceIsIgnoredWhileAFamilyIsDrawn) {
  addEndlessFamily('a');
  inside('a', 1, [&] {
    click("Recorrer_Adelante");
    EXPECT_EQ(window.session().cursor(), std::nullopt);
    press(Qt::Key_Escape);
  });
  open(view);
  EXPECT_EQ(window.session().cursor(), std::nullopt);
}

TEST_F(GraficoTrace, AClickFindsItsWayThroughAFamilyWithoutEnd) {
  addEndlessFamily('a');
  inside('a', 1, [&] { press(Qt::Key_Escape); });
  inside('a', 2, [&] { press(Qt::Key_Escape); });
  openUsual();
  mouseClick(at(1, 2));
  EXPECT_EQ(mode(), PlotMode::recorrido);
  EXPECT_THAT(panels(), ElementsAre("X=1,5", "Y=1,5", "P=0"));
}

TEST_F(GraficoTrace, AResizeEndsIt) {
  addFunction('a', "x");
  openUsual();
  click("Recorrer");
  resizeFor({410, 400});
  EXPECT_EQ(mode(), PlotMode::normal);
  EXPECT_EQ(pixelsOver(), 0);
}

}  // namespace
}  // namespace zel::test
