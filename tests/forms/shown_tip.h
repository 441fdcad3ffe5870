#pragma once

#include <QString>
#include <QTextDocument>
#include <string>

namespace zel::test {

/// What a tool tip with this text shows, without the breaks that fold it.
inline std::string shownTip(const QString& tip) {
  QTextDocument shown;
  if (Qt::mightBeRichText(tip))
    shown.setHtml(tip);
  else
    shown.setPlainText(tip);
  return shown.toPlainText().remove(u'\n').toStdString();
}

}  // namespace zel::test
