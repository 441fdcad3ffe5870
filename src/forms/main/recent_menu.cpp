#include "forms/main/recent_menu.h"

#include <QDir>

#include "forms/form.h"
#include "platform/qt/one_line.h"

namespace zel {
namespace {

/// The user's own folder is "~"; what is too long is cut in the middle.
QString pathText(const std::string& path, const QFontMetrics& metrics) {
  constexpr int kWidestText = 60;  // of the widths of an average character
  QString text = inOneLine(QDir::toNativeSeparators(toQt(path)));
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
