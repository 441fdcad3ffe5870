#include "forms/application.h"

namespace zel {

bool Application::notify(QObject* receiver, QEvent* event) {
  try {
    return QApplication::notify(receiver, event);
  } catch (...) {
    tellFailure();
    return true;
  }
}

bool Application::event(QEvent* event) {
  if (event->type() != QEvent::Quit) return QApplication::event(event);
  quits();
  return true;
}

void Application::tellFailure() {
  if (is_telling_) return;
  is_telling_ = true;
  try {
    failed();
  } catch (...) {
    // There is no memory even for the message.
  }
  is_telling_ = false;
}

}  // namespace zel
