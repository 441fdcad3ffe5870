#pragma once

#include <QImage>
#include <optional>

#include "app/output/printing.h"
#include "forms/form.h"
#include "pictures/drawing_list.h"

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QPushButton;

namespace zel {

class PageView;
class PrintedWindow;

/// The print preview: the plot window's picture on a scaled page, where it can be dragged to its
/// place.
class frmImprimir : public Form {
  Q_OBJECT

 public:
  explicit frmImprimir(Program& program);

  void assignCaptions() override;
  /// Takes the picture as it is now from the window under "imprimir"; without one there is nothing
  /// to print, and this window hides.
  void showForm() override;

 protected:
  void takeArguments() override { layOverCaller(); }
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void buildControls();
  QLayout* buildChoices();
  /// Lists the desktop's printers and "PDF", with what was chosen last chosen.
  void listPrinters();
  PrintTarget target() const;
  /// With its numbers, where that is chosen.
  void takePicture();
  /// Builds the preview of the picture that was taken, or tells that there is none.
  void showPreview();
  void cmdImprimir_Click();
  void chkNumeros_Click();
  void cboImpresora_Click();
  void chkAjustar_Click();

  QGroupBox* FraVistaPrevia_;
  PageView* page_;
  QLabel* LblMensaje_;
  QCheckBox* chkNumeros_;
  QLabel* LblImpresora_;
  QComboBox* cboImpresora_;
  QCheckBox* chkAjustar_;
  QPushButton* cmdImprimir_;
  QPushButton* cmdSalir_;
  PrintedWindow* printed_ = nullptr;
  QImage image_;
  DrawingList drawing_;         // what image_ shows
  std::optional<Point> place_;  // on the paper, where the user has put a picture last
  bool prefers_pdf_ = false;    // the user has chosen it last
};

}  // namespace zel
