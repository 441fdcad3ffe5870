#include <QClipboard>
#include <QMenuBar>
#include <QTabBar>

#include "frm_adm_graficos_fixture.h"
#include "support/patience.h"

namespace zel::test {
namespace {

class EditorKeys : public Editor {
 protected:
  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QWidget* const focus = editor.focusWidget();
    QTest::keyClick(focus ? focus : &editor, key, modifiers);
  }
};

TEST_F(EditorKeys, AreFilteredInNumericFields) {
  struct Row {
    const char* name;
    bool refuses_minus;
  };
  const Row rows[] = {{"txtCX", false},      {"txtCY", false},        {"txtCRadio", true},
                      {"txtEX", false},      {"txtEY", false},        {"txtEMayor", true},
                      {"txtEMenor", true},   {"txtHX", false},        {"txtHY", false},
                      {"txtHVertice", true}, {"txtHFoco", true},      {"txtPX", false},
                      {"txtPY", false},      {"txtPDirectriz", true}, {"txtZinicio", false},
                      {"txtZfin", false},    {"txtZvariacion", true}, {"txtTinicio", false},
                      {"txtTfin", false},    {"txtTvariacion", true}};
  openNew();
  for (const Row& row : rows) {
    QLineEdit& field = box(row.name);
    field.clear();
    QTest::keyClicks(&field, "E-1a,5. eE2E-");
    EXPECT_EQ(shown(row.name), row.refuses_minus ? "1,5E2" : "-1,5E2") << row.name;
    QTest::keyClick(&field, Qt::Key_Backspace);
    EXPECT_EQ(shown(row.name), row.refuses_minus ? "1,5E" : "-1,5E") << row.name;
  }
}

TEST_F(EditorKeys, ReachFormulasUnfiltered) {
  openNew();
  for (const char* const name : {"txtF", "txtZ", "txtTx", "txtTy"}) {
    QTest::keyClicks(&box(name), "a b--E..");
    EXPECT_EQ(shown(name), "a b--E..") << name;
  }
}

TEST_F(EditorKeys, LeaveAloneWhatIsPasted) {
  openNew();
  chooseKind('C');
  QApplication::clipboard()->setText("abc -1 -2");
  box("txtCRadio").setFocus();
  press(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(shown("txtCRadio"), "abc -1 -2");
}

TEST_F(EditorKeys, EnterAccepts) {
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
    openNew();
    fill({{"txtF", "x"}});
    press(key);
    EXPECT_FALSE(editor.isVisible());
  }
  EXPECT_EQ(program.graphs.count(), 2);
  EXPECT_EQ(caller.shown, 2);
}

TEST_F(EditorKeys, EnterAcceptsFromTheLettersAndTheTabs) {
  for (QWidget* const from : {static_cast<QWidget*>(&control<QComboBox>(editor, "cboNombre")),
                              static_cast<QWidget*>(tabs().tabBar())}) {
    openNew();
    fill({{"txtF", "x"}});
    from->setFocus();
    press(Qt::Key_Return);
    EXPECT_FALSE(editor.isVisible());
  }
}

TEST_F(EditorKeys, EnterShowsARefusalOnce) {
  openNew();
  press(Qt::Key_Return);
  EXPECT_EQ(services.boxes.shown.size(), 1u);
  EXPECT_TRUE(editor.isVisible());
}

TEST_F(EditorKeys, EnterOnCancelCancels) {
  openNew();
  fill({{"txtF", "x"}});
  control<QPushButton>(editor, "bCancelar").setFocus();
  press(Qt::Key_Return);
  EXPECT_FALSE(editor.isVisible());
  EXPECT_EQ(program.graphs.count(), 0);
}

TEST_F(EditorKeys, EscapeCancels) {
  openNew();
  fill({{"txtF", "x"}});
  press(Qt::Key_Escape);
  EXPECT_FALSE(editor.isVisible());
  EXPECT_EQ(program.graphs.count(), 0);
  EXPECT_EQ(caller.shown, 1);
}

TEST_F(EditorKeys, CancelExitAndClosingReturnToTheCallerOnce) {
  const std::function<void()> ways[] = {
      [&] { QTest::mouseClick(&control<QPushButton>(editor, "bCancelar"), Qt::LeftButton); },
      [&] { control<QAction>(editor, "mSalir").trigger(); }, [&] { editor.close(); }};
  int returned = 0;
  for (const auto& way : ways) {
    openNew();
    fill({{"txtF", "x"}});
    way();
    EXPECT_FALSE(editor.isVisible());
    EXPECT_EQ(caller.shown, ++returned);
  }
  editor.close();
  EXPECT_EQ(caller.shown, returned) << "a window that is not open";
  EXPECT_EQ(program.graphs.count(), 0);
}

TEST_F(EditorKeys, OpenTheColourDialogFromTheSwatch) {
  openNew();
  swatch().setColour(0x010203);
  swatch().setFocus();
  services.colours.colours = {0x111111, 0x222222, 0x333333};
  press(Qt::Key_Space);
  EXPECT_EQ(swatch().colour(), 0x111111);
  press(Qt::Key_Return);
  EXPECT_EQ(swatch().colour(), 0x222222);
  press(Qt::Key_Enter);
  EXPECT_EQ(swatch().colour(), 0x333333);
  QTest::mouseClick(&swatch(), Qt::LeftButton);
  EXPECT_EQ(swatch().colour(), 0x333333) << "the dialog was cancelled";
  EXPECT_EQ(services.colours.initials,
            (std::vector<std::int32_t>{0x010203, 0x111111, 0x222222, 0x333333}));
  EXPECT_TRUE(editor.isVisible());
}

TEST_F(EditorKeys, ShowTheColourInItsSwatch) {
  openNew();
  swatch().setColour(0x332211);
  const QImage image = swatch().grab().toImage();
  EXPECT_EQ(image.pixelColor(image.width() / 2, image.height() / 2), QColor(0x11, 0x22, 0x33));
  EXPECT_EQ(fromQt(swatch().accessibleDescription()), "#112233");
}

TEST_F(EditorKeys, WalkInReadingOrder) {
  const std::map<char, std::vector<std::string>> pages = {
      {'F', {"txtF"}},
      {'C', {"txtCX", "txtCY", "txtCRadio"}},
      {'E', {"txtEX", "txtEY", "txtEMayor", "txtEMenor"}},
      {'P', {"txtPX", "txtPY", "txtPDirectriz"}},
      {'T', {"txtTx", "txtTy", "txtTinicio", "txtTfin", "txtTvariacion"}},
      {'H', {"txtHX", "txtHY", "txtHVertice", "txtHFoco"}},
      {'Z', {"txtZ", "txtZinicio", "txtZfin", "txtZvariacion"}}};
  openNew();
  for (const auto& [each, fields] : pages) {
    chooseKind(each);
    std::vector<std::string> expected = {"cboNombre", "FondoColor",
                                         fromQt(tabs().tabBar()->objectName())};
    expected.insert(expected.end(), fields.begin(), fields.end());
    expected.insert(expected.end(), {"bAceptar", "bCancelar", "cboNombre"});
    control<QComboBox>(editor, "cboNombre").setFocus();
    std::vector<std::string> walked = {focused()};
    while (walked.size() < expected.size()) {
      press(Qt::Key_Tab);
      walked.push_back(focused());
    }
    EXPECT_EQ(walked, expected) << each;
  }
}

TEST_F(EditorKeys, CancelByTheirMnemonic) {
  for (const char* const language : {"ES", "EN"}) {
    SetCurrentLanguage(language);
    openNew();
    press(Qt::Key_C, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !editor.isVisible(); }, kPatience)) << language;
  }
}

TEST_F(EditorKeys, AcceptByTheirMnemonicThoughAMenuHasTheSame) {
  int stored = 0;
  for (const auto& [language, key] :
       {std::pair{"ES", Qt::Key_A}, std::pair{"ES", Qt::Key_A}, std::pair{"EN", Qt::Key_O}}) {
    SetCurrentLanguage(language);
    openNew();
    fill({{"txtF", "x"}});
    press(key, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !editor.isVisible(); }, kPatience)) << language;
    EXPECT_EQ(program.graphs.count(), ++stored);
  }
}

TEST_F(EditorKeys, OpenTheMenusByTheirMnemonics) {
  struct Row {
    const char* language;
    Qt::Key key;
    const char* menu;
  };
  for (const Row& row :
       {Row{"ES", Qt::Key_I, "mInsertarFuncion"}, Row{"EN", Qt::Key_I, "mInsertarFuncion"},
        Row{"EN", Qt::Key_F, "mArchivo"}}) {
    SetCurrentLanguage(row.language);
    openNew();
    auto& menu = control<QMenu>(editor, row.menu);
    press(row.key, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return menu.isVisible(); }, kPatience)) << row.menu;
    menu.hide();
    editor.close();
  }
}

}  // namespace
}  // namespace zel::test
