#include "forms/export/frm_exportar.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QSpinBox>
#include <algorithm>

#include "app/messages.h"
#include "app/plot_arguments.h"
#include "base/language.h"
#include "forms/export/picture_preview.h"
#include "forms/export/scale_box.h"
#include "pictures/raster_picture.h"
#include "platform/qt/bitmap_image.h"

namespace zel {
namespace {

constexpr int kDrawsAfter = 150;   // milliseconds without another change
constexpr int kEventInterval = 5;  // milliseconds
constexpr int kTellsAfter = 300;   // milliseconds that a drawing takes before it is told of
constexpr QSize kFirstWindow(760, 480);

}  // namespace

frmExportar::frmExportar(Program& program)
    : Form(program, "frmExportar"),
      VistaPrevia_(new PicturePreview),
      cboFormato_(new QComboBox),
      spnAncho_(new QSpinBox),
      spnAlto_(new QSpinBox),
      spnEscala_(new ScaleBox),
      LblFormato_(new QLabel),
      LblAncho_(new QLabel),
      LblAlto_(new QLabel),
      LblEscala_(new QLabel),
      LblMedidas_(new QLabel),
      LblEstado_(new QLabel),
      cmdGuardar_(new QPushButton),
      cmdCancelar_(new QPushButton) {
  setWindowFlags(Qt::Dialog);
  setWindowModality(Qt::ApplicationModal);
  draws_soon_.setSingleShot(true);
  draws_soon_.setInterval(kDrawsAfter);
  buildControls();
  connectControls();
  assignCaptions();
}

void frmExportar::buildControls() {
  VistaPrevia_->setObjectName("VistaPrevia");
  LblMedidas_->setObjectName("LblMedidas");
  LblMedidas_->setWordWrap(true);
  LblEstado_->setObjectName("LblEstado");
  cmdGuardar_->setObjectName("cmdGuardar");
  cmdCancelar_->setObjectName("cmdCancelar");
  cmdGuardar_->setDefault(true);
  cmdCancelar_->setAutoDefault(true);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(LblEstado_, 1);
  buttons->addWidget(cmdGuardar_);
  buttons->addWidget(cmdCancelar_);
  auto* upper = new QHBoxLayout;
  upper->addWidget(VistaPrevia_, 1);
  upper->addLayout(buildChoices());
  auto* centre = new QWidget;
  auto* column = new QVBoxLayout(centre);
  column->addLayout(upper, 1);
  column->addLayout(buttons);
  setCentralWidget(centre);
  resize(kFirstWindow.boundedTo(screen()->availableSize() * 9 / 10));
}

QFormLayout* frmExportar::buildChoices() {
  const ExportChoice first;
  cboFormato_->setObjectName("cboFormato");
  for (const std::string_view ending : kExportEndings)
    cboFormato_->addItem(toQt(ending).toUpper(), toQt(ending));
  spnAncho_->setObjectName("spnAncho");
  spnAncho_->setRange(kLeastWidth, kLongestSide);
  spnAncho_->setValue(first.width);
  spnAlto_->setObjectName("spnAlto");
  spnAlto_->setRange(1, kLongestSide);
  spnAlto_->setValue(first.height);
  spnEscala_->setObjectName("spnEscala");
  spnEscala_->setRange(kLeastScale, kMostScale);
  spnEscala_->setSingleStep(kLeastScale);
  spnEscala_->setValue(first.scale);
  auto* form = new QFormLayout;
  form->addRow(LblFormato_, cboFormato_);
  form->addRow(LblAncho_, spnAncho_);
  form->addRow(LblAlto_, spnAlto_);
  form->addRow(LblEscala_, spnEscala_);
  form->addRow(LblMedidas_);
  return form;
}

void frmExportar::connectControls() {
  connect(&draws_soon_, &QTimer::timeout, this, &frmExportar::drawPreview);
  connect(VistaPrevia_, &PicturePreview::roomChanged, this, [this] { draws_soon_.start(); });
  connect(cboFormato_, &QComboBox::currentIndexChanged, this, &frmExportar::tellSize);
  for (QSpinBox* box : {spnAncho_, spnAlto_})
    connect(box, &QSpinBox::valueChanged, this, &frmExportar::choiceChanged);
  connect(spnEscala_, &QDoubleSpinBox::valueChanged, this, &frmExportar::tellSize);
  connect(cmdGuardar_, &QPushButton::clicked, this, &frmExportar::cmdGuardar_Click);
  connect(cmdCancelar_, &QPushButton::clicked, this, &frmExportar::cmdCancelar_Click);
}

void frmExportar::assignCaptions() {
  setWindowTitle(caption("Exportar imagen", "Export picture"));
  LblFormato_->setText(caption("Formato", "Format"));
  LblAncho_->setText(caption("Ancho (píxeles)", "Width (pixels)"));
  LblAlto_->setText(caption("Alto (píxeles)", "Height (pixels)"));
  LblEscala_->setText(caption("Escala", "Scale"));
  cmdGuardar_->setText(caption("&Guardar...", "&Save..."));
  cmdCancelar_->setText(caption("&Cancelar", "&Cancel"));
  cboFormato_->setAccessibleName(LblFormato_->text());
  spnAncho_->setAccessibleName(LblAncho_->text());
  spnAlto_->setAccessibleName(LblAlto_->text());
  spnEscala_->setAccessibleName(LblEscala_->text());
  spnEscala_->setToolTip(caption("Cuántas veces más grande se ve la imagen, con sus líneas",
                                 "How many times as large the picture is shown, with its lines"));
  VistaPrevia_->setAccessibleName(caption("Vista previa", "Preview"));
  tellSize();
}

void frmExportar::takeArguments() {
  layOverCaller();
  opened_ = {viewIn(program().params), program().marks};
  FormWindow* const caller = callerOf(program().params);
  // The window that comes back keeps its range as it was typed.
  program().params.removeAll();
  program().params.Add("llamador", caller);
  choiceChanged();
  cboFormato_->setFocus();
}

ExportChoice frmExportar::choice() const {
  return {fromQt(cboFormato_->currentData().toString()), spnAncho_->value(), spnAlto_->value(),
          spnEscala_->value()};
}

void frmExportar::tellSize() {
  const ExportChoice chosen = choice();
  const ExportedSize size = exportedSize(chosen);
  QString text = caption("La imagen sería demasiado grande.", "The picture would be too large.");
  if (isExported(chosen))
    text = QString("%1 × %2 ").arg(size.width).arg(size.height) +
           (size.in_pixels ? caption("píxeles", "pixels") : QString("mm"));
  LblMedidas_->setText(text);
  cmdGuardar_->setEnabled(isExported(chosen) && !is_saving_);
}

void frmExportar::choiceChanged() {
  tellSize();
  draws_soon_.start();
}

/// An older drawing ends at its next look, and this one waits for that.
void frmExportar::drawPreview() {
  if (is_saving_ || !isVisible()) return;
  const int mine = ++wanted_;
  if (is_drawing_) {
    draws_soon_.start();
    return;
  }
  const ExportChoice chosen = choice();
  const QSizeF room = VistaPrevia_->room();
  const double density =
      VistaPrevia_->devicePixelRatioF() *
      std::min({1.0, room.width() / chosen.width, room.height() / chosen.height});
  RasterPicture picture(qRound(chosen.width * density), qRound(chosen.height * density), density);
  is_drawing_ = true;
  const RedrawOutcome outcome = previewPicture(program(), opened_, chosen, picture, watch(mine));
  is_drawing_ = false;
  if (mine != wanted_) return;
  LblEstado_->clear();
  QImage image = toImage(picture.finish());
  image.setDevicePixelRatio(VistaPrevia_->devicePixelRatioF());
  if (outcome == RedrawOutcome::drawn)
    VistaPrevia_->showPicture(image);
  else
    VistaPrevia_->showText(toQt(Localize(redrawMessage(outcome))));
}

DrawingWatcher frmExportar::watch(int mine) {
  since_begin_.start();
  since_events_.start();
  return [this, mine](const StatusPanels& status) {
    if (since_events_.elapsed() >= kEventInterval) {
      if (since_begin_.elapsed() >= kTellsAfter) tellProgress(status);
      QCoreApplication::processEvents();
      since_events_.start();
    }
    return mine == wanted_;
  };
}

void frmExportar::tellProgress(const StatusPanels& status) {
  const QString text = toQt(status.first + status.second).trimmed();
  LblEstado_->setText(text.isEmpty() && is_saving_ ? caption("Guardando...", "Saving...") : text);
}

void frmExportar::setSaving(bool saving) {
  is_saving_ = saving;
  for (QWidget* control : {static_cast<QWidget*>(cboFormato_), static_cast<QWidget*>(spnAncho_),
                           static_cast<QWidget*>(spnAlto_), static_cast<QWidget*>(spnEscala_)})
    control->setEnabled(!saving);
  LblEstado_->clear();
  tellSize();
}

void frmExportar::cmdGuardar_Click() {
  if (is_saving_) return;
  const int mine = ++wanted_;
  const QPointer<QWidget> focus = focusWidget();
  const auto end = [&] {
    setSaving(false);
    if (focus) focus->setFocus();
  };
  ExportResult result;
  try {
    setSaving(true);
    result = exportPicture(program(), opened_, choice(), watch(mine));
  } catch (...) {  // for want of memory: it can be saved again
    end();
    draws_soon_.start();
    throw;
  }
  end();
  ShowAttention(program().services.boxes, result.message);
  if (result.written)
    returnToCaller();
  else
    draws_soon_.start();  // the preview that had to give way
}

/// Ends a drawing that is being saved, or else closes the window; nothing is written either way.
void frmExportar::cmdCancelar_Click() {
  ++wanted_;
  if (!is_saving_) returnToCaller();
}

void frmExportar::closeEvent(QCloseEvent* event) {
  event->ignore();
  cmdCancelar_Click();
}

void frmExportar::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape)
    cmdCancelar_Click();
  else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
    cmdGuardar_->click();
  else
    Form::keyPressEvent(event);
}

}  // namespace zel
