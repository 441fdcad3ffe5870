// Where the main window leads after it has refused a plot.
#include "frm_datos_ini_fixture.h"

namespace zel::test {
namespace {

class RefusedPlot : public MainWindow {};

TEST_F(RefusedPlot, GoesToTheBoxAtFaultAfterARefusal) {
  addFunction('a', "x");
  activateList();
  auto& box = control<QLineEdit>(window, "txtRanYi");
  box.setText("20");
  click("CmdGraficarLista");
  EXPECT_EQ(services.boxes.shown.size(), 1u);
  EXPECT_EQ(window.focusWidget(), &box);
  EXPECT_EQ(fromQt(box.selectedText()), "20");
  type("txtRanYi", "-5");  // in the place of what is selected
  EXPECT_EQ(fromQt(box.text()), "-5");
  auto& scale = control<QLineEdit>(window, "txtEscalaX");
  scale.setText("  ");
  choose("mExportar");
  EXPECT_EQ(services.boxes.shown.size(), 2u);
  EXPECT_EQ(window.focusWidget(), &scale);
}

TEST_F(RefusedPlot, LeavesTheFocusWhereABoxAtFaultCannotBeEdited) {
  addFunction('a', "x");
  activateList();
  control<QLineEdit>(window, "txtRanYi").setText("20");
  window.actProporcional(true);
  QWidget* const focus = window.focusWidget();
  choose("mExportar");
  EXPECT_EQ(services.boxes.shown.size(), 1u);
  EXPECT_EQ(window.focusWidget(), focus);
  choose("mNuevo");
  choose("mExportar");  // neither does what is refused without a word lead anywhere
  EXPECT_EQ(services.boxes.shown.size(), 1u);
  EXPECT_EQ(window.focusWidget(), focus);
}

}  // namespace
}  // namespace zel::test
