#include "forms/text_box.h"

#include <QLineEdit>

#include "platform/qt/one_line.h"

namespace zel {

QLineEdit* makeTextBox(const char* name) {
  auto* box = new QLineEdit;
  box->setObjectName(QString::fromLatin1(name));
  box->setValidator(new OneLine(box));
  return box;
}

}  // namespace zel
