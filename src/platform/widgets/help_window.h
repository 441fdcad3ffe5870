#pragma once

#include <QWidget>
#include <string>

#include "platform/widgets/help_files.h"

class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace zel {

class HelpPage;

/// The help viewer's window, "frmAyuda": the contents of a help file ("listaTemas") beside its text
/// ("txtAyuda"), over both the way back ("CmdAtras") and the search ("txtBuscar",
/// "CmdBuscarAnterior", "CmdBuscarSiguiente", "LblBuscar"). It stands beside the program's windows
/// and never keeps the program running.
class HelpWindow : public QWidget {
  Q_OBJECT

 public:
  HelpWindow();

  /// Shows a help file from its top. Its headings down to the third level are its contents.
  void showFile(const HelpFile& file);

  /// Says that a help file is missing.
  void showMissing(const std::string& name);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QWidget* makeBar();
  QWidget* makeSplitter();
  void addKeys();
  void connectParts();
  void ApplyLanguage();
  void listTopics();
  void showWhetherFound(bool found);
  void find(bool backwards);
  void findTyped();
  void comeToFront();

  QPushButton* CmdAtras_;
  QLineEdit* txtBuscar_;
  QPushButton* CmdBuscarAnterior_;
  QPushButton* CmdBuscarSiguiente_;
  QLabel* LblBuscar_;
  QListWidget* topics_;
  HelpPage* text_;
};

}  // namespace zel
