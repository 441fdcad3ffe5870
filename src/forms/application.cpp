#include "forms/application.h"

#include <QKeyEvent>
#include <QSessionManager>

namespace zel {
namespace {

bool isHeldEnter(const QEvent& event) {
  if (event.type() != QEvent::KeyPress) return false;
  const auto& press = static_cast<const QKeyEvent&>(event);
  return press.isAutoRepeat() && (press.key() == Qt::Key_Return || press.key() == Qt::Key_Enter);
}

}  // namespace

Application::Application(int& argument_count, char** arguments)
    : QApplication(argument_count, arguments) {
  connect(this, &QGuiApplication::saveStateRequest, this,
          [](QSessionManager& manager) { manager.setRestartHint(QSessionManager::RestartNever); });
}

bool Application::notify(QObject* receiver, QEvent* event) {
  if (isHeldEnter(*event)) return true;
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
