#pragma once

#include <QDoubleSpinBox>
#include <QLocale>

namespace zel {

/// Like all number boxes of the program, in both languages: "," is shown, and "." is taken for it.
class ScaleBox : public QDoubleSpinBox {
 public:
  ScaleBox() { setLocale(QLocale("es")); }

 protected:
  QValidator::State validate(QString& text, int& position) const override {
    text.replace('.', ',');
    return QDoubleSpinBox::validate(text, position);
  }
};

}  // namespace zel
