#include "forms/start/frm_acerca_de.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/desktop.h"
#include "app/presentation.h"
#include "forms/named_controls.h"

namespace zel {

frmAcercaDe::frmAcercaDe(Program& program)
    : Form(program, "frmAcercaDe"),
      what_(new QLabel),
      credits_(new QLabel),
      cmdPagina_(makeButton("cmdPagina")),
      cmdCorreo_(makeButton("cmdCorreo")),
      cmdCerrar_(makeButton("cmdCerrar")) {
  setWindowModality(Qt::ApplicationModal);
  auto* icon = new QLabel;
  icon->setPixmap(windowIconPixmap(64));
  auto* name = new QLabel(QString("<b>ZEL %1</b><br>%2").arg(kVersionText, kBuildText));
  auto* head = new QHBoxLayout;
  head->addWidget(icon);
  head->addSpacing(12);
  head->addWidget(name, 1);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(cmdPagina_);
  buttons->addWidget(cmdCorreo_);
  buttons->addStretch();
  buttons->addWidget(cmdCerrar_);
  auto* centre = new QWidget;
  auto* column = new QVBoxLayout(centre);
  column->setContentsMargins(24, 24, 24, 16);
  column->setSpacing(16);
  column->addLayout(head);
  column->addWidget(what_);
  column->addWidget(credits_);
  column->addLayout(buttons);
  setCentralWidget(centre);
  cmdCerrar_->setDefault(true);
  cmdCerrar_->setFocus();
  connect(cmdPagina_, &QPushButton::clicked, this,
          [this] { OpenWebPage(this->program().services.browser); });
  connect(cmdCorreo_, &QPushButton::clicked, this,
          [this] { SendMailToMaker(this->program().services.mail); });
  connect(cmdCerrar_, &QPushButton::clicked, this, [this] { returnToCaller(); });
  assignCaptions();
}

void frmAcercaDe::assignCaptions() {
  setWindowTitle(caption("Acerca de ZEL", "About ZEL"));
  what_->setText(caption("Graficador de funciones matemáticas", "Mathematical function grapher"));
  credits_->setText(
      caption("© 2026 los autores de ZEL. Licencia MIT.", "© 2026 the ZEL authors. MIT licence."));
  cmdPagina_->setText(caption("&Página web", "&Web page"));
  cmdCorreo_->setText(caption("C&orreo al autor", "&Mail to the maker"));
  cmdCerrar_->setText(caption("&Cerrar", "&Close"));
}

void frmAcercaDe::closeEvent(QCloseEvent* event) {
  event->ignore();
  returnToCaller();
}

void frmAcercaDe::keyPressEvent(QKeyEvent* event) {
  const int key = event->key();
  if (key == Qt::Key_Escape || key == Qt::Key_Return || key == Qt::Key_Enter)
    returnToCaller();
  else
    Form::keyPressEvent(event);
}

}  // namespace zel
