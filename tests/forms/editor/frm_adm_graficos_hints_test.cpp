#include <QColor>
#include <QScrollArea>
#include <string>

#include "engine/compiler.h"
#include "forms/editor/editor_pages.h"
#include "forms/editor/hint_line.h"
#include "forms/editor/preview_box.h"
#include "forms/main/frm_datos_ini.h"
#include "forms/main/graph_list.h"
#include "forms/tool_tip.h"
#include "frm_adm_graficos_fixture.h"

namespace zel::test {
namespace {

class EditorHints : public Editor {
 protected:
  EditorHints() { editor.setPreviewTime(std::chrono::hours(1)); }

  HintLine& line(const char* field) {
    return control<HintLine>(editor, fromQt(hintName(field)).c_str());
  }
  std::string hint(const char* field) { return line(field).hint().text; }
  /// Waits for the pause to be over.
  bool says(const char* field, const char* text) {
    return QTest::qWaitFor([&] { return hint(field) == text; }, kPatience);
  }

  PreviewBox& preview() { return control<PreviewBox>(editor, "picVista"); }
  /// Pixels of the preview that have this colour, with red in its low byte.
  int pixelsOf(std::int32_t colour) {
    const QImage image = preview().pixmap().toImage();
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x) count += image.pixelColor(x, y) == qtColour(colour);
    return count;
  }
  bool shows(std::int32_t colour) {
    return QTest::qWaitFor([&] { return pixelsOf(colour) > 0; }, kPatience);
  }
};

TEST_F(EditorHints, FollowTheTypingAfterAPause) {
  openNew();
  EXPECT_EQ(hint("txtF"), "Falta la fórmula");
  QTest::keyClicks(&box("txtF"), "2*(x");
  EXPECT_EQ(hint("txtF"), "Falta la fórmula") << "not while typing";
  EXPECT_TRUE(says("txtF", "Falta cerrar el paréntesis: 2*(x"));
  EXPECT_EQ(line("txtF").hint().tone, HintTone::refusal);
  QTest::keyClicks(&box("txtF"), ")");
  EXPECT_TRUE(says("txtF", ""));
  EXPECT_TRUE(services.boxes.shown.empty());
  EXPECT_EQ(program.graphs.count(), 0);
}

TEST_F(EditorHints, StandUnderEachFieldOfEachKindInBothLanguages) {
  for (const char* const language : {"ES", "EN"}) {
    SetCurrentLanguage(language);
    openNew();
    for (const char each : kEditorKinds) {
      chooseKind(each);
      const auto fields = tabs().currentWidget()->findChildren<QLineEdit*>();
      for (QLineEdit* field : fields) field->setText("(");
      for (const QLineEdit* field : fields) {
        const std::string name = fromQt(field->objectName());
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return line(name.c_str()).hint().tone == HintTone::refusal; }, kPatience))
            << name;
        EXPECT_EQ(fromQt(field->accessibleDescription()), hint(name.c_str()));
        EXPECT_GE(line(name.c_str()).y(), field->geometry().bottom());
      }
    }
  }
}

TEST_F(EditorHints, SayWhatTheLetterReplaces) {
  addFunction('f', "x^2");
  openNew();
  EXPECT_EQ(hint("cboNombre"), "");
  chooseLetter('f');
  EXPECT_TRUE(says("cboNombre", "Ocupa el lugar de f(x)=x^2"));
  openChange('f');
  EXPECT_EQ(hint("cboNombre"), "");
  chooseLetter('g');
  EXPECT_TRUE(says("cboNombre", "f(x)=x^2 queda como está"));
}

TEST_F(EditorHints, AreThoseOfTheGraphThatIsOpened) {
  openNew();
  fill({{"txtF", "("}});
  editor.close();
  addFunction('f', "x");
  openChange('f');
  EXPECT_EQ(hint("txtF"), "");
}

TEST_F(EditorHints, NeverMoveTheWindowOrItsFields) {
  openNew();
  const QSize window = editor.size();
  const QSize hinted = editor.minimumSizeHint();
  const QRect place = box("txtF").geometry();
  fill({{"txtF", std::string(200, 'q')}});
  EXPECT_TRUE(
      QTest::qWaitFor([&] { return line("txtF").hint().tone == HintTone::note; }, kPatience));
  EXPECT_EQ(editor.size(), window);
  EXPECT_EQ(editor.minimumSizeHint(), hinted);
  EXPECT_EQ(box("txtF").geometry(), place);
  EXPECT_FALSE(line("txtF").toolTip().isEmpty()) << "where it is told as a whole";
}

TEST_F(EditorHints, TakeNoMoreOfALongTextThanTheirToolTip) {
  addFunction('f', std::string(100'000, 'q'));
  openChange('f');
  const QString shown = line("txtF").text();
  EXPECT_TRUE(shown.startsWith("Nombre desconocido: «qqq"));
  EXPECT_EQ(shown.size(), kLongestToolTip + 1);
  EXPECT_TRUE(box("txtF").accessibleDescription() == shown);
  EXPECT_TRUE(line("txtF").toolTip().contains(u'…'));
}

TEST_F(EditorHints, KeepTheWindowAsItIsFromTabToTab) {
  openNew();
  const QSize window = editor.size();
  for (const char each : kEditorKinds) {
    chooseKind(each);
    QTest::qWait(0);
    EXPECT_EQ(editor.size(), window) << each;
    auto& page = static_cast<QScrollArea&>(*tabs().currentWidget());
    EXPECT_GE(page.viewport()->height(), page.widget()->sizeHint().height()) << each;
    EXPECT_GE(page.viewport()->width(), page.widget()->minimumSizeHint().width()) << each;
    EXPECT_TRUE(preview().isVisible());
  }
}

TEST_F(EditorHints, LeaveTheEngineAsItIs) {
  Engine& engine = program.engine;
  double value = 0;
  std::string message;
  // In the middle of a record that is valid, where the next evaluation reads on.
  const std::string code = NormaliseFormula("inv(x)+t");
  engine.SetT(7);
  engine.SetP(3);
  ASSERT_TRUE(engine.Evaluate(1, value, code, message));
  ASSERT_FALSE(engine.Evaluate(0, value, code, message));
  const std::size_t position = engine.parseCache().position();
  ASSERT_GT(position, 1u);
  openNew();
  for (const char each : kEditorKinds) {
    chooseKind(each);
    for (QLineEdit* field : tabs().currentWidget()->findChildren<QLineEdit*>())
      field->setText("p+t+1");
    QTest::qWait(0);
  }
  chooseKind('Z');
  fill({{"txtZ", "p*x"}, {"txtZinicio", "1"}, {"txtZfin", "2"}, {"txtZvariacion", "1"}});
  EXPECT_TRUE(shows(swatch().colour()));
  EXPECT_EQ(engine.parseCache().code(), code);
  EXPECT_EQ(engine.parseCache().position(), position);
  EXPECT_EQ(engine.GetP(), 3);
  ASSERT_TRUE(engine.Evaluate(1, value, "t", message));
  EXPECT_EQ(value, 7);
}

TEST_F(EditorHints, PaintTheMarkAndTheToneOnLightAndDark) {
  for (const QColor& window : {QColor(Qt::white), QColor(0x20, 0x20, 0x20)}) {
    HintLine painted;
    QPalette palette;
    palette.setColor(QPalette::Window, window);
    painted.setPalette(palette);
    painted.resize(300, painted.sizeHint().height());
    const QImage silent = painted.grab().toImage();
    painted.setHint({HintTone::refusal, "a(b", 1, 1});
    const QImage marked = painted.grab().toImage();
    painted.setHint({HintTone::refusal, "a(b", 0, 0});
    const QImage plain = painted.grab().toImage();
    EXPECT_NE(silent, plain);
    EXPECT_NE(marked, plain);
    painted.setHint({HintTone::note, "a(b", 0, 0});
    EXPECT_NE(painted.grab().toImage(), plain);
  }
}

TEST_F(EditorHints, ShowTheGraphInItsColour) {
  openNew();
  const std::int32_t colour = swatch().colour();
  EXPECT_EQ(pixelsOf(colour), 0);
  fill({{"txtF", "x"}});
  EXPECT_TRUE(shows(colour));
  services.colours.colours = {0x0000FF};
  QTest::mouseClick(&swatch(), Qt::LeftButton);
  EXPECT_TRUE(shows(0x0000FF));
  EXPECT_EQ(pixelsOf(colour), 0);
}

TEST_F(EditorHints, ShowTheGraphOverTheRangeOfTheMainWindow) {
  program.main_view.xi = "1";
  program.main_view.xf = "2";
  openNew();
  EXPECT_EQ(labelText("LblVista"), "x: 1 … 2\ny: -10 … 10");
  EXPECT_EQ(fromQt(preview().accessibleDescription()), labelText("LblVista"));
  fill({{"txtF", "ln(x-1)-100"}});
  EXPECT_TRUE(QTest::qWaitFor([&] { return labelText("LblVista") == "Nada visible en el rango"; },
                              kPatience));
  program.main_view.xf = "1";
  openNew();
  EXPECT_EQ(labelText("LblVista"), "Rango no válido");
}

TEST_F(EditorHints, KnowTheRangeFromTheMainWindowThatOpensTheEditor) {
  addFunction('a', "x");
  frmDatosIni main_window(program);
  main_window.setTargets({&editor, nullptr, nullptr});
  main_window.showForm();
  control<QLineEdit>(main_window, "txtRanXi").setText("-7");
  control<QPushButton>(main_window, "CmdAgregar").click();
  EXPECT_EQ(labelText("LblVista"), "x: -7 … 10\ny: -10 … 10");
  editor.close();
  control<QLineEdit>(main_window, "txtRanXi").setText("-8");
  control<GraphList>(main_window, "listaG").selectLetters("a");
  control<QPushButton>(main_window, "CmdModificar").click();
  EXPECT_EQ(labelText("LblVista"), "x: -8 … 10\ny: -10 … 10");
}

TEST_F(EditorHints, GiveADrawingUpThatTakesTooLong) {
  EXPECT_EQ(frmAdmGraficos::kPreviewTime, std::chrono::milliseconds(50));
  editor.setPreviewTime(std::chrono::milliseconds(0));
  openNew();
  fill({{"txtF", "ln(-x^2)"}});
  EXPECT_TRUE(says("txtF", "")) << "nothing is known of its values either";
  EXPECT_EQ(labelText("LblVista"), "Lento: dibujo incompleto");
}

TEST_F(EditorHints, AreAGraphicAndTextsForScreenReaders) {
  for (const auto& [language, name] : {std::pair{"ES", "Vista previa"}, {"EN", "Preview"}}) {
    SetCurrentLanguage(language);
    openNew();
    QAccessibleInterface* const graphic = QAccessible::queryAccessibleInterface(&preview());
    EXPECT_EQ(graphic->role(), QAccessible::Graphic);
    EXPECT_EQ(fromQt(graphic->text(QAccessible::Name)), name);
    QAccessibleInterface* const text = QAccessible::queryAccessibleInterface(&line("txtF"));
    EXPECT_EQ(text->role(), QAccessible::StaticText);
    EXPECT_EQ(fromQt(text->text(QAccessible::Name)), hint("txtF"));
  }
}

using EditorAfterARefusal = EditorHints;

TEST_F(EditorAfterARefusal, HasTheFocusInTheFieldAtFaultWithItsTextSelected) {
  struct Row {
    char kind;
    Texts texts;
    const char* field;
  };
  const Row rows[] = {
      {'F', {{"txtF", "2*-x"}}, "txtF"},
      {'C', {{"txtCX", "1"}, {"txtCY", "2"}, {"txtCRadio", "-1"}}, "txtCRadio"},
      {'E', {{"txtEX", "1"}, {"txtEY", "2"}, {"txtEMayor", "3"}, {"txtEMenor", "4"}}, "txtEMenor"},
      {'P', {{"txtPX", "0"}, {"txtPY", "y"}, {"txtPDirectriz", "-1"}}, "txtPY"},
      {'T', {{"txtTx", "t"}, {"txtTy", "(t"}}, "txtTy"},
      {'T', {{"txtTx", "t"}, {"txtTy", "t"}, {"txtTfin", "-5"}}, "txtTfin"},
      {'H', {{"txtHX", "1"}, {"txtHY", "2"}, {"txtHVertice", "9"}, {"txtHFoco", "5"}}, "txtHFoco"},
      {'Z', {{"txtZ", "x"}}, "txtZ"}};
  for (const Row& row : rows) {
    declare('g', row.kind, row.texts);
    EXPECT_EQ(services.boxes.shown.size(), 1u);
    services.boxes.shown.clear();
    EXPECT_EQ(focused(), row.field);
    EXPECT_EQ(fromQt(box(row.field).selectedText()), row.texts.at(row.field));
    EXPECT_TRUE(line(row.field).hint().isFault()) << row.field;
    editor.close();
  }
}

TEST_F(EditorAfterARefusal, HasTheFocusAtTheDistanceOfAParabolaThatEndedSilently) {
  declare('p', 'P', {{"txtPX", "0"}, {"txtPY", "0"}, {"txtPDirectriz", "0"}});
  EXPECT_TRUE(services.boxes.shown.empty());
  EXPECT_EQ(focused(), "txtPDirectriz");
  EXPECT_EQ(hint("txtPDirectriz"), "Debe ser mayor que 0");
}

TEST_F(EditorAfterARefusal, BringsTheFieldIntoView) {
  openNew();
  chooseKind('T');
  fill({{"txtTx", "t"}, {"txtTy", "t"}, {"txtTvariacion", "-1"}});
  editor.resize(editor.width(), 10);
  auto& page = static_cast<QScrollArea&>(*tabs().currentWidget());
  QTest::qWait(0);
  const auto is_seen = [&] {
    const QPoint place = box("txtTvariacion").mapTo(page.viewport(), QPoint());
    return page.viewport()->rect().contains(QRect(place, box("txtTvariacion").size()));
  };
  ASSERT_FALSE(is_seen());
  accept();
  EXPECT_TRUE(is_seen());
  EXPECT_EQ(focused(), "txtTvariacion");
}

TEST_F(EditorAfterARefusal, StaysWhereItWasWhenTheTableIsFull) {
  for (char name = 'a'; name <= 'z'; ++name) addFunction(name, "x");
  openChange('f');
  EXPECT_EQ(hint("cboNombre"), "No se puede definir mas gráficos.");
  chooseKind('C');
  box("txtCY").setFocus();
  QTest::keyClick(&box("txtCY"), Qt::Key_Return);
  EXPECT_EQ(services.boxes.shown.size(), 1u);
  EXPECT_EQ(focused(), "txtCY");
}

}  // namespace
}  // namespace zel::test
