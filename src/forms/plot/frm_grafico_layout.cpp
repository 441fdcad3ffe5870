// How the plot window is built, and where its picture lies.
#include <QScreen>
#include <algorithm>
#include <utility>

#include "forms/plot/frm_grafico.h"
#include "forms/plot/graph_bar.h"
#include "forms/plot/graph_legend.h"
#include "forms/plot/panel_bar.h"
#include "forms/plot/picture_box.h"
#include "forms/plot/plot_overlay.h"
#include "forms/plot/plot_toolbar.h"

namespace zel {
namespace {

constexpr QSize kFirstPicture(800, 600);  // pixels
constexpr QSize kLeastPicture(240, 180);  // pixels, as far as the window has a say
constexpr int kMargin = 8;                // pixels around the picture

PictureSize sizeInTwips(QSize pixels) {
  return PictureSize::ofPixels(std::max(0, pixels.width()), std::max(0, pixels.height()));
}

}  // namespace

frmGrafico::frmGrafico(Program& program)
    : Form(program, "frmGrafico"),
      inside_(new QWidget),
      picGrafico_(new PictureBox(inside_)),
      graph_bar_(new GraphBar(inside_)),
      legend_(new GraphLegend(inside_)),
      Toolbar1_(new PlotToolbar),
      StatusBar1_(new PanelBar("StatusBar1")),
      screen_(*picGrafico_, *StatusBar1_),
      session_(program.engine, program.graphs, *picGrafico_, screen_, *this) {
  buildControls();
  connectControls();
  toolsChanged();
}

void frmGrafico::buildControls() {
  setContextMenuPolicy(Qt::PreventContextMenu);
  addToolBar(Toolbar1_);
  setStatusBar(StatusBar1_);
  setCentralWidget(inside_);
  picGrafico_->setObjectName("picGrafico");
  picGrafico_->setMouseTracking(true);
  overlay_ = new PlotOverlay(*picGrafico_);
  orderTabs();
  assignCaptions();  // the row's height depends on them
  placeControls(QRect(pictureRoom().topLeft(), kFirstPicture));
  const int bars = Toolbar1_->sizeHint().height() + StatusBar1_->sizeHint().height();
  const QPoint corner = picGrafico_->geometry().bottomRight();
  inside_->resize(corner.x() + 1 + kMargin, corner.y() + 1 + kMargin);  // until it is laid out
  const QSize wanted = inside_->size() + QSize(legend_->wantedWidth() + kMargin, bars);
  resize(wanted.boundedTo(screen()->availableSize() * 9 / 10));
  session_.resize(sizeInTwips(kFirstPicture));
}

/// As they are seen, from the top: the toolbar, the row with the active graph, the list, the
/// picture.
void frmGrafico::orderTabs() {
  auto* before = findChild<QWidget*>(toQt(kPlotCommandKeys.back()));
  for (QWidget* const next :
       {findChild<QWidget*>("CmdGrafAnterior"), findChild<QWidget*>("CmdGrafSiguiente"),
        findChild<QWidget*>("CmdNumeros"), static_cast<QWidget*>(legend_),
        static_cast<QWidget*>(picGrafico_)}) {
    setTabOrder(before, next);
    before = next;
  }
}

void frmGrafico::connectControls() {
  inside_->installEventFilter(this);
  picGrafico_->installEventFilter(this);
  connect(picGrafico_, &PictureBox::KeyPress, this, &frmGrafico::picGrafico_KeyPress);
  connect(picGrafico_, &PictureBox::resolutionChanged, this, [this] { session_.redraw(); });
  connect(picGrafico_, &PictureBox::shownAnew, this, [this] {
    showNumbers();
    showCoordinates();
  });
  connect(Toolbar1_, &PlotToolbar::ButtonClick, this, &frmGrafico::Toolbar1_ButtonClick);
  connect(Toolbar1_, &PlotToolbar::copyWithNumbersClicked, this,
          [this] { session_.copyWithNumbers(); });
  connect(graph_bar_, &GraphBar::previousClicked, this, &frmGrafico::CmdGrafAnterior_Click);
  connect(graph_bar_, &GraphBar::nextClicked, this, &frmGrafico::CmdGrafSiguiente_Click);
  connect(graph_bar_, &GraphBar::numbersClicked, this, &frmGrafico::CmdNumeros_Click);
  connect(legend_, &GraphLegend::chosen, this, [this](char letter) { session_.choose(letter); });
  connect(StatusBar1_, &PanelBar::panelsShown, this, &frmGrafico::describePicture);
  draws_soon_.setSingleShot(true);
  connect(&draws_soon_, &QTimer::timeout, this, &frmGrafico::Form_Resize);
}

QRect frmGrafico::pictureRoom() const {
  const int top = kMargin + graph_bar_->sizeHint().height() + kMargin;
  const int list = legend_->isHidden() ? 0 : legend_->wantedWidth() + kMargin;
  return QRect(QPoint(), inside_->size()).adjusted(kMargin, top, -kMargin - list, -kMargin);
}

void frmGrafico::needLeastSize() {
  const int width = std::max(kLeastPicture.width(), graph_bar_->minimumSizeHint().width());
  const int top = kMargin + graph_bar_->sizeHint().height() + kMargin;
  const int list = legend_->isHidden() ? 0 : legend_->wantedWidth() + kMargin;
  inside_->setMinimumSize(kMargin + width + list + kMargin, top + kLeastPicture.height() + kMargin);
}

void frmGrafico::placeControls(const QRect& picture) {
  picGrafico_->setGeometry(picture);
  graph_bar_->setGeometry(kMargin, kMargin, picture.width(), graph_bar_->sizeHint().height());
  legend_->setGeometry(picture.right() + 1 + kMargin, picture.top(), legend_->wantedWidth(),
                       picture.height());
}

void frmGrafico::Form_Resize() {
  const QRect room = pictureRoom();
  const PictureSize size = sizeInTwips(room.size());
  if (std::exchange(is_resized_, false) && PlotSession::takesSize(size)) {
    placeControls(room);
    session_.resize(size);
  }
  session_.drawFirst();
}

}  // namespace zel
