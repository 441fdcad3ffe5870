#pragma once

#include <QLabel>
#include <QPushButton>

namespace zel {

/// Controls without a caption yet, known by their names.
inline QPushButton* makeButton(const char* name) {
  auto* button = new QPushButton;
  button->setObjectName(QString::fromLatin1(name));
  return button;
}

/// The label's mnemonic goes to its buddy.
inline QLabel* makeLabel(const char* name, QWidget* buddy) {
  auto* label = new QLabel;
  label->setObjectName(QString::fromLatin1(name));
  label->setBuddy(buddy);
  return label;
}

}  // namespace zel
