#pragma once

#include <QString>
#include <QValidator>

namespace zel {

/// A text without line breaks and other control characters.
QString inOneLine(QString text);

/// Keeps a text box to one line of plain characters: line breaks and other control characters are
/// taken out of whatever comes into it, typed, pasted, dropped or set. It refuses nothing else.
class OneLine : public QValidator {
 public:
  using QValidator::QValidator;

  State validate(QString& text, int& cursor) const override;
};

}  // namespace zel
