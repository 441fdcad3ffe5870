// Where windows that lie over others appear; tests/forms/places_test.sh tries the rest under a
// window manager.
#include "app/main_commands.h"
#include "forms/editor/frm_adm_graficos.h"
#include "forms/main/frm_datos_ini.h"
#include "forms/start/frm_acerca_de.h"
#include "forms/window_fixture.h"

namespace zel::test {
namespace {

class WindowPlaces : public WindowTest {
 protected:
  WindowPlaces() {
    owner.showForm();
    owner.setGeometry(100, 200, 600, 400);  // in the middle of the screen, where all have room
  }

  void openEditor() {
    prepareNewGraph(program, &owner);
    editor.showForm();
  }
  bool isOverOwner(const QWidget& window) {
    return (window.geometry().center() - owner.geometry().center()).manhattanLength() <= 2;
  }

  frmDatosIni owner{program};
  frmAdmGraficos editor{program};
  frmAcercaDe about{program};
};

TEST_F(WindowPlaces, TheEditorBeginsOverItsOwnerAndComesBackWhereItStood) {
  openEditor();
  EXPECT_TRUE(isOverOwner(editor));
  editor.setGeometry(QRect(QPoint(20, 30), editor.size()));
  editor.close();
  openEditor();
  EXPECT_EQ(editor.geometry().topLeft(), QPoint(20, 30));
}

TEST_F(WindowPlaces, AWindowThatStoodOnAScreenThatIsGoneIsNotPutThere) {
  openEditor();
  editor.setGeometry(QRect(QPoint(20000, 30), editor.size()));
  editor.close();
  editor.setGeometry(QRect(QPoint(40, 50), editor.size()));  // where a window manager would
  openEditor();
  EXPECT_EQ(editor.geometry().topLeft(), QPoint(40, 50));
}

TEST_F(WindowPlaces, TheAboutBoxIsOverItsOwnerEachTime) {
  for (int i = 0; i < 2; ++i) {
    program.params = makeFormParams();
    program.params.set("llamador", static_cast<FormWindow*>(&owner));
    about.showForm();
    EXPECT_TRUE(isOverOwner(about));
    about.move(5, 5);
    about.close();
  }
}

}  // namespace
}  // namespace zel::test
