#include <QAccessible>

#include "forms/plot/elided_label.h"
#include "forms/shown_tip.h"
#include "frm_grafico_fixture.h"

/// What the plot window tells those who cannot see it.
namespace zel::test {
namespace {

class GraficoAccess : public GraficoTest {
 protected:
  std::string text(QWidget* widget, QAccessible::Text kind) {
    return fromQt(QAccessible::queryAccessibleInterface(widget)->text(kind));
  }
  std::string description() { return text(picture, QAccessible::Description); }
};

TEST_F(GraficoAccess, ThePictureHasANameAndItsRange) {
  view.xf = 2.5;
  open(view);
  EXPECT_EQ(text(picture, QAccessible::Name), "Gráfico de funciones");
  EXPECT_EQ(description(), "x de -10 a 2,5; y de -10 a 10");
  SetCurrentLanguage("EN");
  open(view);
  EXPECT_EQ(text(picture, QAccessible::Name), "Function graphic");
  EXPECT_EQ(description(), "x from -10 to 2,5; y from -10 to 10");
}

TEST_F(GraficoAccess, ThePictureIsAGraphic) {
  open(view);
  EXPECT_EQ(QAccessible::queryAccessibleInterface(picture)->role(), QAccessible::Graphic);
}

TEST_F(GraficoAccess, ThePanelsAreReadWholeWhereTheyHaveNoRoom) {
  addFunction('a', "x/3");
  view.xi = -1.23456789012345e-300;
  openUsual();
  resizeFor({150, 200});
  auto& panel = control<ElidedLabel>("StatusBar1_Panel1");
  ASSERT_TRUE(panel.isElided());
  EXPECT_EQ(text(&panel, QAccessible::Name), " Xmin=-1,23456789012345E-300  ");
  EXPECT_EQ(shownTip(panel.toolTip()), "Xmin=-1,23456789012345E-300");
  const QImage seen = panel.grab().toImage();
  const QColor background = seen.pixelColor(1, 1);
  int ink = 0;  // in the last pixels of the panel, which the dots leave free
  for (int y = 0; y < seen.height(); ++y)
    if (seen.pixelColor(seen.width() - 1, y) != background) ++ink;
  EXPECT_EQ(ink, 0);
  resizeFor({1600, 200});
  EXPECT_FALSE(panel.isElided());
  EXPECT_EQ(panel.toolTip(), "");
}

TEST_F(GraficoAccess, ThePictureTellsTheActiveGraph) {
  addFunction('a', "x");
  addFunction('b', "x^2");
  openUsual();
  EXPECT_EQ(description(), "x de -10 a 10; y de -10 a 10; gráfico activo: a(x)=x");
  press(Qt::Key_PageDown);
  EXPECT_EQ(description(), "x de -10 a 10; y de -10 a 10; gráfico activo: b(x)=x^2");
}

TEST_F(GraficoAccess, ThePictureTellsTheTracedPoint) {
  addFunction('a', "x");
  openUsual();
  const std::string still = "x de -10 a 10; y de -10 a 10; gráfico activo: a(x)=x";
  click("Recorrer_Adelante");
  EXPECT_EQ(description(), still + "; X=0,5; Y=0,5");
  click("Recorrer_Adelante");
  EXPECT_EQ(description(), still + "; X=1; Y=1");
  click("Parar");
  EXPECT_EQ(description(), still);
}

TEST_F(GraficoAccess, ThePanelsAreReadAsTheyAre) {
  openUsual();
  for (int i = 1; i <= 4; ++i) {
    auto& panel = control<QLabel>("StatusBar1_Panel" + std::to_string(i));
    EXPECT_EQ(text(&panel, QAccessible::Name), fromQt(panel.text()));
  }
}

TEST_F(GraficoAccess, EveryControlThatTakesTheFocusHasAName) {
  for (const std::string code : {"ES", "EN"}) {
    SetCurrentLanguage(code);
    open(view);
    for (QWidget* const child : window.findChildren<QWidget*>()) {
      if (child->focusPolicy() == Qt::NoFocus || child->objectName().startsWith("qt_")) continue;
      EXPECT_NE(text(child, QAccessible::Name), "") << fromQt(child->objectName());
    }
  }
}

}  // namespace
}  // namespace zel::test
