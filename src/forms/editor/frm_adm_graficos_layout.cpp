// How the graph editor is built: its menus and controls, and what leads where.
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include "engine/compiler.h"
#include "forms/button_mnemonics.h"
#include "forms/editor/colour_swatch.h"
#include "forms/editor/editor_fields.h"
#include "forms/editor/editor_pages.h"
#include "forms/editor/frm_adm_graficos.h"
#include "forms/editor/hint_line.h"
#include "forms/editor/preview_box.h"
#include "forms/named_controls.h"

namespace zel {
namespace {

template <class Widget>
Widget* named(Widget* widget, const char* name) {
  widget->setObjectName(QString::fromLatin1(name));
  return widget;
}

QAction* addCommand(QMenu* menu, const QString& name) {
  auto* action = menu->addAction(QString());
  action->setObjectName(name);
  return action;
}

}  // namespace

void frmAdmGraficos::buildMenus() {
  mArchivo_ = named(menuBar()->addMenu(QString()), "mArchivo");
  connect(addCommand(mArchivo_, "mSalir"), &QAction::triggered, this,
          &frmAdmGraficos::bCancelar_Click);
  mInsertarFuncion_ = named(menuBar()->addMenu(QString()), "mInsertarFuncion");
  mInsertarFuncion_->setToolTipsVisible(true);
  for (std::size_t i = 0; i < offeredFunctions("ES").size(); ++i) {
    auto* action = addCommand(mInsertarFuncion_, QStringLiteral("mInsertarFuncion%1").arg(i));
    connect(action, &QAction::triggered, this,
            [this, action] { mInsertarFuncion_Click(fromQt(action->data().toString())); });
  }
}

void frmAdmGraficos::buildControls() {
  auto* centre = new QWidget;
  auto* column = new QVBoxLayout(centre);
  column->addWidget(buildHeader());
  column->addWidget(buildKinds(), 1);
  column->addWidget(buildButtons());
  setCentralWidget(centre);
  preferButtonMnemonics(*this);
  setReadingOrder();
}

QWidget* frmAdmGraficos::buildHeader() {
  cboNombre_ = named(new QComboBox, "cboNombre");
  for (char letter = 'a'; letter <= 'z'; ++letter)
    cboNombre_->addItem(QString(QLatin1Char(letter)));
  FondoColor_ = named(new ColourSwatch, "FondoColor");
  auto* frame = named(new QGroupBox, "fraEncabezado");
  auto* row = new QHBoxLayout(frame);
  row->addWidget(makeLabel("LblNombre", cboNombre_));
  row->addWidget(cboNombre_);
  row->addSpacing(2 * fontMetrics().averageCharWidth());
  row->addWidget(makeLabel("LblColor", FondoColor_));
  row->addWidget(FondoColor_);
  row->addSpacing(2 * fontMetrics().averageCharWidth());
  auto* hint = new HintLine;
  hint->setObjectName(hintName("cboNombre"));
  row->addWidget(hint, 1);
  return frame;
}

QWidget* frmAdmGraficos::buildKinds() {
  TabStrip1_ = named(new QTabWidget, "TabStrip1");
  TabStrip1_->setUsesScrollButtons(false);  // the window is as wide as its tabs
  buildPreview();
  for (const char kind : kEditorKinds)
    TabStrip1_->addTab(makeEditorPage(kind, preview_->sizeHint()), QString());
  movePreview();
  auto* kinds = new QWidget;
  auto* column = new QVBoxLayout(kinds);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(makeLabel("LblTipo", TabStrip1_));
  column->addWidget(TabStrip1_, 1);
  return kinds;
}

void frmAdmGraficos::buildPreview() {
  preview_ = new QWidget;
  picVista_ = named(new PreviewBox, "picVista");
  LblVista_ = named(new QLabel, "LblVista");
  LblVista_->setTextFormat(Qt::PlainText);
  LblVista_->setFixedHeight(2 * LblVista_->fontMetrics().lineSpacing());
  LblVista_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  auto* column = new QVBoxLayout(preview_);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(picVista_);
  column->addWidget(LblVista_);
}

QWidget* frmAdmGraficos::buildButtons() {
  bAceptar_ = named(new QPushButton, "bAceptar");
  bAceptar_->setDefault(true);
  bCancelar_ = named(new QPushButton, "bCancelar");
  bCancelar_->setAutoDefault(true);  // Enter clicks it while it has the focus
  auto* buttons = new QWidget;
  auto* row = new QHBoxLayout(buttons);
  row->setContentsMargins(0, 0, 0, 0);
  row->addStretch();
  row->addWidget(bAceptar_);
  row->addWidget(bCancelar_);
  return buttons;
}

void frmAdmGraficos::connectControls() {
  connect(bAceptar_, &QPushButton::clicked, this, &frmAdmGraficos::bAceptar_Click);
  connect(bCancelar_, &QPushButton::clicked, this, &frmAdmGraficos::bCancelar_Click);
  connect(FondoColor_, &QPushButton::clicked, this, &frmAdmGraficos::FondoColor_Click);
  connect(cboNombre_, &QComboBox::currentIndexChanged, this, &frmAdmGraficos::cboNombre_Click);
  connect(TabStrip1_, &QTabWidget::currentChanged, this, &frmAdmGraficos::TabStrip1_Click);
  for (const char kind : kEditorKinds) {
    for (const char* formula : formulaControls(kind)) box(formula)->installEventFilter(this);
  }
  connectHints();
}

void frmAdmGraficos::setReadingOrder() {
  TabStrip1_->setFocusPolicy(Qt::NoFocus);  // its bar has the focus in its stead
  TabStrip1_->tabBar()->setFocusPolicy(Qt::TabFocus);
  QList<QWidget*> order = {cboNombre_, FondoColor_, TabStrip1_->tabBar()};
  for (int i = 0; i < TabStrip1_->count(); ++i) {
    for (QLineEdit* field : TabStrip1_->widget(i)->findChildren<QLineEdit*>()) order << field;
  }
  order << bAceptar_ << bCancelar_;
  for (qsizetype i = 1; i < order.size(); ++i) setTabOrder(order[i - 1], order[i]);
}

}  // namespace zel
