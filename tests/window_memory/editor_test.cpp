// Every allocation of what the graph editor does fails once: the graph is there or not, and told.
#include <QComboBox>

#include "windows_fixture.h"

namespace zel::test {
namespace {

class EditorInWantOfMemory : public WindowsInWantOfMemory {
 protected:
  QWidget& editor() { return window("frmAdmGraficos"); }

  /// Opens the editor with a button of the main window, and types a formula.
  Deed accept(const char* button) {
    return {[this, button] {
              putDocument();
              click(mainWindow(), button);
              control<QLineEdit>(editor(), "txtF").setText("x/3+" + QString(40, '5'));
              settle();
            },
            [this] { click(editor(), "bAceptar"); }, [this] { return document(); }};
  }
};

TEST_F(EditorInWantOfMemory, AcceptsANewGraphOrDoesNot) {
  EXPECT_GT(expectDoneOrTold(accept("CmdAgregar")), 30);
}

TEST_F(EditorInWantOfMemory, AcceptsAChangedGraphOrDoesNot) {
  EXPECT_GT(expectDoneOrTold(accept("CmdModificar")), 30);
}

TEST_F(EditorInWantOfMemory, IsOpenedWithTheGraphOrNotAtAll) {
  const auto held = [this] {
    return editor().isVisible() ? text(editor(), "txtF") : std::string();
  };
  EXPECT_GT(expectDoneOrTold(
                {[this] { putDocument(); }, [this] { click(mainWindow(), "CmdModificar"); }, held}),
            5);
}

TEST_F(EditorInWantOfMemory, ShowsItsPreviewAndItsHints) {
  const auto letters = [this]() -> QComboBox& { return control<QComboBox>(editor(), "cboNombre"); };
  const Deed preview = {[this] {
                          putDocument();
                          click(mainWindow(), "CmdModificar");
                        },
                        [letters] {  // to another letter, so that the last one is a change
                          QTest::keyClick(&letters(), Qt::Key_Home);
                          QTest::keyClick(&letters(), Qt::Key_End);
                        },
                        [letters] { return fromQt(letters().accessibleDescription()); }};
  EXPECT_GT(expectDoneOrTold(preview), 30);
}

}  // namespace
}  // namespace zel::test
