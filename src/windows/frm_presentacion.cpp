#include "windows/frm_presentacion.h"

#include <QEvent>
#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/language.h"

namespace zel {
namespace {

QLabel* makeLabel(const char* name) {
  auto* label = new QLabel;
  label->setObjectName(QString::fromLatin1(name));
  label->setAlignment(Qt::AlignCenter);
  return label;
}

void enlarge(QLabel& label, qreal factor) {
  QFont font = label.font();
  font.setPointSizeF(font.pointSizeF() * factor);
  font.setBold(true);
  label.setFont(font);
}

}  // namespace

frmPresentacion::frmPresentacion(Program& program)
    : Form(program, "frmPresentacion"),
      Image1_(makeLabel("Image1")),
      LblVersion_(makeLabel("LblVersion")),
      LblQueEsZEL_(makeLabel("LblQueEsZEL")),
      LblEstado_(makeLabel("LblEstado")),
      bCerrar_(new QPushButton) {
  setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
  setWindowTitle("ZEL");
  bCerrar_->setObjectName("bCerrar");
  Image1_->setPixmap(windowIconPixmap(96));
  LblVersion_->setText(QString("ZEL ") + kVersionText);
  enlarge(*LblVersion_, 2);
  auto* credits = makeLabel("LblCreditos");
  credits->setText("© 2026 ZEL · https://zel.example/");
  auto* centre = new QFrame;
  centre->setFrameShape(QFrame::StyledPanel);
  auto* column = new QVBoxLayout(centre);
  column->setContentsMargins(48, 32, 48, 24);
  column->setSpacing(12);
  for (QLabel* label : {Image1_, LblVersion_, LblQueEsZEL_, credits, LblEstado_})
    column->addWidget(label);
  column->addWidget(bCerrar_, 0, Qt::AlignCenter);
  setCentralWidget(centre);
  for (QLabel* label : {Image1_, LblVersion_}) label->installEventFilter(this);
  connect(bCerrar_, &QPushButton::clicked, this, &frmPresentacion::closePresentation);
  Timer1_.setInterval(Presentation::kInterval);
  connect(&Timer1_, &QTimer::timeout, this, &frmPresentacion::Timer1_Timer);
  assignCaptions();
}

void frmPresentacion::enableTimer() {
  presentation_.enableTimer(true);
  followTimer();
}

void frmPresentacion::assignCaptions() {
  shown_language_ = CurrentLanguage();
  LblQueEsZEL_->setText(toQt(Localize("Graficador de funciones matemáticas")));
  LblEstado_->setText(toQt(presentation_.statusText()));
  bCerrar_->setText(toQt(Localize("Cerrar")));
}

bool frmPresentacion::event(QEvent* event) {
  if (event->type() == QEvent::WindowActivate) activate();
  return Form::event(event);
}

void frmPresentacion::activate() {
  if (CurrentLanguage() != shown_language_) ApplyLanguage();
  presentation_.activated();
  bCerrar_->setVisible(presentation_.showsCloseButton());
}

void frmPresentacion::Timer1_Timer() {
  if (presentation_.tick()) closePresentation();
}

void frmPresentacion::keyPressEvent(QKeyEvent* event) {
  const auto characters = event->text().toUcs4();
  const char32_t key = characters.isEmpty() ? 0 : static_cast<char32_t>(characters.first());
  if (presentation_.keyPressed(key)) {
    closePresentation();
    return;
  }
  followTimer();
  LblEstado_->setText(toQt(presentation_.statusText()));
}

bool frmPresentacion::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonPress &&
      (watched == Image1_ || presentation_.versionClicked())) {
    closePresentation();
    return true;
  }
  return Form::eventFilter(watched, event);
}

void frmPresentacion::closePresentation() {
  presentation_.enableTimer(false);
  followTimer();
  hide();
  if (llamador_) llamador_->showForm();
}

void frmPresentacion::closeEvent(QCloseEvent* event) {
  event->ignore();
  closePresentation();
}

void frmPresentacion::followTimer() {
  if (presentation_.timerRuns() == Timer1_.isActive()) return;
  if (presentation_.timerRuns())
    Timer1_.start();
  else
    Timer1_.stop();
}

}  // namespace zel
