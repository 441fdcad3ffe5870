// The graph editor at work: how it opens, what its commands do and how it closes.
#include "forms/editor/frm_adm_graficos.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTabWidget>

#include "forms/editor/colour_swatch.h"
#include "forms/editor/editor_fields.h"
#include "forms/editor/editor_pages.h"
#include "forms/text_box.h"

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
  changed_ = start.changes ? std::optional(start.letter) : std::nullopt;
  setWindowTitle(toQt(editorTitle(start.changes)));
  markLettersInUse();
  cboNombre_->setCurrentIndex(start.letter - 'a');
  FondoColor_->setColour(start.colour);
  clearFields();
  setFields(start.fields);
  TabStrip1_->setCurrentIndex(static_cast<int>(kEditorKinds.find(start.kind)));
  last_formula_ = nullptr;
  GraphFields opened = start.fields;
  box(placesOf(opened).front().control)->setFocus(Qt::OtherFocusReason);
  updateHints();
  for (int i = 0; i < TabStrip1_->count(); ++i) makeRoom(*TabStrip1_->widget(i));
  layOverCaller();
}

void frmAdmGraficos::bAceptar_Click() {
  if (acceptEdited(program(), letter(), FondoColor_->colour(), fields()))
    returnToCaller();
  else
    goToFault();
}

void frmAdmGraficos::bCancelar_Click() { close(); }

void frmAdmGraficos::FondoColor_Click() {
  const auto colour = program().services.colours.askColour(FondoColor_->colour());
  if (!colour) return;
  FondoColor_->setColour(*colour);
  updateHints();
}

void frmAdmGraficos::cboNombre_Click() {
  for (const char kind : {'F', 'Z'}) {
    const QString name = QStringLiteral("Lbl%1").arg(QLatin1Char(kind));
    findChild<QLabel*>(name)->setText(toQt(formulaHeader(letter(), kind)));
  }
}

void frmAdmGraficos::TabStrip1_Click() {
  mInsertarFuncion_->setEnabled(!formulaControls(kind()).empty());
  movePreview();
}

void frmAdmGraficos::mInsertarFuncion_Click(const std::string& name) {
  QLineEdit* const formula = formulaBox();
  if (!formula) return;
  if (selection_.start >= 0) formula->setSelection(selection_.start, selection_.length);
  selection_ = {};
  const Insertion insertion = functionInsertion(name, fromQt(formula->selectedText()));
  formula->insert(toQt(insertion.text));
  formula->setFocus(Qt::OtherFocusReason);
  formula->cursorBackward(false, static_cast<int>(insertion.caret_back));
}

/// It is hidden: of a window that is closed the toolkit would keep something each time.
void frmAdmGraficos::closeEvent(QCloseEvent* event) {
  event->ignore();
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
  if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
    followFormula(*static_cast<QLineEdit*>(watched), *static_cast<QFocusEvent*>(event));
  return Form::eventFilter(watched, event);
}

/// A box forgets its selection when the menu bar takes the focus; it gets it back.
void frmAdmGraficos::followFormula(QLineEdit& formula, const QFocusEvent& event) {
  const bool is_menu = event.reason() == Qt::MenuBarFocusReason;
  if (event.gotFocus()) {
    last_formula_ = &formula;
    if (is_menu && selection_.start >= 0) formula.setSelection(selection_.start, selection_.length);
    selection_ = {};
  } else if (is_menu) {
    selection_ = {formula.selectionStart(), formula.selectionLength()};
  }
}

}  // namespace zel
