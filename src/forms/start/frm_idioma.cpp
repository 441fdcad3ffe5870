#include "forms/start/frm_idioma.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "base/language.h"

namespace zel {
namespace {

constexpr std::array<const char*, 2> kCodes = {"ES", "EN"};

}  // namespace

frmIdioma::frmIdioma(Program& program)
    : Form(program, "frmIdioma"), question_(new QLabel), cmdAceptar_(new QPushButton) {
  auto* centre = new QWidget;
  auto* column = new QVBoxLayout(centre);
  column->setContentsMargins(32, 24, 32, 24);
  column->setSpacing(12);
  column->addWidget(question_);
  for (std::size_t i = 0; i < optIdioma_.size(); ++i) {
    optIdioma_[i] = new QRadioButton;
    optIdioma_[i]->setObjectName("optIdioma" + QString::number(i));
    connect(optIdioma_[i], &QRadioButton::clicked, this, [this, i] { optIdioma_Click(i); });
    column->addWidget(optIdioma_[i]);
  }
  cmdAceptar_->setObjectName("cmdAceptar");
  cmdAceptar_->setDefault(true);
  connect(cmdAceptar_, &QPushButton::clicked, this, &frmIdioma::cmdAceptar_Click);
  column->addWidget(cmdAceptar_, 0, Qt::AlignRight);
  setCentralWidget(centre);
  optIdioma_[CurrentLanguage() == "EN" ? 1 : 0]->setChecked(true);
  assignCaptions();
}

void frmIdioma::assignCaptions() {
  setWindowTitle(caption("ZEL - Idioma", "ZEL - Language"));
  question_->setText(caption("Elija el idioma del programa:", "Choose the program's language:"));
  optIdioma_[0]->setText(caption("&Español", "&Spanish (Español)"));
  optIdioma_[1]->setText(caption("&Inglés (English)", "&English"));
  cmdAceptar_->setText(caption("&Aceptar", "&OK"));
}

void frmIdioma::optIdioma_Click(std::size_t index) {
  SetCurrentLanguage(kCodes[index]);
  ApplyLanguage();
}

void frmIdioma::cmdAceptar_Click() {
  SetCurrentLanguage(kCodes[optIdioma_[1]->isChecked() ? 1 : 0]);
  const bool goes_on = carryOutStart(program(), [this] {
    acceptLanguage(program());
    hide();
    accepted();
  });
  if (!goes_on) program().end_process();
}

void frmIdioma::closeEvent(QCloseEvent* event) {
  event->accept();
  refused();
}

void frmIdioma::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
    cmdAceptar_Click();
  else if (event->key() == Qt::Key_Escape)
    close();
  else
    Form::keyPressEvent(event);
}

}  // namespace zel
