#pragma once

#include <QElapsedTimer>
#include <QTimer>

#include "app/output/picture_export.h"
#include "forms/form.h"

class QComboBox;
class QDoubleSpinBox;
class QFormLayout;
class QLabel;
class QPushButton;
class QSpinBox;

namespace zel {

class PicturePreview;

/// The window that writes the plot of the main window's range into a picture file: its format, size
/// and scale, and a look at it before.
class frmExportar : public Form {
  Q_OBJECT

 public:
  explicit frmExportar(Program& program);

  void assignCaptions() override;

 protected:
  /// Takes the view that the plot window would open with.
  void takeArguments() override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void buildControls();
  QFormLayout* buildChoices();
  void connectControls();
  ExportChoice choice() const;
  /// Tells how large the picture becomes, or that it would be too large.
  void tellSize();
  /// After another size was chosen: draws the preview soon.
  void choiceChanged();
  void drawPreview();
  /// Lets pending events run now and then, as long as this drawing is the one that is wanted.
  DrawingWatcher watch(int mine);
  void tellProgress(const StatusPanels& status);
  void setSaving(bool saving);
  void cmdGuardar_Click();
  void cmdCancelar_Click();

  PicturePreview* VistaPrevia_;
  QComboBox* cboFormato_;
  QSpinBox* spnAncho_;
  QSpinBox* spnAlto_;
  QDoubleSpinBox* spnEscala_;
  QLabel* LblFormato_;
  QLabel* LblAncho_;
  QLabel* LblAlto_;
  QLabel* LblEscala_;
  QLabel* LblMedidas_;
  QLabel* LblEstado_;
  QPushButton* cmdGuardar_;
  QPushButton* cmdCancelar_;
  OpenedView opened_;
  QTimer draws_soon_;
  QElapsedTimer since_begin_;   // of the drawing
  QElapsedTimer since_events_;  // have run in it
  int wanted_ = 0;              // the number of the drawing that is wanted; any other gives up
  bool is_drawing_ = false;     // the preview
  bool is_saving_ = false;
};

}  // namespace zel
