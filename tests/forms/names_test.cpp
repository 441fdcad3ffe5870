// Whoever cannot see the windows hears what can be clicked: everything of that kind has a name.
#include <QAbstractItemView>
#include <QComboBox>
#include <QMenu>
#include <QTabBar>
#include <QTextEdit>

#include "app/plot_arguments.h"
#include "forms/editor/frm_adm_graficos.h"
#include "forms/main/frm_datos_ini.h"
#include "forms/plot/frm_grafico.h"
#include "forms/print/frm_imprimir.h"
#include "forms/start/frm_acerca_de.h"
#include "forms/start/frm_idioma.h"
#include "forms/window_fixture.h"

namespace zel::test {
namespace {

class Names : public WindowTest {
 protected:
  static std::string name(QWidget& widget) {
    QAccessibleInterface* const interface = QAccessible::queryAccessibleInterface(&widget);
    return interface ? fromQt(interface->text(QAccessible::Name)) : "";
  }

  static bool canBeClicked(const QWidget& widget) {
    return qobject_cast<const QAbstractButton*>(&widget) ||
           qobject_cast<const QLineEdit*>(&widget) || qobject_cast<const QComboBox*>(&widget) ||
           qobject_cast<const QSlider*>(&widget) || qobject_cast<const QTextEdit*>(&widget) ||
           qobject_cast<const QAbstractItemView*>(&widget) || widget.focusPolicy() != Qt::NoFocus;
  }

  /// What belongs to another control, which has the name, or to the toolkit alone.
  static bool isInside(const QWidget& widget) {
    const QWidget* const parent = widget.parentWidget();
    return parent &&
           (qobject_cast<const QComboBox*>(parent) ||
            qobject_cast<const QAbstractScrollArea*>(parent) ||
            parent->inherits("QComboBoxPrivateContainer") || qobject_cast<const QTabBar*>(parent));
  }

  static void expectNames(QWidget& window) {
    const std::string language = std::string(CurrentLanguage()) + " " + fromQt(window.objectName());
    int clickable = 0;
    for (QWidget* const child : window.findChildren<QWidget*>()) {
      if (!canBeClicked(*child) || isInside(*child)) continue;
      ++clickable;
      EXPECT_NE(name(*child), "") << language << ": " << child->metaObject()->className() << " "
                                  << fromQt(child->objectName());
    }
    EXPECT_GT(clickable, 1) << language;
    for (const QAction* const action : window.findChildren<QAction*>()) {
      if (action->isSeparator() || action->objectName().isEmpty()) continue;
      EXPECT_FALSE(action->text().isEmpty()) << language << ": " << fromQt(action->objectName());
    }
    for (const QTabBar* const tabs : window.findChildren<QTabBar*>())
      for (int i = 0; i < tabs->count(); ++i) EXPECT_FALSE(tabs->tabText(i).isEmpty()) << language;
  }

  /// Shows a window in both languages and looks at it.
  void expectNamesInBothLanguages(Form& window) {
    for (const std::string code : {"ES", "EN"}) {
      SetCurrentLanguage(code);
      window.ApplyLanguage();
      window.show();
      QCoreApplication::processEvents();
      expectNames(window);
      window.hide();
    }
  }
};

TEST_F(Names, AreThereInTheMainWindow) {
  frmDatosIni window(program);
  window.load();
  expectNamesInBothLanguages(window);
}

TEST_F(Names, AreThereInTheGraphEditor) {
  frmAdmGraficos window(program);
  expectNamesInBothLanguages(window);
}

TEST_F(Names, AreThereInThePlotWindow) {
  frmGrafico window(program);
  addFunction('a', "x");
  addFunction('b', "-x");
  handViewOver(program.params, {-10, -10, 10, 10, 10, false}, nullptr);
  window.showForm();
  expectNamesInBothLanguages(window);
}

TEST_F(Names, AreThereInThePrintWindow) {
  frmImprimir window(program);
  expectNamesInBothLanguages(window);
}

TEST_F(Names, AreThereInTheSmallWindows) {
  frmIdioma language(program);
  expectNamesInBothLanguages(language);
  frmAcercaDe about(program);
  expectNamesInBothLanguages(about);
}

}  // namespace
}  // namespace zel::test
