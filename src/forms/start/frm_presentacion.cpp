#include "forms/start/frm_presentacion.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

#include "base/language.h"
#include "platform/icons/program_icon.h"

namespace zel {
namespace {

constexpr QSize kFirstSize(360, 340);  // pixels; texts in a large font make it larger

QLabel* makeCentredLabel(const char* name) {
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
      inside_(new QFrame),
      Image1_(makeCentredLabel("Image1")),
      LblVersion_(makeCentredLabel("LblVersion")),
      LblQueEsZEL_(makeCentredLabel("LblQueEsZEL")),
      LblEstado_(makeCentredLabel("LblEstado")),
      bCerrar_(new QPushButton) {
  setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
  setWindowTitle("ZEL");
  resize(kFirstSize);
  fillInside();
  setCentralWidget(inside_);
  inside_->hide();
  for (QLabel* label : {Image1_, LblVersion_}) label->installEventFilter(this);
  connect(bCerrar_, &QPushButton::clicked, this, &frmPresentacion::closePresentation);
  Timer1_.setInterval(Presentation::kInterval);
  connect(&Timer1_, &QTimer::timeout, this, &frmPresentacion::Timer1_Timer);
  assignCaptions();
}

void frmPresentacion::fillInside() {
  bCerrar_->setObjectName("bCerrar");
  LblVersion_->setText(QString("ZEL ") + kVersionText);
  auto* credits = makeCentredLabel("LblCreditos");
  credits->setText("© 2026 ZEL · https://zel.example/");
  inside_->setFrameShape(QFrame::StyledPanel);
  auto* column = new QVBoxLayout(inside_);
  column->setContentsMargins(48, 32, 48, 24);
  column->setSpacing(12);
  for (QLabel* label : {Image1_, LblVersion_, LblQueEsZEL_, credits, LblEstado_})
    column->addWidget(label);
  column->addWidget(bCerrar_, 0, Qt::AlignCenter);
}

void frmPresentacion::showForm() {
  bCerrar_->setVisible(presentation_.showsCloseButton());
  Form::showForm();
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  if (Image1_->pixmap().isNull()) {
    Image1_->setPixmap(programIcon().pixmap(96));
    enlarge(*LblVersion_, 2);
  }
  inside_->show();
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
  const auto left_button = [event] {
    return static_cast<const QMouseEvent*>(event)->button() == Qt::LeftButton;
  };
  if (event->type() == QEvent::MouseButtonPress && left_button()) {
    pressed_ = watched;
    return true;  // only the label that takes a press is told of the release
  }
  if (event->type() == QEvent::MouseButtonRelease && left_button()) {
    const QPoint place = static_cast<const QMouseEvent*>(event)->position().toPoint();
    const bool on_label = static_cast<const QWidget*>(watched)->rect().contains(place);
    if (std::exchange(pressed_, nullptr) == watched && on_label) clicked(watched);
    return true;
  }
  return Form::eventFilter(watched, event);
}

void frmPresentacion::clicked(const QObject* label) {
  if (label == Image1_ || presentation_.versionClicked()) closePresentation();
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
