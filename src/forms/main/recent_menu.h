#pragma once

#include <QMenu>
#include <string>
#include <vector>

namespace zel {

/// The documents that were used last, one a line by its path, each reached by its number.
class RecentMenu : public QMenu {
  Q_OBJECT

 public:
  explicit RecentMenu(QWidget* parent) : QMenu(parent) {}

  /// Without documents the menu cannot be opened.
  void showDocuments(const std::vector<std::string>& paths);

 signals:
  void documentChosen(const std::string& path);
};

}  // namespace zel
