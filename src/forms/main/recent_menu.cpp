#include "forms/main/recent_menu.h"

#include <QDir>

#include "forms/form.h"
#include "platform/qt/one_line.h"

namespace zel {
namespace {

/// What only turns the direction in which its neighbours are shown: in its company a name can look
/// as if it ended otherwise.
bool turnsDirection(QChar character) {
  const char16_t code = character.unicode();
  return code == 0x061C || code == 0x200E || code == 0x200F || (code >= 0x202A && code <= 0x202E) ||
         (code >= 0x2066 && code <= 0x2069);
}

/// The text in the order of its letters; where a character is not shown, it is seen that there is
/// one.
QString inItsOrder(QString text) {
  for (QChar& character : text)
    if (turnsDirection(character)) character = QChar::ReplacementCharacter;
  return text;
}

/// The user's own folder is "~"; what is too long is cut in the middle.
QString pathText(const std::string& path, const QFontMetrics& metrics) {
  constexpr int kWidestText = 60;  // of the widths of an average character
  QString text = inItsOrder(inOneLine(QDir::toNativeSeparators(toQt(path))));
  const QString home = QDir::toNativeSeparators(QDir::homePath() + "/");
  if (text.startsWith(home)) text.replace(0, home.size() - 1, "~");
  return metrics.elidedText(text, Qt::ElideMiddle, metrics.averageCharWidth() * kWidestText);
}

}  // namespace

void RecentMenu::showDocuments(const std::vector<std::string>& paths) {
  clear();
  int number = 0;
  for (const std::string& path : paths) {
    const QString text = pathText(path, fontMetrics()).replace("&", "&&");
    const QString key = ++number < 10 ? QString("&%1").arg(number) : QString::number(number);
    QAction* const action = addAction(key + "  " + text);
    connect(action, &QAction::triggered, this, [this, path] { emit documentChosen(path); });
  }
  menuAction()->setEnabled(!paths.empty());
}

}  // namespace zel
