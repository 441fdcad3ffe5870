// How the main window is built: its menus and controls, and what leads where.
#include <QAction>
#include <QActionGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QSlider>

#include "forms/main/frm_datos_ini.h"
#include "forms/main/graph_list.h"
#include "forms/main/recent_menu.h"
#include "forms/named_controls.h"
#include "forms/numeric_keys.h"
#include "forms/text_box.h"

namespace zel {

QAction* frmDatosIni::addCommand(QMenu* menu, const char* name, void (frmDatosIni::*handler)()) {
  auto* action = menu->addAction(QString(), this, handler);
  action->setObjectName(QString::fromLatin1(name));
  return action;
}

void frmDatosIni::buildMenus() {
  mArchivo_ = menuBar()->addMenu(QString());
  addCommand(mArchivo_, "mNuevo", &frmDatosIni::mNuevo_Click)->setShortcut(QKeySequence::New);
  addCommand(mArchivo_, "mAbrir", &frmDatosIni::mAbrir_Click)->setShortcut(QKeySequence::Open);
  mRecientes_ = new RecentMenu(this);
  mRecientes_->setObjectName("mRecientes");
  mArchivo_->addMenu(mRecientes_);
  connect(mRecientes_, &RecentMenu::documentChosen, this, &frmDatosIni::openRecentPath,
          Qt::QueuedConnection);  // which may fill the menu anew
  addCommand(mArchivo_, "mRecuperar", &frmDatosIni::mRecuperar_Click);
  connect(mArchivo_, &QMenu::aboutToShow, this, &frmDatosIni::updateFileMenu);
  mArchivo_->addSeparator();
  addCommand(mArchivo_, "mGuardar", &frmDatosIni::mGuardar_Click)->setShortcut(QKeySequence::Save);
  addCommand(mArchivo_, "mGuardarComo", &frmDatosIni::mGuardarComo_Click)
      ->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
  addCommand(mArchivo_, "mExportar", &frmDatosIni::mExportar_Click)
      ->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_E));
  mArchivo_->addSeparator();
  addCommand(mArchivo_, "mSalir", &frmDatosIni::mSalir_Click)->setShortcut(QKeySequence::Quit);

  buildEditMenu();

  mOpciones_ = menuBar()->addMenu(QString());
  addCommand(mOpciones_, "mConfirmarBorrado", &frmDatosIni::mConfirmarBorrado_Click)
      ->setCheckable(true);
  mLenguaje_ = mOpciones_->addMenu(QString());
  auto* languages = new QActionGroup(this);
  for (QAction* action : {addCommand(mLenguaje_, "mEspanol", &frmDatosIni::mEspanol_Click),
                          addCommand(mLenguaje_, "mEnglish", &frmDatosIni::mEnglish_Click)}) {
    action->setCheckable(true);
    languages->addAction(action);
  }

  mAyuda_ = menuBar()->addMenu(QString());
  addCommand(mAyuda_, "mTemasDeAyuda", &frmDatosIni::mTemasDeAyuda_Click)
      ->setShortcut(QKeySequence::HelpContents);
  addCommand(mAyuda_, "mComoConseguirEstePrograma", &frmDatosIni::mComoConseguirEstePrograma_Click);
  mAyuda_->addSeparator();
  addCommand(mAyuda_, "mAcercaDeZel", &frmDatosIni::mAcercaDeZel_Click);
  mArchivo_->setObjectName("mArchivo");
  mOpciones_->setObjectName("mOpciones");
  mLenguaje_->setObjectName("mLenguaje");
  mAyuda_->setObjectName("mAyuda");
}

void frmDatosIni::buildEditMenu() {
  mEdicion_ = menuBar()->addMenu(QString());
  mEdicion_->setObjectName("mEdicion");
  addCommand(mEdicion_, "mDeshacer", &frmDatosIni::mDeshacer_Click)
      ->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Z));
  addCommand(mEdicion_, "mRehacer", &frmDatosIni::mRehacer_Click)
      ->setShortcuts({QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), kAlsoRedo});
  mEdicion_->addSeparator();
  addCommand(mEdicion_, "mAgregar", &frmDatosIni::CmdAgregar_Click)->setShortcut(Qt::Key_Insert);
  addCommand(mEdicion_, "mModificar", &frmDatosIni::CmdModificar_Click)->setShortcut(Qt::Key_F2);
  addCommand(mEdicion_, "mDuplicar", &frmDatosIni::mDuplicar_Click)
      ->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_D));
  addCommand(mEdicion_, "mBorrar", &frmDatosIni::CmdBorrar_Click)->setShortcut(Qt::Key_Delete);
}

/// What can be done with the graphs is the list's context menu, too, and its keys are the list's
/// own: elsewhere Delete is a box's.
void frmDatosIni::buildListMenu() {
  for (const char* name : {"mModificar", "mDuplicar", "mBorrar", "mAgregar"}) {
    auto* action = findChild<QAction*>(QString::fromLatin1(name));
    if (action->shortcut().count() == 1 && action->shortcut()[0].keyboardModifiers() == 0)
      action->setShortcutContext(Qt::WidgetShortcut);
    action->setAutoRepeat(false);  // a key that is held down deletes or copies once
    listaG_->addAction(action);
  }
  listaG_->setContextMenuPolicy(Qt::ActionsContextMenu);
}

void frmDatosIni::buildControls() {
  auto* settings = new QVBoxLayout;
  settings->addWidget(buildRange());
  settings->addWidget(buildScale());
  settings->addWidget(buildQuality());
  settings->addStretch();
  CmdGraficarLista_ = makeButton("CmdGraficarLista");
  CmdGraficarLista_->setDefault(true);
  QFont bold = CmdGraficarLista_->font();
  bold.setBold(true);
  CmdGraficarLista_->setFont(bold);
  CmdGraficarLista_->setMinimumHeight(CmdGraficarLista_->sizeHint().height() * 3 / 2);
  settings->addWidget(CmdGraficarLista_);

  auto* centre = new QWidget;
  auto* columns = new QHBoxLayout(centre);
  columns->setContentsMargins(12, 12, 12, 12);
  columns->setSpacing(12);
  columns->addWidget(buildGraphs(), 1);
  columns->addLayout(settings);
  setCentralWidget(centre);
  constexpr int kRoomForFormulas = 260;  // beside what the controls need
  const QSize wanted = sizeHint() + QSize(kRoomForFormulas, 0);
  resize(wanted.boundedTo(screen()->availableSize() * 9 / 10));
}

TextBox* frmDatosIni::makeNumberBox(const char* name, bool refuses_minus) {
  auto* box = new TextBox(name);
  filterNumericKeys(*box, refuses_minus);
  box->setAcceptDrops(false);  // a drop on it is the window's
  box->installEventFilter(this);
  return box;
}

/// Free desktops have Ctrl+D and Ctrl+E edit a box, too. Here they are the window's all the time.
bool frmDatosIni::eventFilter(QObject* box, QEvent* event) {
  if (event->type() != QEvent::ShortcutOverride) return Form::eventFilter(box, event);
  const QKeySequence pressed(static_cast<QKeyEvent*>(event)->keyCombination());
  const bool is_ours = pressed == findChild<QAction*>("mDuplicar")->shortcut() ||
                       pressed == findChild<QAction*>("mExportar")->shortcut();
  if (is_ours) event->ignore();
  return is_ours;
}

QGroupBox* frmDatosIni::buildRange() {
  range_frame_ = new QGroupBox;
  range_frame_->setObjectName("fraRango");
  txtRanXf_ = makeNumberBox("txtRanXf", false);
  txtRanXi_ = makeNumberBox("txtRanXi", false);
  txtRanYf_ = makeNumberBox("txtRanYf", false);
  txtRanYi_ = makeNumberBox("txtRanYi", false);
  range_labels_ = {makeLabel("LblRanXf", txtRanXf_), makeLabel("LblRanXi", txtRanXi_),
                   makeLabel("LblRanYf", txtRanYf_), makeLabel("LblRanYi", txtRanYi_)};
  chkProporcional_ = new QCheckBox;
  chkProporcional_->setObjectName("chkProporcional");
  auto* grid = new QGridLayout(range_frame_);
  const std::array<TextBox*, 4> boxes = {txtRanXf_, txtRanXi_, txtRanYf_, txtRanYi_};
  for (int row = 0; row < 4; ++row) {
    grid->addWidget(range_labels_[static_cast<std::size_t>(row)], row, 0);
    grid->addWidget(boxes[static_cast<std::size_t>(row)], row, 1);
  }
  grid->addWidget(chkProporcional_, 4, 0, 1, 2);
  return range_frame_;
}

QGroupBox* frmDatosIni::buildScale() {
  scale_frame_ = new QGroupBox;
  scale_frame_->setObjectName("fraEscala");
  txtEscalaX_ = makeNumberBox("txtEscalaX", true);
  txtEscalaY_ = makeNumberBox("txtEscalaY", true);
  scale_labels_ = {makeLabel("LblEscalaX", txtEscalaX_), makeLabel("LblEscalaY", txtEscalaY_)};
  auto* grid = new QGridLayout(scale_frame_);
  grid->addWidget(scale_labels_[0], 0, 0);
  grid->addWidget(txtEscalaX_, 0, 1);
  grid->addWidget(scale_labels_[1], 1, 0);
  grid->addWidget(txtEscalaY_, 1, 1);
  return scale_frame_;
}

QGroupBox* frmDatosIni::buildQuality() {
  quality_frame_ = new QGroupBox;
  quality_frame_->setObjectName("fraCalidad");
  Slider1_ = new QSlider(Qt::Horizontal);
  Slider1_->setObjectName("Slider1");
  Slider1_->setRange(MainView::kLowestDefinicion, MainView::kHighestDefinicion);
  Slider1_->setPageStep(10);
  LblCalidad_ = makeLabel("LblCalidad", Slider1_);
  LblCalidad_->setMinimumWidth(LblCalidad_->fontMetrics().horizontalAdvance("100%"));
  LblCalidad_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  auto* row = new QHBoxLayout(quality_frame_);
  row->addWidget(Slider1_, 1);
  row->addWidget(LblCalidad_);
  return quality_frame_;
}

QGroupBox* frmDatosIni::buildGraphs() {
  graph_frame_ = new QGroupBox;
  graph_frame_->setObjectName("fraGraficos");
  listaG_ = new GraphList;
  listaG_->setObjectName("listaG");
  buildListMenu();
  CmdAgregar_ = makeButton("CmdAgregar");
  CmdModificar_ = makeButton("CmdModificar");
  CmdBorrar_ = makeButton("CmdBorrar");
  auto* buttons = new QHBoxLayout;
  for (QPushButton* button : {CmdAgregar_, CmdModificar_, CmdBorrar_}) {
    button->setAutoDefault(true);  // Enter clicks it while it has the focus
    buttons->addWidget(button);
  }
  buttons->addStretch();
  auto* column = new QVBoxLayout(graph_frame_);
  column->addWidget(listaG_, 1);
  column->addLayout(buttons);
  return graph_frame_;
}

void frmDatosIni::connectControls() {
  connect(CmdAgregar_, &QPushButton::clicked, this, &frmDatosIni::CmdAgregar_Click);
  connect(CmdModificar_, &QPushButton::clicked, this, &frmDatosIni::CmdModificar_Click);
  connect(CmdBorrar_, &QPushButton::clicked, this, &frmDatosIni::CmdBorrar_Click);
  connect(CmdGraficarLista_, &QPushButton::clicked, this, &frmDatosIni::CmdGraficarLista_Click);
  connect(chkProporcional_, &QCheckBox::clicked, this, &frmDatosIni::actProporcional);
  connect(Slider1_, &QSlider::valueChanged, this, &frmDatosIni::Slider1_Change);
  connect(listaG_, &GraphList::editRequested, this, &frmDatosIni::CmdModificar_Click);
  connect(listaG_, &QTreeWidget::itemSelectionChanged, this, &frmDatosIni::updateButtons);
}

}  // namespace zel
