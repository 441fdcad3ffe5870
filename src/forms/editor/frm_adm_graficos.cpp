// The graph editor at work: how it opens, what its commands do and how it closes.
#include "forms/editor/frm_adm_graficos.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTabWidget>

#include "forms/editor/colour_swatch.h"
#include "forms/editor/editor_fields.h"

namespace zel {

frmAdmGraficos::frmAdmGraficos(Program& program) : Form(program, "frmAdmGraficos") {
  setWindowFlags(Qt::Dialog);
  setWindowModality(Qt::ApplicationModal);
  buildMenus();
  buildControls();
  connectControls();
  applyCaptions();
  clearFields();
  TabStrip1_Click();
}

void frmAdmGraficos::takeArguments() {
  const EditorStart start = startEditor(program());
  changes_ = start.changes;
  setWindowTitle(toQt(editorTitle(changes_)));
  markLettersInUse();
  cboNombre_->setCurrentIndex(start.letter - 'a');
  FondoColor_->setColour(start.colour);
  clearFields();
  setFields(start.fields);
  TabStrip1_->setCurrentIndex(static_cast<int>(kEditorKinds.find(start.kind)));
  last_formula_ = nullptr;
  GraphFields opened = start.fields;
  box(placesOf(opened).front().control)->setFocus(Qt::OtherFocusReason);
  layOverCaller();
}

void frmAdmGraficos::bAceptar_Click() {
  if (acceptEdited(program(), letter(), FondoColor_->colour(), fields())) returnToCaller();
}

void frmAdmGraficos::bCancelar_Click() { close(); }

void frmAdmGraficos::FondoColor_Click() {
  const auto colour = program().services.colours.askColour(FondoColor_->colour());
  if (colour) FondoColor_->setColour(*colour);
}

void frmAdmGraficos::cboNombre_Click() {
  for (const char kind : {'F', 'Z'}) {
    const QString name = QStringLiteral("Lbl%1").arg(QLatin1Char(kind));
    findChild<QLabel*>(name)->setText(toQt(formulaHeader(letter(), kind)));
  }
}

void frmAdmGraficos::TabStrip1_Click() {
  mInsertarFuncion_->setEnabled(!formulaControls(kind()).empty());
}

void frmAdmGraficos::mInsertarFuncion_Click(const std::string& name) {
  QLineEdit* const formula = formulaBox();
  if (!formula) return;
  const Insertion insertion = functionInsertion(name);
  formula->deselect();  // what is selected stays
  formula->insert(toQt(insertion.text));
  formula->setFocus(Qt::OtherFocusReason);
  formula->cursorBackward(false, static_cast<int>(insertion.caret_back));
}

void frmAdmGraficos::closeEvent(QCloseEvent* event) {
  event->accept();
  if (isVisible()) returnToCaller();
}

void frmAdmGraficos::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
    bAceptar_Click();
  else if (event->key() == Qt::Key_Escape)
    bCancelar_Click();
  else
    Form::keyPressEvent(event);
}

bool frmAdmGraficos::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusIn) last_formula_ = static_cast<QLineEdit*>(watched);
  return Form::eventFilter(watched, event);
}

}  // namespace zel
