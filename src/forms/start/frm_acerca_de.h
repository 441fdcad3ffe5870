#pragma once

#include "forms/form.h"

class QLabel;
class QPushButton;

namespace zel {

/// The about box: version, credits, the program's page and a mail to its maker.
class frmAcercaDe : public Form {
  Q_OBJECT

 public:
  explicit frmAcercaDe(Program& program);

  void assignCaptions() override;

 protected:
  /// In the middle of its caller every time.
  void takeArguments() override {
    forgetPlace();
    layOverCaller();
  }
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QLabel* what_;
  QLabel* credits_;
  QPushButton* cmdPagina_;
  QPushButton* cmdCorreo_;
  QPushButton* cmdCerrar_;
};

}  // namespace zel
