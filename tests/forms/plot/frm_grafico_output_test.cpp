#include <QAction>
#include <QWindow>

#include "forms/print/frm_imprimir.h"
#include "frm_grafico_fixture.h"
#include "pictures/svg_picture.h"
#include "platform/qt/bitmap_image.h"

/// How the picture leaves the plot window: to the clipboard and to the print window.
namespace zel::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class GraficoOutput : public GraficoTest {
 protected:
  GraficoOutput() {
    addFunction('a', "x^2/4");
    window.setPrintWindow(&print);
  }

  CallerForm print{program};
};

TEST_F(GraficoOutput, CopiesThePictureWithoutWhatLiesOverIt) {
  openUsual();
  const QImage before = picture->image();
  click("Recorrer_Adelante");
  ASSERT_TRUE(window.session().cursor());
  click("Copiar_Grafico");
  EXPECT_THAT(services.clipboard.calls, ElementsAre("clear", "picture"));
  ASSERT_TRUE(services.clipboard.bitmap);
  EXPECT_EQ(toImage(*services.clipboard.bitmap).convertToFormat(QImage::Format_RGB32), before);
}

TEST_F(GraficoOutput, CopiesTheSamePictureAsSvg) {
  openUsual();
  click("Copiar_Grafico");
  SvgPicture expected(400, 400);
  picture->drawing().replay(expected);
  EXPECT_EQ(services.clipboard.svg, expected.text());
  EXPECT_THAT(services.clipboard.svg, ::testing::HasSubstr("<g id=\"graph-a\""));
}

TEST_F(GraficoOutput, CopiesTheNumbersOnlyWhereTheyAreAskedFor) {
  openUsual();
  const QImage before = picture->image();
  press(Qt::Key_N);
  ASSERT_TRUE(window.session().showsNumbers());
  click("Copiar_Grafico");
  EXPECT_EQ(toImage(*services.clipboard.bitmap).convertToFormat(QImage::Format_RGB32), before);
  EXPECT_THAT(services.clipboard.svg, ::testing::Not(::testing::HasSubstr("<text")));
  press(Qt::Key_N);
  control<QAction>("Copiar_Con_Numeros").trigger();
  EXPECT_NE(toImage(*services.clipboard.bitmap).convertToFormat(QImage::Format_RGB32), before);
  EXPECT_THAT(services.clipboard.svg, ::testing::HasSubstr(">7</text>"));
  EXPECT_EQ(picture->image(), before);
  EXPECT_FALSE(window.session().showsNumbers());
  EXPECT_EQ(services.boxes.shown.size(), 2u);
}

TEST_F(GraficoOutput, CtrlShiftCCopiesWithNumbers) {
  openUsual();
  QTest::keyClick(picture, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_THAT(services.clipboard.svg, ::testing::HasSubstr("<text"));
  EXPECT_EQ(services.boxes.shown.size(), 1u);
}

TEST_F(GraficoOutput, TellsThatItHasCopiedInTheLanguageOfTheUser) {
  openUsual();
  services.boxes.on_show = [this](const FakeMessageBoxes::Box&) {
    EXPECT_TRUE(services.clipboard.bitmap);
  };
  click("Copiar_Grafico");
  SetCurrentLanguage("EN");
  QTest::keyClick(picture, Qt::Key_C, Qt::ControlModifier);
  const FakeMessageBoxes::Box spanish = {
      "Se ha copiado el gráfico de funciones al Portapapeles de Windows.", "Información",
      BoxStyle::cancel_try_again_continue};
  const FakeMessageBoxes::Box english = {"Graphic was copied to clipboard.", "Information",
                                         BoxStyle::cancel_try_again_continue};
  EXPECT_THAT(services.boxes.shown, ElementsAre(spanish, english));
}

TEST_F(GraficoOutput, HandsTheViewAndItselfToThePrintWindow) {
  openUsual();
  press(Qt::Key_Right);
  click("Imprimir");
  EXPECT_EQ(print.shown, 1);
  EXPECT_THAT(print.received.keys(),
              ElementsAre("xi", "xf", "yi", "yf", "definicion", "imprimir", "llamador"));
  EXPECT_EQ(viewIn(print.received), window.session().view());
  EXPECT_EQ(print.received.Item("imprimir"), FormValue(static_cast<FormWindow*>(&window)));
  EXPECT_EQ(callerOf(print.received), &window);
  EXPECT_TRUE(window.isVisible());
  QTest::keyClick(picture, Qt::Key_P, Qt::ControlModifier);
  EXPECT_EQ(print.shown, 2);
}

TEST_F(GraficoOutput, ThePrintWindowFindsThePictureInIt) {
  openUsual();
  click("Imprimir");
  const FormValue value = print.received.Item("imprimir");
  auto* const printed = dynamic_cast<PrintedWindow*>(std::get<FormWindow*>(value));
  ASSERT_NE(printed, nullptr);
  EXPECT_EQ(&printed->picture(), picture);
}

TEST_F(GraficoOutput, IsAsItWasAfterThePrintWindow) {
  openUsual();
  press(Qt::Key_Right);
  click("Recorrer_Adelante");
  const auto cursor = window.session().cursor();
  const ViewSettings shown = window.session().view();
  const auto texts = panels();
  begun.clear();
  click("Imprimir");
  callerOf(program.params)->showForm();
  settle();
  EXPECT_EQ(begun, "");
  EXPECT_EQ(window.session().view(), shown);
  EXPECT_EQ(window.session().cursor(), cursor);
  EXPECT_EQ(panels(), texts);
  EXPECT_TRUE(picture->hasFocus());
  window.close();
  EXPECT_EQ(caller.shown, 1);
  EXPECT_EQ(print.shown, 1);
}

TEST_F(GraficoOutput, StaysAwayWhenItsViewWasHandedBackBehindThePrintWindow) {
  openUsual();
  click("Imprimir");
  FormParams arguments = program.params;
  click("Configurar");
  ASSERT_FALSE(window.isVisible());
  program.params = arguments;
  callerOf(program.params)->showForm();
  EXPECT_FALSE(window.isVisible());
}

TEST_F(GraficoOutput, ThePrintWindowLiesOverItUntilItIsClosed) {
  frmImprimir real(program);
  window.setPrintWindow(&real);
  openUsual();
  click("Imprimir");
  EXPECT_TRUE(real.isVisible());
  EXPECT_TRUE(window.isVisible());
  EXPECT_EQ(QApplication::activeModalWidget(), &real);
  EXPECT_EQ(real.windowHandle()->transientParent(), window.windowHandle());
  real.close();
  settle();
  EXPECT_FALSE(real.isVisible());
  EXPECT_TRUE(window.isVisible());
  press(Qt::Key_Right);
  expectView(-10 + 20.0 / 6, 10 + 20.0 / 6, -10, 10);
}

TEST_F(GraficoOutput, PrintsNothingWithoutAPrintWindow) {
  window.setPrintWindow(nullptr);
  openUsual();
  const auto before = program.params.keys();
  click("Imprimir");
  EXPECT_EQ(program.params.keys(), before);
}

}  // namespace
}  // namespace zel::test
