#include "forms/button_mnemonics.h"

#include <QAbstractButton>
#include <QMainWindow>
#include <QMenuBar>
#include <QShortcutEvent>

namespace zel {
namespace {

class ButtonMnemonics : public QObject {
 public:
  explicit ButtonMnemonics(QMainWindow& window) : QObject(&window), window_(window) {}

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::Shortcut) return QObject::eventFilter(watched, event);
    const auto* shortcut = static_cast<QShortcutEvent*>(event);
    if (!shortcut->isAmbiguous()) return false;
    for (QAbstractButton* button : window_.findChildren<QAbstractButton*>()) {
      if (button->shortcut() != shortcut->key() || !button->isVisible() || !button->isEnabled())
        continue;
      button->animateClick();
      return true;
    }
    return false;
  }

 private:
  QMainWindow& window_;
};

}  // namespace

void preferButtonMnemonics(QMainWindow& window) {
  auto* filter = new ButtonMnemonics(window);
  window.menuBar()->installEventFilter(filter);
  for (QAbstractButton* button : window.findChildren<QAbstractButton*>())
    button->installEventFilter(filter);
}

}  // namespace zel
