#include "windows/frm_imprimir.h"

#include <QCloseEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace zel {

frmImprimir::frmImprimir(Program& program)
    : Form(program, "frmImprimir"),
      FraVistaPrevia_(new QGroupBox),
      LblMensaje_(new QLabel),
      cmdImprimir_(new QPushButton),
      cmdSalir_(new QPushButton) {
  FraVistaPrevia_->setObjectName("FraVistaPrevia");
  LblMensaje_->setObjectName("LblMensaje");
  cmdImprimir_->setObjectName("cmdImprimir");
  cmdSalir_->setObjectName("cmdSalir");
  cmdImprimir_->setEnabled(false);  // until a preview is there
  auto* preview = new QVBoxLayout(FraVistaPrevia_);
  preview->addWidget(LblMensaje_, 0, Qt::AlignCenter);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(cmdImprimir_);
  buttons->addWidget(cmdSalir_);
  auto* centre = new QWidget;
  auto* column = new QVBoxLayout(centre);
  column->addWidget(FraVistaPrevia_, 1);
  column->addLayout(buttons);
  setCentralWidget(centre);
  connect(cmdSalir_, &QPushButton::clicked, this, [this] { returnToCaller(); });
  assignCaptions();
}

void frmImprimir::assignCaptions() {
  setWindowTitle(caption("Imprimir Gráfico", "Print graphics"));
  cmdImprimir_->setText(caption("&Imprimir", "&Print"));
  cmdSalir_->setText(caption("&Cerrar", "&Close"));
  FraVistaPrevia_->setTitle(caption("Vista Previa", "Preview"));
  LblMensaje_->setText(caption("Inicializando...", "initializing..."));
}

void frmImprimir::showForm() {
  if (program().params.Exists("imprimir")) Form::showForm();
}

void frmImprimir::closeEvent(QCloseEvent* event) {
  event->ignore();
  returnToCaller();
}

}  // namespace zel
