#include "forms/text_box.h"

#include <QKeyEvent>
#include <QLineEdit>

#include "platform/qt/one_line.h"

namespace zel {
namespace {

class TextBox : public QLineEdit {
 protected:
  /// Before a shortcut of the window with the same keys.
  bool event(QEvent* event) override {
    const bool asks = event->type() == QEvent::ShortcutOverride;
    if (!asks && event->type() != QEvent::KeyPress) return QLineEdit::event(event);
    if (static_cast<QKeyEvent*>(event)->keyCombination() != kAlsoRedo)
      return QLineEdit::event(event);
    if (!asks) redo();
    event->accept();
    return true;
  }
};

}  // namespace

QLineEdit* makeTextBox(const char* name) {
  auto* box = new TextBox;
  box->setObjectName(QString::fromLatin1(name));
  box->setValidator(new OneLine(box));
  return box;
}

}  // namespace zel
