#include "forms/print/frm_imprimir.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QCoreApplication>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include "forms/plot/picture_box.h"
#include "forms/print/page_view.h"
#include "forms/print/printed_window.h"
#include "pictures/picture_size.h"
#include "platform/qt/bitmap_image.h"
#include "platform/qt/number_painter.h"

namespace zel {
namespace {

constexpr QSize kFirstPreview(620, 640);  // pixels

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
      LblImpresora_(new QLabel),
      cboImpresora_(new QComboBox),
      chkAjustar_(new QCheckBox),
      cmdImprimir_(new QPushButton),
      cmdSalir_(new QPushButton) {
  setWindowFlags(Qt::Dialog);
  setWindowModality(Qt::ApplicationModal);
  buildControls();
  connect(page_, &PageView::moved, this, [this] { place_ = page_->preview()->position(); });
  connect(chkNumeros_, &QCheckBox::clicked, this, &frmImprimir::chkNumeros_Click);
  connect(cboImpresora_, &QComboBox::activated, this, &frmImprimir::cboImpresora_Click);
  connect(chkAjustar_, &QCheckBox::clicked, this, &frmImprimir::chkAjustar_Click);
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
  cmdImprimir_->setDefault(true);
  cmdSalir_->setAutoDefault(true);
  auto* preview = new QGridLayout(FraVistaPrevia_);
  preview->addWidget(page_, 0, 0);
  preview->addWidget(LblMensaje_, 0, 0, Qt::AlignCenter);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(cmdImprimir_);
  buttons->addWidget(cmdSalir_);
  auto* centre = new QWidget;
  auto* column = new QVBoxLayout(centre);
  column->addWidget(FraVistaPrevia_, 1);
  column->addLayout(buildChoices());
  column->addLayout(buttons);
  setCentralWidget(centre);
  resize(kFirstPreview.boundedTo(screen()->availableSize() * 9 / 10));
}

QLayout* frmImprimir::buildChoices() {
  LblImpresora_->setObjectName("LblImpresora");
  LblImpresora_->setBuddy(cboImpresora_);
  cboImpresora_->setObjectName("cboImpresora");
  cboImpresora_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  cboImpresora_->setMinimumContentsLength(18);
  chkNumeros_->setObjectName("chkNumeros");
  chkAjustar_->setObjectName("chkAjustar");
  auto* row = new QHBoxLayout;
  row->addWidget(LblImpresora_);
  row->addWidget(cboImpresora_, 1);
  row->addSpacing(12);
  row->addWidget(chkNumeros_);
  row->addWidget(chkAjustar_);
  return row;
}

void frmImprimir::assignCaptions() {
  setWindowTitle(caption("Imprimir Gráfico", "Print graphics"));
  chkNumeros_->setText(caption("Con &números", "With &numbers"));
  cmdImprimir_->setText(caption("&Imprimir", "&Print"));
  cmdSalir_->setText(caption("&Cerrar", "&Close"));
  FraVistaPrevia_->setTitle(caption("Vista Previa", "Preview"));
  LblMensaje_->setText(caption("Inicializando...", "initializing..."));
  LblImpresora_->setText(caption("Impresora:", "Printer:"));
  cboImpresora_->setAccessibleName(caption("Impresora", "Printer"));
  chkAjustar_->setText(caption("Ajustar a la página", "Fit to page"));
  chkAjustar_->setToolTip(caption("Reduce un gráfico más grande que la página",
                                  "Makes a picture smaller that is larger than the page"));
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
  listPrinters();
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

void frmImprimir::listPrinters() {
  Printer& printer = program().services.printer;
  cboImpresora_->clear();
  for (const std::string& name : printer.names()) cboImpresora_->addItem(toQt(name));
  const bool has_printers = cboImpresora_->count() > 0;
  if (has_printers) cboImpresora_->insertSeparator(cboImpresora_->count());
  cboImpresora_->addItem("PDF");
  const int chosen = cboImpresora_->findText(toQt(printer.chosen()), Qt::MatchExactly);
  const bool takes_pdf = prefers_pdf_ || !has_printers || chosen < 0;
  cboImpresora_->setCurrentIndex(takes_pdf ? cboImpresora_->count() - 1 : chosen);
}

/// A printer may be named "PDF", too: ours is the last one.
PrintTarget frmImprimir::target() const {
  return cboImpresora_->currentIndex() == cboImpresora_->count() - 1 ? PrintTarget::pdf
                                                                     : PrintTarget::printer;
}

void frmImprimir::showPreview() {
  auto preview = buildPreview(program().services.printer, target(), sizeOf(image_));
  cmdImprimir_->setEnabled(preview.has_value());
  LblMensaje_->setVisible(!preview);
  chkAjustar_->setEnabled(preview && preview->isLarger());
  if (preview) {
    preview->setFitted(chkAjustar_->isChecked());
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

void frmImprimir::cboImpresora_Click() {
  prefers_pdf_ = target() == PrintTarget::pdf;
  if (!prefers_pdf_) program().services.printer.choose(fromQt(cboImpresora_->currentText()));
  showPreview();
}

void frmImprimir::chkAjustar_Click() {
  place_.reset();
  page_->fitPicture(chkAjustar_->isChecked());
}

void frmImprimir::cmdImprimir_Click() {
  const PrintPreview preview = *page_->preview();
  const PrintOutcome outcome = printAt(program().services, target(), preview, drawing_,
                                       toBitmap(image_), besideDocument(program(), "pdf"));
  if (outcome != PrintOutcome::printed || target() == PrintTarget::pdf) return;
  // The user may have chosen another printer, with other paper.
  listPrinters();
  showPreview();
}

void frmImprimir::closeEvent(QCloseEvent* event) {
  event->ignore();
  returnToCaller();
}

void frmImprimir::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape)
    returnToCaller();
  else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
    cmdImprimir_->click();
  else
    Form::keyPressEvent(event);
}

}  // namespace zel
