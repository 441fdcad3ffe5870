// What comes into the text boxes of the main window and of the editor, however it comes, and what
// they give back.
#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QToolTip>
#include <set>

#include "forms/editor/frm_adm_graficos.h"
#include "forms/main/frm_datos_ini.h"
#include "forms/text_box.h"
#include "forms/window_fixture.h"

namespace zel::test {
namespace {

/// Every control character, with line breaks of every kind, among plain ones.
QString hostileText() {
  QString text = QStringLiteral("1\r\n \r\n2\t");
  for (char16_t code = 0; code < 0x20; ++code) text += QChar(code);
  for (char16_t code = 0x7F; code < 0xA0; ++code) text += QChar(code);
  return text + QChar(QChar::LineSeparator) + QChar(QChar::ParagraphSeparator) + u'3';
}
constexpr const char* kPlainText = "1 23";

/// A number with more digits than are edited in a box, the last of them beyond.
const std::string kLongNumber = "-" + std::string(TextBox::kMostCharacters, '0') + "7";

class TextBoxes : public WindowTest {
 protected:
  TextBoxes() { main_window.load(); }

  /// All that text can be put into; scroll bars of menus and the like have none.
  static std::vector<QLineEdit*> boxesOf(QWidget& window) {
    const auto found = window.findChildren<QLineEdit*>();
    return {found.begin(), found.end()};
  }

  void forEachBox(const std::function<void(QLineEdit&)>& look) {
    std::set<std::string> names;
    for (QWidget* window : {static_cast<QWidget*>(&main_window), static_cast<QWidget*>(&editor)}) {
      for (QLineEdit* box : boxesOf(*window)) {
        names.insert(fromQt(box->objectName()));
        box->clear();
        look(*box);
        EXPECT_EQ(fromQt(box->text()), kPlainText) << fromQt(box->objectName());
      }
    }
    EXPECT_EQ(names.size(), 6u + 24u);
  }

  static void type(QLineEdit& box, const QString& text) { QTest::keyClicks(&box, text); }

  static void paste(QLineEdit& box, const QString& text) {
    QApplication::clipboard()->setText(text);
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
  }

  static void drop(QLineEdit& box, const QString& text) {
    QMimeData data;
    data.setText(text);
    QDropEvent event(QPointF(1, 1), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    static_cast<QObject&>(box).event(&event);  // past the drag manager of the application
  }

  static void commit(QLineEdit& box, const QString& text) {
    QInputMethodEvent event;
    event.setCommitString(text);
    QApplication::sendEvent(&box, &event);
  }

  /// A document with one function, and this as the least x of its view.
  static void writeDocument(const std::string& xi, const std::string& formula) {
    putBytes("a.zel",
             "[PRINCIPAL]\r\n01.versiones_compatibles=2.0\r\n \r\n[VISTA PRINCIPAL]\r\nxi=" + xi +
                 "\r\n \r\n[GRAFICOS PRINCIPAL]\r\n[GRAFICO]\r\n[PROPIEDADES]\r\n" +
                 "nombre=a\r\ncodigo=x\r\ncolor=255\r\necuacion=" + formula +
                 "\r\ntipo=F\r\n \r\n[PARAMETROS]\r\n \r\n \r\n ");
  }

  std::string saved() {
    control<QAction>(main_window, "mGuardar").trigger();
    return bytesOf("a.zel");
  }

  void openEditorOn(char letter) {
    prepareGraphChange(program, letter, nullptr);
    editor.showForm();
  }

  frmDatosIni main_window{program};
  frmAdmGraficos editor{program};
};

TEST_F(TextBoxes, DropControlCharactersFromWhatIsPasted) {
  auto* const data = new QMimeData;
  data->setText(hostileText());
  QApplication::clipboard()->setMimeData(data);
  forEachBox([](QLineEdit& box) { QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier); });
  forEachBox([](QLineEdit& box) { box.paste(); });
}

TEST_F(TextBoxes, DropControlCharactersFromWhatIsDropped) {
  forEachBox([](QLineEdit& box) { drop(box, hostileText()); });
}

TEST_F(TextBoxes, DropControlCharactersFromWhatAnInputMethodCommits) {
  forEachBox([](QLineEdit& box) { commit(box, hostileText()); });
}

TEST_F(TextBoxes, DropControlCharactersFromWhatADocumentHolds) {
  forEachBox([](QLineEdit& box) { box.setText(hostileText()); });
}

TEST_F(TextBoxes, PutThePastedTextWhereTheCaretIs) {
  QLineEdit& box = control<QLineEdit>(editor, "txtF");
  box.setText("sen()");
  box.setCursorPosition(4);
  QApplication::clipboard()->setText("\nx\r\n");
  box.paste();
  EXPECT_EQ(fromQt(box.text()), "sen(x)");
  EXPECT_EQ(box.cursorPosition(), 5);
}

TEST_F(TextBoxes, AreWhatADocumentCanHoldAndGiveBack) {
  QApplication::clipboard()->setText("x^2\r\n\r\n");
  prepareNewGraph(program, nullptr);
  editor.showForm();
  control<QLineEdit>(editor, "txtF").paste();
  control<QPushButton>(editor, "bAceptar").click();
  QApplication::clipboard()->setText("5\r\n \r\nfoo");
  QLineEdit& xi = control<QLineEdit>(main_window, "txtRanXi");
  xi.clear();
  xi.paste();
  services.files.paths = {"a.zel", "a.zel"};
  control<QAction>(main_window, "mGuardarComo").trigger();
  program.graphs.clearGraphs();
  xi.clear();
  control<QAction>(main_window, "mAbrir").trigger();
  EXPECT_TRUE(services.boxes.shown.empty());
  EXPECT_EQ(program.graphs.graph('a')->codigo, "x^2");
  EXPECT_EQ(fromQt(xi.text()), "5 foo");
  EXPECT_EQ(text(main_window, "txtRanXf"), "10");
}

TEST_F(TextBoxes, RefuseWhatMakesThemTooLongAsAWhole) {
  const QString full(TextBox::kMostCharacters, u'1');
  const std::string note = "Valores demasiado grandes para operar.";
  main_window.showForm();
  QLineEdit& box = control<QLineEdit>(main_window, "txtRanXi");
  for (const auto enter : {type, paste, drop, commit}) {
    QToolTip::hideText();
    box.setText(full.chopped(1));
    box.setCursorPosition(1);
    enter(box, "2");
    EXPECT_EQ(box.text().size(), TextBox::kMostCharacters) << "it fits";
    const QString before = box.text();
    enter(box, "3");
    EXPECT_TRUE(box.text() == before);
    EXPECT_EQ(fromQt(QToolTip::text()), note);
    box.undo();
    EXPECT_TRUE(box.text() == full.chopped(1)) << "as if it had not been tried";
  }
}

TEST_F(TextBoxes, RefuseALongPasteEvenIfLittleOfItIsPlain) {
  QLineEdit& formula = control<QLineEdit>(editor, "txtF");
  formula.setText("x");
  for (const QChar character : {u'1', u'\n'}) {
    QApplication::clipboard()->setText(QString(1 << 20, character) + u'2');
    formula.selectAll();
    formula.paste();
    EXPECT_TRUE(formula.text() == "x");
  }
}

TEST_F(TextBoxes, GiveALoadedTextThatIsTooLongToBeEditedBackToADocument) {
  writeDocument(kLongNumber, "x");
  main_window.openCommandLine("a.zel");
  EXPECT_NE(saved().find("xi=" + kLongNumber + "\r\n"), std::string::npos);
  program.last_session = LastSession("state");
  main_window.keepSession();
  EXPECT_NE(bytesOf("state/session.zel").find("xi=" + kLongNumber + "\r\n"), std::string::npos);
}

TEST_F(TextBoxes, DropControlCharactersFromATextThatIsTooLongToBeEditedToo) {
  writeDocument(kLongNumber + "\t", "x\t" + std::string(TextBox::kMostCharacters, ' ') + "+1");
  main_window.openCommandLine("a.zel");
  openEditorOn('a');
  control<QPushButton>(editor, "bAceptar").click();
  EXPECT_EQ(program.graphs.graph('a')->ecuacion.find('\t'), std::string::npos);
  EXPECT_NE(saved().find("xi=" + kLongNumber + "\r\n"), std::string::npos);
}

TEST_F(TextBoxes, GiveALoadedTextThatIsTooLongToBeEditedBackToAPlot) {
  writeDocument(kLongNumber, "x");
  main_window.openCommandLine("a.zel");
  NotedWindow plot;
  main_window.setTargets({nullptr, &plot, nullptr, nullptr});
  control<QPushButton>(main_window, "CmdGraficarLista").click();
  EXPECT_EQ(plot.shown, 1);
  EXPECT_EQ(std::get<double>(program.params.Item("xi")), -7);
}

TEST_F(TextBoxes, GiveALoadedTextThatIsTooLongToBeEditedBackToAnAccept) {
  const std::string formula = "x" + std::string(TextBox::kMostCharacters, ' ') + "+1";
  writeDocument("-10", formula);
  main_window.openCommandLine("a.zel");
  openEditorOn('a');
  control<QPushButton>(editor, "bAceptar").click();
  EXPECT_TRUE(services.boxes.shown.empty());
  EXPECT_FALSE(editor.isVisible());
  EXPECT_TRUE(program.graphs.graph('a')->ecuacion == formula);
  EXPECT_NE(saved().find("ecuacion=" + formula + "\r\n"), std::string::npos);
}

TEST_F(TextBoxes, LetWhatIsTypedTakeThePlaceOfATextThatIsTooLongToBeEdited) {
  writeDocument(kLongNumber, "x");
  main_window.openCommandLine("a.zel");
  QLineEdit& xi = control<QLineEdit>(main_window, "txtRanXi");
  EXPECT_TRUE(xi.text().isEmpty());
  EXPECT_EQ(fromQt(xi.placeholderText()), kLongNumber.substr(0, 1000) + "…");
  QTest::keyClicks(&xi, "-5");
  EXPECT_NE(saved().find("xi=-5\r\n"), std::string::npos);
  QTest::keyClick(&xi, Qt::Key_Backspace);
  QTest::keyClick(&xi, Qt::Key_Backspace);
  EXPECT_NE(saved().find("xi=" + kLongNumber + "\r\n"), std::string::npos);
}

TEST_F(TextBoxes, ForgetATextThatIsTooLongToBeEditedWithItsDocument) {
  writeDocument(kLongNumber, "x" + std::string(TextBox::kMostCharacters, ' '));
  main_window.openCommandLine("a.zel");
  openEditorOn('a');
  editor.close();
  control<QAction>(main_window, "mNuevo").trigger();
  EXPECT_EQ(text(main_window, "txtRanXi"), "-10");
  prepareNewGraph(program, nullptr);
  editor.showForm();
  QLineEdit& formula = control<QLineEdit>(editor, "txtF");
  EXPECT_TRUE(formula.placeholderText().isEmpty());
  control<QPushButton>(editor, "bAceptar").click();
  EXPECT_EQ(services.boxes.shown.size(), 1u) << "there is no formula";
}

}  // namespace
}  // namespace zel::test
