// A document of a stranger: every text of it is shown letter by letter, never as markup.
#include <QAbstractItemView>
#include <QComboBox>
#include <QToolButton>

#include "app/plot_arguments.h"
#include "forms/editor/frm_adm_graficos.h"
#include "forms/main/frm_datos_ini.h"
#include "forms/plot/frm_grafico.h"
#include "forms/print/frm_imprimir.h"
#include "forms/shown_tip.h"
#include "forms/window_fixture.h"

namespace zel::test {
namespace {

constexpr const char* kMarkup = "<b>x</b>&amp;<img src=\"file:///dev/zero\">";
#ifdef _WIN32
constexpr const char* kName = "a&lt;b&gt;.zel";  // "<", ">" and "*" are in no name there
constexpr const char* kTitle = "ZEL - a&lt;b&gt;.zel";
#else
constexpr const char* kName = "<b>a[*]&.zel";
constexpr const char* kTitle = "ZEL - <b>a[*][*]&.zel";  // a place marked twice stands as it is
#endif
constexpr std::string_view kKinds = "FCEPTHZ";

std::string line(const std::string& key) { return key + "=" + kMarkup + "\r\n"; }

/// A graph of each kind, with the markup in every field that holds a text.
std::string hostileDocument() {
  std::string text = line("Archivo") + "[PRINCIPAL]\r\nversiones_compatibles=2.0\r\n";
  text += line("version") + line("usuario") + " \r\n[VISTA PRINCIPAL]\r\n";
  for (const char* key : {"xi", "xf", "yi", "yf", "escala_x", "escala_y"}) text += line(key);
  text += " \r\n[GRAFICOS PRINCIPAL]\r\n";
  char letter = 'a';
  for (const char kind : kKinds) {
    text +=
        "[GRAFICO]\r\n[PROPIEDADES]\r\nnombre=" + std::string(1, letter++) + "\r\ncolor=255\r\n";
    text += line("ecuacion") + line("codigo") + line("carpeta") + "tipo=" + kind;
    text += "\r\n \r\n[PARAMETROS]\r\n";
    for (const char* key : {"h", "k", "r", "a", "b", "c", "p", "codigo1", "codigo2", "parametro",
                            "inicio", "fin", "variacion", "ecuacion_xt", "ecuacion_yt", kMarkup})
      text += line(key);
    text += " \r\n \r\n";
  }
  return text + " ";
}

class Markup : public WindowTest {
 protected:
  Markup() {
    putBytes(kName, hostileDocument());
    main_window.setTargets({&editor, &plot, nullptr});
    plot.setPrintWindow(&print);
    main_window.showForm();
    main_window.openCommandLine(kName);
    EXPECT_EQ(program.graphs.count(), static_cast<int>(kKinds.size()));
  }

  /// That the markup, where a tool tip has it, is shown letter by letter.
  static void expectPlainTip(const QString& tip, const std::string& where) {
    EXPECT_FALSE(tip.contains("<b>") || tip.contains("<img")) << where << ": " << fromQt(tip);
    if (!Qt::mightBeRichText(tip)) return;
    ++tips_;
    EXPECT_NE(shownTip(tip).find(kMarkup), std::string::npos) << where << ": " << fromQt(tip);
  }

  static void expectPlain(QWidget& window) {
    for (QWidget* widget : window.findChildren<QWidget*>()) {
      const std::string name = fromQt(widget->objectName());
      expectPlainTip(widget->toolTip(), name);
      const auto* const label = qobject_cast<QLabel*>(widget);
      if (label && label->text().contains(u'<')) {
        EXPECT_EQ(label->textFormat(), Qt::PlainText) << name;
      }
      if (auto* view = qobject_cast<QAbstractItemView*>(widget)) expectPlainItems(*view->model());
      if (auto* combo = qobject_cast<QComboBox*>(widget)) expectPlainItems(*combo->model());
    }
  }

  static void expectPlainItems(const QAbstractItemModel& model) {
    for (int row = 0; row < model.rowCount(); ++row)
      for (int column = 0; column < model.columnCount(); ++column)
        expectPlainTip(model.index(row, column).data(Qt::ToolTipRole).toString(), "an item");
  }

  static inline int tips_ = 0;  // with the markup in them

  frmAdmGraficos editor{program};
  frmGrafico plot{program};
  frmImprimir print{program};
  frmDatosIni main_window{program};
};

TEST_F(Markup, IsPlainTextInTheMainWindow) {
  tips_ = 0;
  expectPlain(main_window);
  EXPECT_GE(tips_, 7);
  EXPECT_EQ(text(main_window, "txtRanXi"), kMarkup);
  EXPECT_EQ(text(main_window, "txtEscalaY"), kMarkup);
  EXPECT_EQ(fromQt(main_window.windowTitle()), kTitle);
}

TEST_F(Markup, IsPlainTextInTheEditorOfEachGraph) {
  for (char letter = 'a'; letter < 'a' + static_cast<int>(kKinds.size()); ++letter) {
    prepareGraphChange(program, letter, &main_window);
    editor.showForm();
    tips_ = 0;
    expectPlain(editor);
    EXPECT_GE(tips_, 7) << letter;  // of the letters that are in use
  }
}

TEST_F(Markup, IsPlainTextInThePlotAndPrintWindowForEachGraph) {
  program.params.removeAll();
  handViewOver(program.params, {-10, -10, 10, 10, 10, false}, &main_window);
  program.graphs.freeGraph('e');  // their parameters are no numbers, and nothing would be drawn
  for (const char letter : {'b', 'c', 'f', 'g'}) program.graphs.freeGraph(letter);
  plot.showForm();
  plot.resize(500, 500);
  for (int i = 0; i < 5; ++i) QCoreApplication::processEvents();
  ASSERT_TRUE(services.boxes.shown.empty());
  for (const char letter : {'a', 'd'}) {
    tips_ = 0;
    EXPECT_EQ(plot.session().activeGraph(), letter);
    control<QLabel>(plot, "LblGrafico").resize(30, 20);
    expectPlain(plot);
    EXPECT_TRUE(control<QWidget>(plot, "picGrafico").accessibleDescription().contains(kMarkup));
    control<QPushButton>(plot, "CmdGrafSiguiente").click();
  }
  control<QToolButton>(plot, "Imprimir").click();
  expectPlain(print);
}

TEST_F(Markup, InATextWithoutRoomIsPlainInItsToolTip) {
  program.params.removeAll();
  handViewOver(program.params, {-10, -10, 10, 10, 10, false}, &main_window);
  QWidget& label = control<QLabel>(plot, "LblGrafico");
  plot.showForm();
  plot.resize(340, 400);
  for (int i = 0; i < 5; ++i) QCoreApplication::processEvents();
  ASSERT_FALSE(label.toolTip().isEmpty());
  tips_ = 0;
  expectPlainTip(label.toolTip(), "LblGrafico");
  EXPECT_EQ(tips_, 1);
}

TEST_F(Markup, WithLineBreaksStaysInItsRow) {
  program.graphs.clearGraphs();
  addFunction('a', "1");
  QLabel& label = control<QLabel>(plot, "LblGrafico");
  program.params.removeAll();
  handViewOver(program.params, {-10, -10, 10, 10, 10, false}, &main_window);
  plot.showForm();
  const int height = label.sizeHint().height();
  addFunction('a', "1\n2\r3\t4");
  program.params.removeAll();
  handViewOver(program.params, {-10, -10, 10, 10, 10, false}, &main_window);
  plot.showForm();
  EXPECT_EQ(fromQt(label.accessibleName()), "a(x)=1234");
  EXPECT_EQ(label.sizeHint().height(), height);
}

TEST_F(Markup, StandsInMessagesAsItIs) {
  for (const char* language : {"ES", "EN"}) {
    SetCurrentLanguage(language);
    prepareGraphChange(program, 'a', &main_window);
    editor.showForm();
    control<QPushButton>(editor, "bAceptar").click();
    ASSERT_EQ(services.boxes.shown.size(), 1u);
    EXPECT_NE(services.boxes.shown[0].text.find("bx/b&amp;img"), std::string::npos)
        << services.boxes.shown[0].text;
    services.boxes.shown.clear();
  }
}

}  // namespace
}  // namespace zel::test
