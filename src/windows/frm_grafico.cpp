#include "windows/frm_grafico.h"

#include <QCloseEvent>
#include <QScreen>
#include <QToolBar>
#include <algorithm>
#include <utility>

#include "app/messages.h"
#include "app/plot_arguments.h"
#include "base/number_text.h"
#include "windows/panel_bar.h"
#include "windows/picture_box.h"

namespace zel {
namespace {

constexpr QSize kFirstPicture(800, 600);  // pixels
constexpr int kMargin = 8;                // pixels around the picture

}  // namespace

frmGrafico::frmGrafico(Program& program)
    : Form(program, "frmGrafico"),
      inside_(new QWidget),
      picGrafico_(new PictureBox(inside_)),
      Toolbar1_(new QToolBar),
      StatusBar1_(new PanelBar("StatusBar1")),
      screen_(*picGrafico_, *StatusBar1_),
      session_(program.engine, program.graphs, *picGrafico_, screen_, *this) {
  buildControls();
  connectControls();
  assignCaptions();
}

void frmGrafico::buildControls() {
  setContextMenuPolicy(Qt::PreventContextMenu);
  Toolbar1_->setObjectName("Toolbar1");
  Toolbar1_->setMovable(false);
  addToolBar(Toolbar1_);
  Toolbar1_->hide();
  setStatusBar(StatusBar1_);
  setCentralWidget(inside_);
  picGrafico_->setObjectName("picGrafico");
  picGrafico_->setGeometry(QRect(QPoint(kMargin, kMargin), kFirstPicture));
  const QSize wanted =
      kFirstPicture + QSize(2 * kMargin, 2 * kMargin + StatusBar1_->sizeHint().height());
  resize(wanted.boundedTo(screen()->availableSize() * 9 / 10));
  session_.resize(PictureSize::ofPixels(kFirstPicture.width(), kFirstPicture.height()));
}

void frmGrafico::connectControls() {
  inside_->installEventFilter(this);
  connect(picGrafico_, &PictureBox::KeyPress, this, &frmGrafico::picGrafico_KeyPress);
  connect(picGrafico_, &PictureBox::resolutionChanged, this, [this] { session_.redraw(); });
  connect(picGrafico_, &PictureBox::graphBegun, this,
          [this](char letter) { program().active_graph = letter; });
  draws_soon_.setSingleShot(true);
  connect(&draws_soon_, &QTimer::timeout, this, &frmGrafico::Form_Resize);
}

void frmGrafico::assignCaptions() {
  setWindowTitle(caption("ZEL - Gráficos", "ZEL - Graphics"));
  picGrafico_->setAccessibleName(caption("Gráfico de funciones", "Function graphic"));
  describePicture();
}

void frmGrafico::describePicture() {
  const ViewSettings& view = session_.view();
  const auto text = [](double number) { return toQt(writeNumber(number)); };
  picGrafico_->setAccessibleDescription(
      caption("x de %1 a %2; y de %3 a %4", "x from %1 to %2; y from %3 to %4")
          .arg(text(view.xi), text(view.xf), text(view.yi), text(view.yf)));
}

void frmGrafico::showForm() {
  Form::showForm();
  picGrafico_->setFocus();
  draws_soon_.start();
}

void frmGrafico::takeArguments() {
  const FormParams& params = program().params;
  if (callerOf(params) == this) {
    setCaller(opener_);
    return;
  }
  opener_ = callerOf(params);
  session_.open(viewIn(params), program().marks);
}

void frmGrafico::closeEvent(QCloseEvent* event) {
  if (session_.isOpen())
    leave(session_.openedView());
  else if (isVisible())
    returnToCaller();
  event->setAccepted(isHidden());  // its caller may have shown it again
}

bool frmGrafico::eventFilter(QObject* watched, QEvent* event) {
  if (watched == inside_ && event->type() == QEvent::Resize) {
    is_resized_ = true;
    draws_soon_.start();
  }
  return Form::eventFilter(watched, event);
}

void frmGrafico::Form_Resize() {
  const QSize wanted = inside_->size() - QSize(2 * kMargin, 2 * kMargin);
  const auto size =
      PictureSize::ofPixels(std::max(0, wanted.width()), std::max(0, wanted.height()));
  if (std::exchange(is_resized_, false) && PlotSession::takesSize(size)) {
    picGrafico_->resize(wanted);
    session_.resize(size);
  }
  session_.drawFirst();
}

void frmGrafico::picGrafico_KeyPress(char32_t key) { session_.keyPressed(key); }

void frmGrafico::pictureDrawn() {
  picGrafico_->showDrawn();
  describePicture();
}

void frmGrafico::showMessage(const std::string& message) {
  ShowAttention(program().services.boxes, message);
}

void frmGrafico::returnToMain() { leave(session_.view()); }

void frmGrafico::leave(const ViewSettings& view) {
  session_.close();
  handViewOver(program().params, view, this);
  returnToCaller();
}

}  // namespace zel
