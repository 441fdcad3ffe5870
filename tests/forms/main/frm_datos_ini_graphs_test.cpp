// The main window's list of graphs, and undo and redo.
#include <QScrollBar>

#include "app/editor/graph_editing.h"
#include "forms/shown_tip.h"
#include "frm_datos_ini_fixture.h"

namespace zel::test {
namespace {

class ListOfGraphs : public MainWindow {
 protected:
  void add(const char* letters) {
    for (; *letters != '\0'; ++letters) addFunction(*letters, "x");
  }
  /// As the editor does it.
  void accept(char letter, const char* formula) {
    program.params = makeFormParams();
    ASSERT_TRUE(acceptEdited(program, letter, 255, FunctionFields{{formula, "f"}}));
    window.showForm();
  }
  void putDocument(const std::string& name, const char* letters) {
    GraphTable graphs;
    for (; *letters != '\0'; ++letters) graphs.rebuildGraph(*letters, "x", "", 255, 'F', nullptr);
    putBytes(name, *documentBytes(MainView(), graphs));
  }
  std::string selected() { return list().selectedLetters(); }
  std::string listed() {
    std::string letters;
    for (int row = 0; row < list().topLevelItemCount(); ++row)
      letters += fromQt(list().topLevelItem(row)->text(0));
    return letters;
  }
  bool isEnabled(const char* action) { return control<QAction>(window, action).isEnabled(); }
};

TEST_F(ListOfGraphs, WritesLettersInTheNormalColourAndTheSwatchUntintedInASelectedRow) {
  add("a");
  window.showForm();
  const QTreeWidgetItem& row = *list().topLevelItem(0);
  EXPECT_FALSE(row.data(0, Qt::ForegroundRole).isValid());
  for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Selected}) {
    const QImage swatch = row.icon(0).pixmap(16, mode).toImage();
    EXPECT_EQ(swatch.pixelColor(swatch.rect().center()), QColor(255, 0, 0));
  }
}

TEST_F(ListOfGraphs, CutsATextAfterAThousandCharacters) {
  const auto shown = [&](std::size_t length) {
    const std::string formula(length - 5, '1');  // behind "a(x)="
    program.graphs.rebuildGraph('a', formula, formula, 255, 'F', nullptr);
    window.showForm();
    return fromQt(list().topLevelItem(0)->text(2));
  };
  EXPECT_EQ(shown(1000), "a(x)=" + std::string(995, '1'));
  EXPECT_EQ(shown(1001), "a(x)=" + std::string(995, '1') + "…");
}

TEST_F(ListOfGraphs, ShowsWhatComesAfterThousandsOfControlCharacters) {
  std::string formula(4999, '\1');
  for (int i = 0; i < 3000; ++i) formula += "€";
  program.graphs.rebuildGraph('a', formula, formula, 255, 'F', nullptr);
  window.showForm();
  const QTreeWidgetItem& row = *list().topLevelItem(0);
  EXPECT_EQ(row.text(2), "a(x)=" + QString(995, u'€') + "…");
  EXPECT_EQ(shownTip(row.toolTip(2)), fromQt("a(x)=" + QString(1595, u'€') + "…"));
}

TEST_F(ListOfGraphs, SaysWhatToDoWhileItIsEmpty) {
  window.showForm();
  auto& hint = control<QLabel>(list(), "LblVacia");
  EXPECT_TRUE(hint.isVisible());
  EXPECT_EQ(fromQt(hint.text()), "Agregue un gráfico, o suelte aquí un documento");
  choose("mEnglish");
  EXPECT_EQ(fromQt(hint.text()), "Add a graph, or drop a document here");
  add("a");
  window.showForm();
  EXPECT_FALSE(hint.isVisible());
  choose("mNuevo");
  EXPECT_TRUE(hint.isVisible());
}

TEST_F(ListOfGraphs, HasRoomForItsColumnsInTheSmallestWindow) {
  window.openCommandLine(std::string(ZEL_EXAMPLES_DIR) + "/all_kinds.zel");
  window.resize(window.minimumSizeHint());
  window.showForm();
  QApplication::processEvents();
  EXPECT_EQ(list().horizontalScrollBar()->maximum(), 0);
}

TEST_F(ListOfGraphs, SelectsTheFirstRowAfterALoadWhateverKeysAreHeldDown) {
  putDocument("d.zel", "bcd");
  add("d");
  activateList();
  list().selectLetters("d");
  services.files.paths = {"d.zel"};
  QTest::keyClick(window.windowHandle(), Qt::Key_O, Qt::ControlModifier);
  ASSERT_EQ(listed(), "bcd");
  EXPECT_EQ(selected(), "b");
  EXPECT_EQ(list().currentItem(), list().topLevelItem(0));
  EXPECT_TRUE(control<QPushButton>(window, "CmdModificar").isEnabled());
  window.openCommandLine("d.zel");
  EXPECT_EQ(selected(), "b");
}

TEST_F(ListOfGraphs, KeepsItsSelectionWhenNothingIsOpened) {
  add("abc");
  window.showForm();
  list().selectLetters("bc");
  choose("mAbrir");  // cancelled
  EXPECT_EQ(selected(), "bc");
}

TEST_F(ListOfGraphs, SelectsTheGraphThatWasAccepted) {
  add("abc");
  window.showForm();
  list().selectLetters("a");
  accept('k', "x");
  EXPECT_EQ(selected(), "k");
  accept('b', "x+1");
  EXPECT_EQ(selected(), "b");
}

TEST_F(ListOfGraphs, SelectsTheNeighbourOfWhatWasDeleted) {
  add("abcde");
  window.showForm();
  list().selectLetters("bc");
  click("CmdBorrar");
  EXPECT_EQ(listed(), "ade");
  EXPECT_EQ(selected(), "d");
  click("CmdBorrar");
  EXPECT_EQ(selected(), "e");
  click("CmdBorrar");
  EXPECT_EQ(selected(), "a");
  click("CmdBorrar");
  EXPECT_EQ(listed(), "");
}

TEST_F(ListOfGraphs, IgnoresEnterAndDoubleClickWhileSeveralAreSelected) {
  add("ab");
  window.showForm();
  list().selectLetters("ab");
  EXPECT_FALSE(control<QPushButton>(window, "CmdModificar").isEnabled());
  QTest::keyClick(&list(), Qt::Key_Return);
  emit list().itemDoubleClicked(list().topLevelItem(0), 0);
  EXPECT_EQ(editor.shown, 0);
  EXPECT_EQ(plot.shown, 0);
}

TEST_F(ListOfGraphs, ActsOnceOnAKeyThatIsHeldDown) {
  add("abc");
  activateList();
  list().selectLetters("a");
  QKeyEvent again(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
  QApplication::sendEvent(&list(), &again);
  EXPECT_EQ(editor.shown, 0);
  EXPECT_EQ(plot.shown, 0);
  for (const QAction* action : list().actions()) EXPECT_FALSE(action->autoRepeat());
}

TEST_F(ListOfGraphs, HasAContextMenu) {
  EXPECT_EQ(list().contextMenuPolicy(), Qt::ActionsContextMenu);
  std::vector<std::string> names;
  for (const QAction* action : list().actions()) names.push_back(fromQt(action->objectName()));
  EXPECT_EQ(names, (std::vector<std::string>{"mModificar", "mDuplicar", "mBorrar", "mAgregar"}));
}

TEST_F(ListOfGraphs, OffersWhatTheSelectionAllows) {
  add("ab");
  window.showForm();
  const auto offered = [this] {
    return std::vector<bool>{isEnabled("mModificar"), isEnabled("mDuplicar"), isEnabled("mBorrar"),
                             isEnabled("mAgregar")};
  };
  EXPECT_EQ(offered(), (std::vector<bool>{false, false, false, true}));
  list().selectLetters("a");
  EXPECT_EQ(offered(), (std::vector<bool>{true, true, true, true}));
  list().selectLetters("ab");
  EXPECT_EQ(offered(), (std::vector<bool>{false, true, true, true}));
}

TEST_F(ListOfGraphs, EditsAtF2AddsAtInsertAndDeletesAtDelete) {
  add("ab");
  activateList();
  list().selectLetters("b");
  QTest::keyClick(&list(), Qt::Key_F2);
  EXPECT_EQ(program.params.Item("nombre"), FormValue(std::string("b")));
  EXPECT_EQ(editor.shown, 1);
  QTest::keyClick(&list(), Qt::Key_Insert);
  EXPECT_EQ(program.params.Item("modo"), FormValue(std::string("agregar")));
  EXPECT_EQ(editor.shown, 2);
  QTest::keyClick(&list(), Qt::Key_Delete);
  EXPECT_EQ(listed(), "a");
}

TEST_F(ListOfGraphs, LeavesItsKeysToABoxThatHasTheFocus) {
  add("a");
  activateList();
  list().selectLetters("a");
  auto& box = control<QLineEdit>(window, "txtRanXi");
  box.setFocus();
  box.setText("5");
  box.setCursorPosition(0);
  for (const Qt::Key key : {Qt::Key_F2, Qt::Key_Insert, Qt::Key_Delete}) QTest::keyClick(&box, key);
  EXPECT_EQ(editor.shown, 0);
  EXPECT_EQ(listed(), "a");
  EXPECT_EQ(fromQt(box.text()), "");
}

TEST_F(ListOfGraphs, DuplicatesAtCtrlDAndSelectsTheCopies) {
  add("ac");
  activateList();
  list().selectLetters("a");
  QTest::keyClick(&list(), Qt::Key_D, Qt::ControlModifier);
  EXPECT_EQ(listed(), "abc");
  EXPECT_EQ(selected(), "b");
  EXPECT_EQ(fromQt(list().topLevelItem(1)->text(2)), "b(x)=x");
}

TEST_F(ListOfGraphs, IsUndoneAndRedoneByKeysAndMenu) {
  add("abc");
  activateList();
  EXPECT_FALSE(isEnabled("mDeshacer"));
  EXPECT_FALSE(isEnabled("mRehacer"));
  list().selectLetters("ac");
  click("CmdBorrar");
  EXPECT_EQ(selected(), "b");
  QTest::keyClick(&list(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(listed(), "abc");
  EXPECT_EQ(selected(), "ac");
  EXPECT_FALSE(isEnabled("mDeshacer"));
  QTest::keyClick(&list(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(listed(), "b");
  EXPECT_FALSE(isEnabled("mRehacer"));
  choose("mDeshacer");
  EXPECT_EQ(listed(), "abc");
  QTest::keyClick(&list(), Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(listed(), "b");
  choose("mDeshacer");
  EXPECT_EQ(listed(), "abc");
  choose("mRehacer");
  EXPECT_EQ(listed(), "b");
  EXPECT_EQ(control<QAction>(window, "mRehacer").shortcut(), QKeySequence("Ctrl+Shift+Z"));
  accept('b', "x^2");
  choose("mDeshacer");
  EXPECT_EQ(fromQt(list().topLevelItem(0)->text(2)), "b(x)=x");
  EXPECT_EQ(selected(), "b");
}

TEST_F(ListOfGraphs, ComesBackWithItsDocumentAfterNewAndOpen) {
  putDocument("d.zel", "d");
  putDocument("e.zel", "e");
  services.files.paths = {"d.zel", "e.zel"};
  window.showForm();
  choose("mAbrir");
  control<QLineEdit>(window, "txtRanXi").setText("-3");
  choose("mNuevo");
  choose("mAbrir");
  EXPECT_EQ(listed(), "e");
  choose("mDeshacer");
  EXPECT_EQ(listed(), "");
  EXPECT_EQ(title(), "ZEL - Datos iniciales");
  choose("mDeshacer");
  EXPECT_EQ(listed(), "d");
  EXPECT_EQ(selected(), "d");
  EXPECT_EQ(title(), "ZEL - d.zel");
  EXPECT_EQ(text(window, "txtRanXi"), "-3");
  choose("mRehacer");
  choose("mRehacer");
  EXPECT_EQ(listed(), "e");
  EXPECT_EQ(title(), "ZEL - e.zel");
}

TEST_F(ListOfGraphs, SelectsTheFirstRowOfADocumentThatUndoAndRedoBringBack) {
  putDocument("d.zel", "bcd");
  add("abc");
  window.showForm();
  list().selectLetters("bc");
  choose("mNuevo");
  choose("mDeshacer");
  EXPECT_EQ(listed(), "abc");
  EXPECT_EQ(selected(), "a");
  EXPECT_TRUE(isEnabled("mModificar"));
  services.files.paths = {"d.zel"};
  choose("mAbrir");
  list().selectLetters("bc");
  choose("mDeshacer");
  EXPECT_EQ(listed(), "abc");
  EXPECT_EQ(selected(), "a");
  list().selectLetters("bc");
  choose("mRehacer");
  EXPECT_EQ(listed(), "bcd");
  EXPECT_EQ(selected(), "b");
}

TEST_F(ListOfGraphs, HasNothingToUndoAfterTheStartWithADocument) {
  putDocument("d.zel", "d");
  window.openCommandLine("d.zel");
  window.showForm();
  EXPECT_EQ(listed(), "d");
  EXPECT_FALSE(isEnabled("mDeshacer"));
}

TEST_F(ListOfGraphs, IsLeftAloneByTheUndoOfABox) {
  add("ab");
  activateList();
  list().selectLetters("a");
  click("CmdBorrar");
  auto& box = control<QLineEdit>(window, "txtRanXi");
  box.setFocus();
  box.setText("1");
  QTest::keyClicks(&box, "2");
  QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(fromQt(box.text()), "1");
  QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(fromQt(box.text()), "12");
  EXPECT_EQ(listed(), "b");
  // Nor does an undo of the graphs take from a box what can be undone there.
  choose("mDeshacer");
  EXPECT_EQ(listed(), "ab");
  QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(fromQt(box.text()), "1");
}

}  // namespace
}  // namespace zel::test
