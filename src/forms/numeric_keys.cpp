#include "forms/numeric_keys.h"

#include <QKeyEvent>
#include <QLineEdit>

#include "app/key_filter.h"
#include "forms/form.h"

namespace zel {
namespace {

class NumericKeys : public QObject {
 public:
  NumericKeys(QLineEdit& box, bool refuse_minus)
      : QObject(&box), box_(box), refuse_minus_(refuse_minus) {}

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return QObject::eventFilter(watched, event);
    const auto* key_event = static_cast<QKeyEvent*>(event);
    const bool is_command =
        key_event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const auto characters = key_event->text().toUcs4();
    if (is_command || characters.isEmpty()) return false;
    auto key = static_cast<char32_t>(characters.first());
    FilterNumericKey(key, fromQt(box_.text()), refuse_minus_);
    return key == 0;
  }

 private:
  QLineEdit& box_;
  bool refuse_minus_;
};

}  // namespace

void filterNumericKeys(QLineEdit& box, bool refuse_minus) {
  box.installEventFilter(new NumericKeys(box, refuse_minus));
}

}  // namespace zel
