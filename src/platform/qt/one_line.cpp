#include "platform/qt/one_line.h"

namespace zel {
namespace {

/// Also the two line breaks of Unicode that are no control characters.
bool breaksLine(QChar character) {
  switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph: return true;
    default: return false;
  }
}

}  // namespace

QString inOneLine(QString text) { return text.removeIf(breaksLine); }

QValidator::State OneLine::validate(QString& text, int& cursor) const {
  cursor = static_cast<int>(inOneLine(text.first(cursor)).size());
  text = inOneLine(text);
  return Acceptable;
}

}  // namespace zel
