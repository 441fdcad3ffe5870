#include "forms/print/frm_imprimir.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include "app/printing.h"
#include "forms/plot/picture_box.h"
#include "forms/print/page_view.h"
#include "forms/print/printed_window.h"
#include "pictures/picture_size.h"
#include "platform/qt/bitmap_image.h"
#include "platform/qt/number_painter.h"

namespace zel {
namespace {

constexpr QSize kFirstSize(620, 640);  // pixels

/// The window under "imprimir", if it is one with a picture.
PrintedWindow* printedWindow(const FormParams& params) {
  const FormValue value = params.Item("imprimir");
  auto* const window = std::get_if<FormWindow*>(&value);
  return window ? dynamic_cast<PrintedWindow*>(*window) : nullptr;
}

PaperSize sizeOf(const QImage& image) {
  const QSizeF pixels = image.deviceIndependentSize();
  return {pixels.width() * kTwipsPerPixel, pixels.height() * kTwipsPerPixel};
}

}  // namespace

frmImprimir::frmImprimir(Program& program)
    : Form(program, "frmImprimir"),
      FraVistaPrevia_(new QGroupBox),
      page_(new PageView),
      LblMensaje_(new QLabel),
      chkNumeros_(new QCheckBox),
      cmdImprimir_(new QPushButton),
      cmdSalir_(new QPushButton) {
  setWindowFlags(Qt::Dialog);
  setWindowModality(Qt::ApplicationModal);
  buildControls();
  connect(page_, &PageView::moved, this, [this] { place_ = page_->preview()->position(); });
  connect(chkNumeros_, &QCheckBox::clicked, this, &frmImprimir::chkNumeros_Click);
  connect(cmdImprimir_, &QPushButton::clicked, this, &frmImprimir::cmdImprimir_Click);
  connect(cmdSalir_, &QPushButton::clicked, this, [this] { returnToCaller(); });
  assignCaptions();
}

void frmImprimir::buildControls() {
  FraVistaPrevia_->setObjectName("FraVistaPrevia");
  LblMensaje_->setObjectName("LblMensaje");
  cmdImprimir_->setObjectName("cmdImprimir");
  cmdSalir_->setObjectName("cmdSalir");
  cmdImprimir_->setEnabled(false);
  for (QPushButton* button : {cmdImprimir_, cmdSalir_}) button->setAutoDefault(true);
  auto* preview = new QGridLayout(FraVistaPrevia_);
  preview->addWidget(page_, 0, 0);
  preview->addWidget(LblMensaje_, 0, 0, Qt::AlignCenter);
  auto* buttons = new QHBoxLayout;
  chkNumeros_->setObjectName("chkNumeros");
  buttons->addWidget(chkNumeros_);
  buttons->addStretch();
  buttons->addWidget(cmdImprimir_);
  buttons->addWidget(cmdSalir_);
  auto* centre = new QWidget;
  auto* column = new QVBoxLayout(centre);
  column->addWidget(FraVistaPrevia_, 1);
  column->addLayout(buttons);
  setCentralWidget(centre);
  resize(kFirstSize.boundedTo(screen()->availableSize() * 9 / 10));
}

void frmImprimir::assignCaptions() {
  setWindowTitle(caption("Imprimir Gráfico", "Print graphics"));
  chkNumeros_->setText(caption("Con &números", "With &numbers"));
  cmdImprimir_->setText(caption("&Imprimir", "&Print"));
  cmdSalir_->setText(caption("&Cerrar", "&Close"));
  FraVistaPrevia_->setTitle(caption("Vista Previa", "Preview"));
  LblMensaje_->setText(caption("Inicializando...", "initializing..."));
  page_->describeImage(
      caption("Gráfico en la página", "Graphic on the page"),
      caption("Se mueve con el ratón o con las flechas", "Moves with the mouse or the arrow keys"));
}

void frmImprimir::showForm() {
  if (!program().params.Exists("imprimir")) {
    hide();
    return;
  }
  printed_ = printedWindow(program().params);
  page_->clearPage();
  cmdImprimir_->setEnabled(false);
  LblMensaje_->show();
  Form::showForm();
  QCoreApplication::processEvents();  // the message is painted
  if (!isVisible()) return;           // it was closed meanwhile
  takePicture();
  showPreview();
  (cmdImprimir_->isEnabled() ? cmdImprimir_ : cmdSalir_)->setFocus();
}

void frmImprimir::takePicture() {
  image_ = printed_ ? printed_->picture().image() : QImage();
  drawing_ = printed_ ? printed_->picture().drawing() : DrawingList();
  if (!printed_ || !chkNumeros_->isChecked()) return;
  drawing_.layOver(printed_->numbers());
  QPainter painter(&image_);
  paintOver(painter, drawing_.layer(), QRectF(QPointF(), image_.deviceIndependentSize()));
}

void frmImprimir::showPreview() {
  auto preview = buildPreview(program().services.printer, sizeOf(image_));
  cmdImprimir_->setEnabled(preview.has_value());
  LblMensaje_->setVisible(!preview);
  if (preview) {
    if (place_) preview->moveTo(*place_);
    page_->showPage(*preview, image_);
  } else {
    page_->clearPage();
    tellNoPreview(program().services.boxes);
  }
}

void frmImprimir::chkNumeros_Click() {
  takePicture();
  showPreview();
}

void frmImprimir::cmdImprimir_Click() {
  const Services& services = program().services;
  const PrintPreview preview = *page_->preview();
  const PrintOutcome outcome =
      printAt(services.printer, services.boxes, preview, drawing_, toBitmap(image_));
  // The user may have chosen another printer, with other paper.
  if (outcome == PrintOutcome::printed) showPreview();
}

void frmImprimir::closeEvent(QCloseEvent* event) {
  event->ignore();
  returnToCaller();
}

void frmImprimir::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape)
    returnToCaller();
  else
    Form::keyPressEvent(event);
}

}  // namespace zel
