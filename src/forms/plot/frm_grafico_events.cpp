// What the user does with mouse and keys in the plot window, as calls of its session.
#include <QAbstractButton>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>
#include <cstdlib>

#include "app/desktop.h"
#include "base/language.h"
#include "forms/plot/frm_grafico.h"
#include "forms/plot/picture_box.h"

namespace zel {
namespace {

Point twipsOf(QPointF pixels) { return {pixels.x() * kTwipsPerPixel, pixels.y() * kTwipsPerPixel}; }

MouseButton buttonOf(Qt::MouseButtons buttons) {
  if (buttons & Qt::LeftButton) return MouseButton::left;
  if (buttons & Qt::RightButton) return MouseButton::right;
  return buttons ? MouseButton::other : MouseButton::none;
}

}  // namespace

bool frmGrafico::eventFilter(QObject* watched, QEvent* event) {
  if (watched == inside_ && event->type() == QEvent::Resize) {
    is_resized_ = true;
    draws_soon_.start();
  }
  if (watched == picGrafico_ && picGrafico_Event(*event)) return true;
  return Form::eventFilter(watched, event);
}

bool frmGrafico::picGrafico_Event(QEvent& event) {
  switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      picGrafico_MouseDown(static_cast<const QMouseEvent&>(event));
      return true;
    case QEvent::MouseMove:
      picGrafico_MouseMove(static_cast<const QMouseEvent&>(event));
      return true;
    case QEvent::MouseButtonRelease:
      picGrafico_MouseUp(static_cast<const QMouseEvent&>(event));
      return true;
    case QEvent::Leave: session_.mouseLeft(); return false;
    case QEvent::Wheel: picGrafico_MouseWheel(static_cast<const QWheelEvent&>(event)); return true;
    case QEvent::KeyPress: return pressButtonOf(static_cast<const QKeyEvent&>(event));
    default: return false;
  }
}

void frmGrafico::picGrafico_MouseDown(const QMouseEvent& event) {
  session_.mouseDown(buttonOf(event.button()), twipsOf(event.position()));
}

void frmGrafico::picGrafico_MouseMove(const QMouseEvent& event) {
  session_.mouseMove(buttonOf(event.buttons()), twipsOf(event.position()));
}

void frmGrafico::picGrafico_MouseUp(const QMouseEvent& event) {
  session_.mouseUp(buttonOf(event.button()), twipsOf(event.position()));
}

void frmGrafico::picGrafico_MouseWheel(const QWheelEvent& event) {
  const int notches = wheel_.turn(event.angleDelta().y());
  for (int i = 0; i < std::abs(notches); ++i)
    session_.wheelTurned(notches > 0 ? Zoom::in : Zoom::out, twipsOf(event.position()));
}

void frmGrafico::picGrafico_KeyPress(char32_t key) { session_.keyPressed(key); }

void frmGrafico::keyPressEvent(QKeyEvent* event) {
  const auto code = event->text().toUcs4();
  if (pressButtonOf(*event)) return;
  if (event->key() == Qt::Key_Escape)
    picGrafico_KeyPress(27);
  else if (!code.isEmpty())
    picGrafico_KeyPress(code.first());
  else
    Form::keyPressEvent(event);
}

bool frmGrafico::pressButtonOf(const QKeyEvent& event) {
  if (event.matches(QKeySequence::Copy)) {
    session_.execute(PlotCommand::copiar_grafico);
    return true;
  }
  if (event.matches(QKeySequence::Print)) {
    session_.execute(PlotCommand::imprimir);
    return true;
  }
  if (event.modifiers() == (Qt::ControlModifier | Qt::ShiftModifier) && event.key() == Qt::Key_C) {
    session_.copyWithNumbers();
    return true;
  }
  if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return false;
  const bool steps = event.modifiers() & Qt::ShiftModifier;
  switch (event.key()) {
    case Qt::Key_Up: session_.execute(PlotCommand::arriba); return true;
    case Qt::Key_Down: session_.execute(PlotCommand::abajo); return true;
    case Qt::Key_Left:
      session_.execute(steps ? PlotCommand::recorrer_atras : PlotCommand::izquierda);
      return true;
    case Qt::Key_Right:
      session_.execute(steps ? PlotCommand::recorrer_adelante : PlotCommand::derecha);
      return true;
    case Qt::Key_PageUp: session_.activatePrevious(); return true;
    case Qt::Key_PageDown: session_.activateNext(); return true;
    case Qt::Key_F1: showHelp(); return true;
    default: return false;
  }
}

void frmGrafico::showHelp() {
  // Help topics are offered in Spanish only: this is meant.
  if (CurrentLanguage() == "ES") showApplicationHelp(program());
}

void frmGrafico::Toolbar1_ButtonClick(PlotCommand command) {
  leaveButton(toQt(keyOf(command)));
  session_.execute(command);
  toolsChanged();  // the button may look pressed though nothing has happened
}

void frmGrafico::CmdGrafAnterior_Click() {
  leaveButton("CmdGrafAnterior");
  session_.activatePrevious();
}

void frmGrafico::CmdGrafSiguiente_Click() {
  leaveButton("CmdGrafSiguiente");
  session_.activateNext();
}

void frmGrafico::CmdNumeros_Click() {
  leaveButton("CmdNumeros");
  session_.toggleNumbers();
}

void frmGrafico::leaveButton(const QString& name) {
  if (!findChild<QAbstractButton*>(name)->hasFocus()) picGrafico_->setFocus();
}

}  // namespace zel
