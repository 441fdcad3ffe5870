#include <QListView>

#include "app/editor/new_graph.h"
#include "forms/shown_tip.h"
#include "frm_adm_graficos_fixture.h"

namespace zel::test {
namespace {

class EditorOpens : public Editor {
 protected:
  void expectShown(const Texts& texts) {
    for (const auto& [name, value] : texts) EXPECT_EQ(shown(name.c_str()), value) << name;
  }
};

TEST_F(EditorOpens, ForANewGraphWithAFreeLetterAndAFreshColour) {
  addFunction('a', "x", graphColours()[0]);
  openNew();
  EXPECT_EQ(letter(), "b");
  EXPECT_EQ(swatch().colour(), graphColours()[1]);
  EXPECT_EQ(kind(), 'F');
  EXPECT_EQ(focused(), "txtF");
}

TEST_F(EditorOpens, ForANewGraphWithEmptyFieldsButRangesAndSteps) {
  openNew();
  const Texts defaults = {{"txtZinicio", "-3"}, {"txtZfin", "3"},   {"txtZvariacion", "1"},
                          {"txtTinicio", "0"},  {"txtTfin", "360"}, {"txtTvariacion", "1"}};
  for (const QLineEdit* field : editor.findChildren<QLineEdit*>()) {
    const auto found = defaults.find(fromQt(field->objectName()));
    EXPECT_EQ(fromQt(field->text()), found == defaults.end() ? "" : found->second)
        << field->objectName().toStdString();
  }
}

TEST_F(EditorOpens, WithTheLettersOfAllGraphs) {
  const auto& letters = control<QComboBox>(editor, "cboNombre");
  ASSERT_EQ(letters.count(), 26);
  for (int i = 0; i < 26; ++i)
    EXPECT_EQ(fromQt(letters.itemText(i)), std::string(1, static_cast<char>('a' + i)));
  EXPECT_FALSE(letters.isEditable());
}

TEST_F(EditorOpens, WithTheLettersInUseMarked) {
  addFunction('c', "x^2");
  openNew();
  auto& letters = control<QComboBox>(editor, "cboNombre");
  EXPECT_TRUE(letters.itemData(2, Qt::FontRole).value<QFont>().bold());
  EXPECT_EQ(shownTip(letters.itemData(2, Qt::ToolTipRole).toString()), "c(x)=x^2");
  EXPECT_FALSE(letters.itemData(1, Qt::FontRole).isValid());
  program.graphs.freeGraph('c');
  openNew();
  EXPECT_FALSE(letters.itemData(2, Qt::FontRole).isValid());
  EXPECT_FALSE(letters.itemData(2, Qt::ToolTipRole).isValid());
}

TEST_F(EditorOpens, OverItsCaller) {
  openNew();
  EXPECT_EQ(editor.windowModality(), Qt::ApplicationModal);
  EXPECT_EQ(caller.shown, 0);
}

TEST_F(EditorOpens, OverACallerThatIsAWindow) {
  frmAdmGraficos below(program);
  below.setWindowModality(Qt::NonModal);
  below.show();
  prepareNewGraph(program, &below);
  editor.showForm();
  EXPECT_EQ(editor.windowHandle()->transientParent(), below.windowHandle());
  EXPECT_TRUE(below.isVisible());
}

TEST_F(EditorOpens, WithAFunction) {
  addFunction('g', "SEN( x )", 0x123456);
  openChange('g');
  EXPECT_EQ(letter(), "g");
  EXPECT_EQ(swatch().colour(), 0x123456);
  EXPECT_EQ(kind(), 'F');
  EXPECT_EQ(focused(), "txtF");
  expectShown({{"txtF", "SEN( x )"}});
  EXPECT_EQ(labelText("LblF"), "g(x)=");
}

TEST_F(EditorOpens, WithEachOtherKindAsItWasDeclared) {
  struct Row {
    char kind;
    const char* first;
    Texts texts;
  };
  const Row rows[] = {
      {'C', "txtCX", {{"txtCX", "1.0"}, {"txtCY", "-2"}, {"txtCRadio", "3,5"}}},
      {'E', "txtEX", {{"txtEX", "1"}, {"txtEY", "2"}, {"txtEMayor", "5"}, {"txtEMenor", "3"}}},
      {'P', "txtPX", {{"txtPX", "1"}, {"txtPY", "-2,5"}, {"txtPDirectriz", "3"}}},
      {'T',
       "txtTx",
       {{"txtTx", "cos(t)"},
        {"txtTy", "sen t"},
        {"txtTinicio", "-1"},
        {"txtTfin", "7"},
        {"txtTvariacion", "0,5"}}},
      {'H', "txtHX", {{"txtHX", "1"}, {"txtHY", "2"}, {"txtHVertice", "3"}, {"txtHFoco", "5"}}},
      {'Z',
       "txtZ",
       {{"txtZ", "P*x"}, {"txtZinicio", "0"}, {"txtZfin", "9"}, {"txtZvariacion", "2"}}}};
  for (const Row& row : rows) {
    declare('k', row.kind, row.texts);
    ASSERT_TRUE(graph('k').defined) << row.kind;
    openNew();
    openChange('k');
    EXPECT_EQ(kind(), row.kind);
    EXPECT_EQ(letter(), "k");
    EXPECT_EQ(focused(), row.first);
    expectShown(row.texts);
  }
}

TEST_F(EditorOpens, WithTheFocusOfAParabolaAndNotItsVertex) {
  declare('p', 'P', {{"txtPX", "0.5"}, {"txtPY", "0.1"}, {"txtPDirectriz", "0.3"}});
  EXPECT_EQ(parameter(graph('p'), "k"), "-0,05");
  openChange('p');
  expectShown({{"txtPX", "0,5"}, {"txtPY", "0,1"}, {"txtPDirectriz", "0,3"}});
  accept();
  EXPECT_EQ(parameter(graph('p'), "k"), "-0,05");
}

TEST_F(EditorOpens, WithoutTheTextsOfTheLastTime) {
  openNew();
  fill({{"txtF", "old"}, {"txtCX", "1"}, {"txtTinicio", "77"}});
  editor.close();
  addFunction('f', "x");
  openChange('f');
  expectShown({{"txtF", "x"}, {"txtCX", ""}, {"txtTinicio", "0"}});
  openNew();
  expectShown({{"txtF", ""}});
}

TEST_F(EditorOpens, OnTheFirstTabAgainForANewGraph) {
  openNew();
  chooseKind('Z');
  editor.close();
  openNew();
  EXPECT_EQ(kind(), 'F');
}

}  // namespace
}  // namespace zel::test
