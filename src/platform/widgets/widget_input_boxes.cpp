#include "platform/widgets/widget_input_boxes.h"

#include <QApplication>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>

#include "platform/qt/one_line.h"
#include "platform/widgets/qt_texts.h"
#include "platform/widgets/widget_message_boxes.h"

namespace zel {
namespace {

constexpr int kBesideTitle = 100;  // pixels: an icon and the buttons of a frame

}  // namespace

std::optional<std::string> WidgetInputBoxes::ask(const std::string& prompt,
                                                 const std::string& title) {
  // The box goes away with the window below it, wherever that may be taken down.
  const QPointer<QInputDialog> box = new QInputDialog(QApplication::activeWindow());
  box->setWindowTitle(QString::fromStdString(title));
  box->setLabelText(QString());  // makes the label, which must not take a text for markup
  for (QLabel* const label : box->findChildren<QLabel*>()) label->setTextFormat(Qt::PlainText);
  box->setLabelText(QString::fromStdString(boxText(prompt)));
  box->setOkButtonText(inLanguage("Aceptar", "OK"));
  box->setCancelButtonText(inLanguage("Cancelar", "Cancel"));
  const int title_width = box->fontMetrics().horizontalAdvance(box->windowTitle());
  for (QLineEdit* const line : box->findChildren<QLineEdit*>()) {
    line->setValidator(new OneLine(line));
    line->setMinimumWidth(title_width + kBesideTitle);
  }
  const bool accepted = box->exec() == QDialog::Accepted;
  std::optional<std::string> typed;
  if (box && accepted) typed = box->textValue().toStdString();
  delete box;
  return typed;
}

}  // namespace zel
