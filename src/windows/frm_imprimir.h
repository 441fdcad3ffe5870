#pragma once

#include "windows/form.h"

class QGroupBox;
class QLabel;
class QPushButton;

namespace zel {

/// The print preview.
class frmImprimir : public Form {
  Q_OBJECT

 public:
  explicit frmImprimir(Program& program);

  void assignCaptions() override;
  /// Without a picture under "imprimir" there is nothing to print, and the window stays hidden.
  void showForm() override;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  QGroupBox* FraVistaPrevia_;
  QLabel* LblMensaje_;
  QPushButton* cmdImprimir_;
  QPushButton* cmdSalir_;
};

}  // namespace zel
