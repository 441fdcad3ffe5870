#pragma once

#include <QComboBox>
#include <QMenu>
#include <QTabWidget>
#include <map>
#include <string>

#include "app/main_commands.h"
#include "base/language.h"
#include "forms/editor/colour_swatch.h"
#include "forms/editor/frm_adm_graficos.h"
#include "forms/window_fixture.h"
#include "support/patience.h"

namespace zel::test {

/// The graph editor, driven by the names of its controls.
class Editor : public WindowTest {
 protected:
  using Texts = std::map<std::string, std::string>;

  Editor() { program.engine.InitEngine(); }

  void openNew() {
    prepareNewGraph(program, &caller);
    open();
  }
  void openChange(char letter) {
    prepareGraphChange(program, letter, &caller);
    open();
  }

  QTabWidget& tabs() { return control<QTabWidget>(editor, "TabStrip1"); }
  void chooseKind(char kind) { tabs().setCurrentIndex(static_cast<int>(kEditorKinds.find(kind))); }
  char kind() { return kEditorKinds[static_cast<std::size_t>(tabs().currentIndex())]; }

  void chooseLetter(char letter) {
    control<QComboBox>(editor, "cboNombre").setCurrentText(QString(QLatin1Char(letter)));
  }
  std::string letter() { return fromQt(control<QComboBox>(editor, "cboNombre").currentText()); }

  QLineEdit& box(const char* name) { return control<QLineEdit>(editor, name); }
  std::string shown(const char* name) { return text(editor, name); }
  std::string labelText(const char* name) { return fromQt(control<QLabel>(editor, name).text()); }
  ColourSwatch& swatch() { return control<ColourSwatch>(editor, "FondoColor"); }

  void fill(const Texts& texts) {
    for (const auto& [name, value] : texts) box(name.c_str()).setText(toQt(value));
  }
  void accept() { QTest::mouseClick(&control<QPushButton>(editor, "bAceptar"), Qt::LeftButton); }
  /// Opens the editor for a new graph, fills it and accepts.
  void declare(char name, char kind, const Texts& texts) {
    openNew();
    chooseLetter(name);
    chooseKind(kind);
    fill(texts);
    accept();
  }

  /// What is the cause in the only message box; anything else is a failed test.
  std::string cause() {
    if (services.boxes.shown.size() != 1) return "not one box";
    const FakeMessageBoxes::Box box = services.boxes.shown.front();
    services.boxes.shown.clear();
    const bool english = CurrentLanguage() == "EN";
    const std::string opening = english ? "Cannot perform requested action.\r\nReason: "
                                        : "No se puede realizar la operación.\r\nCausa: ";
    EXPECT_EQ(box.title, english ? "ZEL - Error report" : "ZEL - Reporte de errores");
    EXPECT_EQ(box.style, BoxStyle::stop);
    EXPECT_TRUE(box.text.starts_with(opening)) << box.text;
    return box.text.substr(std::min(opening.size(), box.text.size()));
  }

  std::string focused() {
    const QWidget* const focus = editor.focusWidget();
    return focus ? fromQt(focus->objectName()) : std::string();
  }

  GraphDef graph(char name) { return *program.graphs.graph(name); }

  NotedWindow caller;
  frmAdmGraficos editor{program};

 private:
  void open() {
    editor.showForm();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&editor, kPatience));
  }
};

}  // namespace zel::test
