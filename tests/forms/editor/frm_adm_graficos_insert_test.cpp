#include <QMenuBar>

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

TEST_F(InsertMenu, PutsWhatIsSelectedBetweenTheParentheses) {
  openNew();
  fill({{"txtF", "2*x+1"}});
  box("txtF").setSelection(2, 3);
  insert(4);
  EXPECT_EQ(shown("txtF"), "2*sen(x+1)");
  QTest::keyClicks(&box("txtF"), "!");
  EXPECT_EQ(shown("txtF"), "2*sen(x+1)!") << "the caret is behind it";
  box("txtF").setSelection(6, 3);
  insert(6);
  EXPECT_EQ(shown("txtF"), "2*sen((x+1)!)!");
}

TEST_F(InsertMenu, KnowsWhatWasSelectedBeforeTheKeyboardReachedTheMenu) {
  openNew();
  fill({{"txtF", "x+1"}});
  box("txtF").selectAll();
  editor.menuBar()->setFocus(Qt::MenuBarFocusReason);
  ASSERT_FALSE(box("txtF").hasSelectedText()) << "the box forgets it";
  insert(4);
  EXPECT_EQ(shown("txtF"), "sen(x+1)");
}

TEST_F(InsertMenu, GivesTheSelectionBackWhenTheMenuIsLeft) {
  openNew();
  fill({{"txtF", "x+1"}});
  box("txtF").setSelection(0, 1);
  editor.menuBar()->setFocus(Qt::MenuBarFocusReason);
  box("txtF").setFocus(Qt::MenuBarFocusReason);
  EXPECT_EQ(fromQt(box("txtF").selectedText()), "x");
  QTest::keyClick(&box("txtF"), Qt::Key_End);
  insert(4);
  EXPECT_EQ(shown("txtF"), "x+1sen()") << "nothing is selected any more";
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
