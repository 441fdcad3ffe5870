// What comes into the text boxes of the main window and of the editor, however it comes.
#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMimeData>
#include <set>

#include "forms/editor/frm_adm_graficos.h"
#include "forms/main/frm_datos_ini.h"
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

  static void drop(QLineEdit& box, const QString& text) {
    QMimeData data;
    data.setText(text);
    QDropEvent event(QPointF(1, 1), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    static_cast<QObject&>(box).event(&event);  // past the drag manager of the application
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
  forEachBox([](QLineEdit& box) {
    QInputMethodEvent event;
    event.setCommitString(hostileText());
    QApplication::sendEvent(&box, &event);
  });
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

}  // namespace
}  // namespace zel::test
