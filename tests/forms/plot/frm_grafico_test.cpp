#include "forms/plot/frm_grafico.h"

#include <QStatusBar>
#include <QToolBar>

#include "base/message_table.h"
#include "frm_grafico_fixture.h"

namespace zel::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Grafico : public GraficoTest {};

constexpr const char* kRange[] = {" Xmin=-10  ", " XMAX=10  ", " Ymin=-10  ", " YMAX=10  "};

TEST_F(Grafico, HasItsControls) {
  EXPECT_EQ(window.objectName(), "frmGrafico");
  EXPECT_NE(picture, nullptr);
  EXPECT_NE(window.findChild<QStatusBar*>("StatusBar1"), nullptr);
  ASSERT_NE(window.findChild<QToolBar*>("Toolbar1"), nullptr);
  open(view);
  EXPECT_TRUE(window.findChild<QToolBar*>("Toolbar1")->isVisible());
  EXPECT_TRUE(picture->hasFocus());
}

TEST_F(Grafico, SpeaksTheCurrentLanguageWhenItIsShown) {
  EXPECT_EQ(window.windowTitle(), "ZEL - Gráficos");
  SetCurrentLanguage("EN");
  EXPECT_EQ(window.windowTitle(), "ZEL - Gráficos");
  open(view);
  EXPECT_EQ(window.windowTitle(), "ZEL - Graphics");
  SetCurrentLanguage("FR");
  open(view);
  EXPECT_EQ(window.windowTitle(), "ZEL - Graphics");
}

TEST_F(Grafico, DrawsTheViewOnceAndShowsItsRange) {
  addFunction('a', "x");
  addFunction('c', "x^2");
  open(view);
  EXPECT_EQ(begun, "ac");
  EXPECT_THAT(panels(), ::testing::ElementsAreArray(kRange));
  EXPECT_GT(pixelsThatAreNotWhite(picture->image()), 1000);
}

TEST_F(Grafico, ShowsThePanelsBehindTheFirstOnlyWithText) {
  window.show();
  EXPECT_THAT(panels(), ElementsAre(""));
  open(view);
  EXPECT_EQ(panels().size(), 4u);
}

TEST_F(Grafico, DrawsTheMarksOfTheProgram) {
  open(view);
  const int with_marks = pixelsThatAreNotWhite(picture->image());
  program.marks = {1, 1, false, false};
  open(view);
  EXPECT_LT(pixelsThatAreNotWhite(picture->image()), with_marks);
}

TEST_F(Grafico, RefusedRangesShowTheirMessageAndReturnWithTheView) {
  struct Row {
    double xi, xf, yi, yf;
    std::string message;
  };
  const Row rows[] = {
      {-5e299, 5e299, -5e299, 5e299, "Error: Los valores del rango son demasiado elevados."},
      {-1, 1, 2, 2, "Error: No se puede graficar con la ecuación y rango elegidos."},
  };
  addFunction('a', "x");
  for (const Row& row : rows) {
    for (const std::string code : {"ES", "EN"}) {
      SetCurrentLanguage(code);
      services.boxes.shown.clear();
      caller.shown = 0;
      open({row.xi, row.yi, row.xf, row.yf, 10, false});
      const FakeMessageBoxes::Box box = {Localize(row.message), Localize("ZEL - ATENCIÓN"),
                                         BoxStyle::stop};
      EXPECT_THAT(services.boxes.shown, ElementsAre(box));
      EXPECT_EQ(caller.shown, 1);
      EXPECT_FALSE(window.isVisible());
      EXPECT_THAT(caller.received.keys(),
                  ElementsAre("xi", "xf", "yi", "yf", "definicion", "llamador"));
      EXPECT_EQ(viewIn(caller.received), (ViewSettings{row.xi, row.yi, row.xf, row.yf, 10, false}));
      EXPECT_EQ(callerOf(caller.received), &window);
    }
  }
  EXPECT_EQ(begun, "");
}

TEST_F(Grafico, ARangeThatIsTooCloseIsACriticalErrorOfTheActiveGraph) {
  addFunction('c', "x");
  addFunction('e', "x");
  for (const std::string code : {"ES", "EN"}) {
    SetCurrentLanguage(code);
    services.boxes.shown.clear();
    open({3, -1, 3, 1, 10, false});
    const FakeMessageBoxes::Box spanish = {
        "Operación cancelada.\r\nCausa: " + std::string(messages::kRangeTooClose) +
            "\r\nDetalle: gráfico activo c",
        "ZEL - Reporte de errores criticos", BoxStyle::stop};
    const FakeMessageBoxes::Box english = {
        "Cancelled operation.\r\nReason: Cannot graph because interval range is too small.\r\n"
        "Detail: active graphic c",
        "ZEL - Critical error report", BoxStyle::stop};
    EXPECT_THAT(services.boxes.shown, ElementsAre(code == "ES" ? spanish : english));
    EXPECT_FALSE(window.isVisible());
  }
  EXPECT_EQ(caller.shown, 2);
}

TEST_F(Grafico, HandsTheProportionalViewBackWhenItIsRefused) {
  view.mantener_prop = true;
  view.xf = view.xi;
  open(view);
  EXPECT_EQ(viewIn(caller.received).yi, 0);
  EXPECT_EQ(viewIn(caller.received).yf, 0);
}

TEST_F(Grafico, AMessageIsShownOnceHoweverTheWindowIsResizedMeanwhile) {
  view.xf = view.xi;
  services.boxes.on_show = [this](const FakeMessageBoxes::Box&) {
    window.resize(500, 400);
    settle();
    window.resize(600, 500);
    settle();
    press(Qt::Key_Escape);
  };
  open(view);
  settle();
  EXPECT_EQ(services.boxes.shown.size(), 1u);
  EXPECT_EQ(caller.shown, 1);
}

TEST_F(Grafico, AWindowThatIsClosedUnderItsMessageReturnsOnce) {
  view.xf = view.xi;
  services.boxes.on_show = [this](const FakeMessageBoxes::Box&) { window.close(); };
  open(view);
  EXPECT_EQ(caller.shown, 1);
}

TEST_F(Grafico, ClosingGivesTheViewBackAsItWasGivenAndShowsTheCaller) {
  view.mantener_prop = true;
  open(view);
  EXPECT_NE(window.session().view().yf, 10);
  window.close();
  EXPECT_FALSE(window.isVisible());
  EXPECT_EQ(caller.shown, 1);
  EXPECT_EQ(viewIn(caller.received), (ViewSettings{-10, -10, 10, 10, 10, false}));
  EXPECT_EQ(callerOf(caller.received), &window);
  window.close();
  EXPECT_EQ(caller.shown, 1);
  EXPECT_THAT(services.boxes.shown, IsEmpty());
}

TEST_F(Grafico, ClosedBeforeItHasDrawnItDrawsNothing) {
  addFunction('a', "x");
  handViewOver(program.params, view, &caller);
  window.showForm();
  window.close();
  settle();
  EXPECT_EQ(begun, "");
  EXPECT_EQ(caller.shown, 1);
}

TEST_F(Grafico, CanBeShownAgainWithAnotherView) {
  addFunction('a', "x");
  open(view);
  window.close();
  view.xi = 0;
  open(view);
  EXPECT_EQ(begun, "aa");
  EXPECT_EQ(panels().front(), " Xmin=0  ");
}

TEST_F(Grafico, ComesBackFromAWindowThatItOpenedAsItWas) {
  addFunction('a', "x");
  open(view);
  const QImage before = picture->image();
  window.hide();
  handViewOver(program.params, {1, 2, 3, 4, 5, false}, &window);
  window.showForm();
  settle();
  EXPECT_EQ(begun, "a");
  EXPECT_EQ(picture->image(), before);
  EXPECT_EQ(window.session().view(), view);
  window.close();
  EXPECT_EQ(caller.shown, 1);
}

TEST_F(Grafico, LosesNoWindowWhenNobodyOpenedIt) {
  handViewOver(program.params, view, nullptr);
  window.showForm();
  settle();
  window.close();
  EXPECT_FALSE(window.isVisible());
}

}  // namespace
}  // namespace zel::test
