#include "forms/accessible_graphic.h"

#include <QAccessibleWidget>

namespace zel {

void showAsGraphic(QWidget& widget) {
  // Accessibility owns it, and drops it with the widget.
  QAccessible::registerAccessibleInterface(new QAccessibleWidget(&widget, QAccessible::Graphic));
}

}  // namespace zel
