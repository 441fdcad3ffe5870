#include "platform/widgets/widget_colour_dialog.h"

#include <QApplication>
#include <QColorDialog>
#include <QPointer>

namespace zel {
namespace {

/// Red stands in the low byte; the highest byte does not count.
QColor colourOf(std::int32_t value) {
  return {value & 0xFF, (value >> 8) & 0xFF, (value >> 16) & 0xFF};
}

std::int32_t valueOf(const QColor& colour) {
  return colour.red() | (colour.green() << 8) | (colour.blue() << 16);
}

}  // namespace

std::optional<std::int32_t> WidgetColourDialog::askColour(std::int32_t initial) {
  // The dialog goes away with the window below it, wherever that may be taken down.
  const QPointer<QColorDialog> dialog =
      new QColorDialog(colourOf(initial), QApplication::activeWindow());
  dialog->setWindowTitle(QStringLiteral("Color"));
  const bool accepted = dialog->exec() == QDialog::Accepted;
  std::optional<std::int32_t> chosen;
  if (dialog && accepted) chosen = valueOf(dialog->selectedColor());
  delete dialog;
  return chosen;
}

}  // namespace zel
