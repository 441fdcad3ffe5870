#pragma once

#include <QWidget>
#include <string>

class QListWidget;
class QTextBrowser;

namespace zel {

/// The help viewer's window, "frmAyuda": the topics of a help file ("listaTemas") beside its text
/// ("txtAyuda"). It stands beside the program's windows and never keeps the program running.
class HelpWindow : public QWidget {
  Q_OBJECT

 public:
  HelpWindow();

  /// Shows a help text in Markdown, or in HTML when it begins with a tag. Its headings of the
  /// second level are the topics.
  void showText(const std::string& text);

  /// Says that a help file is missing.
  void showMissing(const std::string& name);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void ApplyLanguage();
  void listTopics();
  void goToTopic(int row);
  void comeToFront();

  QListWidget* topics_;
  QTextBrowser* text_;
};

}  // namespace zel
