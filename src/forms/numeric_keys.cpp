#include "forms/numeric_keys.h"

#include <QKeyEvent>

#include "app/editor/key_filter.h"
#include "forms/form.h"
#include "forms/text_box.h"

namespace zel {
namespace {

QString noteOn(KeyRefusal refusal) {
  switch (refusal) {
    case KeyRefusal::none: return {};
    case KeyRefusal::minus_refused:
      return caption("Aquí no va un número negativo", "No negative number goes here");
    case KeyRefusal::second_minus:
      return caption("Ya hay un signo menos", "There is a minus sign already");
    case KeyRefusal::blank: return caption("Un número no lleva espacios", "A number has no blanks");
    case KeyRefusal::small_exponent:
      return caption("El exponente se escribe con E mayúscula: 2E3",
                     "The exponent is written with a capital E: 2E3");
    case KeyRefusal::exponent_first:
      return caption("La E va detrás de un número: 2E3", "The E comes after a number: 2E3");
    case KeyRefusal::second_exponent: return caption("Ya hay una E", "There is an E already");
    case KeyRefusal::second_separator:
      return caption("Ya hay un separador decimal", "There is a decimal separator already");
    case KeyRefusal::letter:
      return caption("Aquí va un número, sin letras", "A number goes here, without letters");
  }
  return {};
}

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
    const auto pressed = static_cast<char32_t>(characters.first());
    auto key = pressed;
    FilterNumericKey(key, fromQt(box_.text()), refuse_minus_);
    if (key == 0) noteBelow(box_, noteOn(refusalOf(pressed, fromQt(box_.text()), refuse_minus_)));
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
