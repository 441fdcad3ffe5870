#include "engine/compiler.h"
#include "frm_adm_graficos_fixture.h"

namespace zel::test {
namespace {

class InsertMenu : public Editor {
 protected:
  void insert(int entry) { control<QMenu>(editor, "mInsertarFuncion").actions()[entry]->trigger(); }
};

TEST_F(InsertMenu, PutsTheCaretBetweenTheParentheses) {
  for (const char* const language : {"ES", "EN"}) {
    SetCurrentLanguage(language);
    openNew();
    int entry = 0;
    for (const std::string_view name : offeredFunctions(language)) {
      fill({{"txtF", "1+2"}});
      box("txtF").setCursorPosition(2);
      insert(entry++);
      QTest::keyClicks(&box("txtF"), "x");
      const std::string inserted = name == "!" ? "!x" : std::string(name) + "(x)";
      EXPECT_EQ(shown("txtF"), "1+" + inserted + "2");
    }
    EXPECT_EQ(entry, 12);
  }
}

TEST_F(InsertMenu, KeepsWhatIsSelected) {
  openNew();
  fill({{"txtF", "x+1"}});
  box("txtF").selectAll();
  insert(4);
  EXPECT_EQ(shown("txtF"), "x+1sen()");
}

TEST_F(InsertMenu, WritesIntoTheFormulaThatHadTheFocusLast) {
  openNew();
  chooseKind('T');
  box("txtTy").setFocus();
  box("txtTfin").setFocus();
  insert(3);
  EXPECT_EQ(shown("txtTy"), "cos()");
  EXPECT_EQ(focused(), "txtTy");
  box("txtTx").setFocus();
  control<QPushButton>(editor, "bAceptar").setFocus();
  insert(3);
  EXPECT_EQ(shown("txtTx"), "cos()");
  EXPECT_EQ(shown("txtTy"), "cos()");
}

TEST_F(InsertMenu, WritesIntoTheFirstFormulaOfATabWhoseFormulasHadNoFocusYet) {
  openNew();
  box("txtF").setFocus();
  chooseKind('Z');
  control<QPushButton>(editor, "bAceptar").setFocus();
  insert(3);
  EXPECT_EQ(shown("txtZ"), "cos()");
  EXPECT_EQ(shown("txtF"), "");
}

TEST_F(InsertMenu, IsOnlyThereForFormulas) {
  openNew();
  for (const char each : kEditorKinds) {
    chooseKind(each);
    const bool has_formula = each == 'F' || each == 'T' || each == 'Z';
    EXPECT_EQ(control<QMenu>(editor, "mInsertarFuncion").isEnabled(), has_formula) << each;
  }
  chooseKind('C');
  insert(3);
  for (const char* const name : {"txtF", "txtTx", "txtZ", "txtCX"}) EXPECT_EQ(shown(name), "");
}

}  // namespace
}  // namespace zel::test
