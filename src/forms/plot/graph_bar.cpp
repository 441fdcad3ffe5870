#include "forms/plot/graph_bar.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QPushButton>

#include "forms/editor/colour_swatch.h"
#include "forms/form.h"
#include "forms/listed_text.h"
#include "forms/plot/elided_label.h"
#include "forms/plot/key_tip.h"
#include "platform/icons/plot_icons.h"

namespace zel {
namespace {

QPushButton* makeIconButton(const char* name) {
  auto* const button = new QPushButton;
  button->setObjectName(QString::fromLatin1(name));
  button->setIcon(plotIcon(name));
  button->setIconSize({16, 16});
  button->setFocusPolicy(Qt::TabFocus);
  return button;
}

}  // namespace

GraphBar::GraphBar(QWidget* parent)
    : QWidget(parent),
      CmdGrafAnterior_(makeIconButton("CmdGrafAnterior")),
      CmdGrafSiguiente_(makeIconButton("CmdGrafSiguiente")),
      swatch_(new QFrame),
      LblGrafico_(new ElidedLabel),
      CmdNumeros_(makeIconButton("CmdNumeros")) {
  LblGrafico_->setObjectName("LblGrafico");
  LblGrafico_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  LblGrafico_->setIndent(0);
  LblGrafico_->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("m(x)=…")));
  CmdNumeros_->setCheckable(true);
  swatch_->setObjectName("LblColor");
  swatch_->setFrameStyle(QFrame::Box | QFrame::Plain);
  swatch_->setAutoFillBackground(true);
  const int side = fontMetrics().height();
  swatch_->setFixedSize(side, side);
  QSizePolicy policy = swatch_->sizePolicy();
  policy.setRetainSizeWhenHidden(true);  // the row needs the same room with a graph and without
  swatch_->setSizePolicy(policy);
  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(CmdGrafAnterior_);
  row->addWidget(CmdGrafSiguiente_);
  row->addSpacing(side / 2);
  row->addWidget(swatch_);
  row->addWidget(LblGrafico_, 1);
  row->addWidget(CmdNumeros_);
  connect(CmdGrafAnterior_, &QPushButton::clicked, this, [this] { emit previousClicked(); });
  connect(CmdGrafSiguiente_, &QPushButton::clicked, this, [this] { emit nextClicked(); });
  connect(CmdNumeros_, &QPushButton::clicked, this, [this] { emit numbersClicked(); });
}

void GraphBar::assignCaptions() {
  CmdGrafAnterior_->setText(caption("Anterior", "Previous"));
  CmdGrafAnterior_->setToolTip(caption("Gráfico anterior", "Previous graph"));
  nameKey(*CmdGrafAnterior_, caption("Re Pág", "Page Up"));
  CmdGrafSiguiente_->setText(caption("Siguiente", "Next"));
  CmdGrafSiguiente_->setToolTip(caption("Gráfico siguiente", "Next graph"));
  nameKey(*CmdGrafSiguiente_, caption("Av Pág", "Page Down"));
  CmdNumeros_->setText(caption("Números", "Numbers"));
  CmdNumeros_->setToolTip(caption("Números, cuadrícula y coordenadas sobre el gráfico",
                                  "Numbers, grid and coordinates over the graphic"));
  nameKey(*CmdNumeros_, QStringLiteral("N"));
  for (QPushButton* const button : {CmdGrafAnterior_, CmdGrafSiguiente_, CmdNumeros_})
    button->setAccessibleName(button->toolTip());
  LblGrafico_->setAccessibleDescription(caption("Gráfico activo", "Active graph"));
}

void GraphBar::showGraph(const GraphDef* graph) {
  CmdGrafAnterior_->setEnabled(graph != nullptr);
  CmdGrafSiguiente_->setEnabled(graph != nullptr);
  swatch_->setVisible(graph != nullptr);
  QPalette palette = this->palette();
  if (graph) palette.setColor(QPalette::Window, qtColour(graph->color));
  if (palette != swatch_->palette()) swatch_->setPalette(palette);
  const QString text = graph ? listedText(*graph) : QString();
  LblGrafico_->showText(text, graph ? listedTip(*graph) : QString());
  // Each name that is set is said, the same one too.
  if (text != LblGrafico_->accessibleName()) LblGrafico_->setAccessibleName(text);
}

QString GraphBar::graphText() const { return LblGrafico_->text(); }

void GraphBar::showNumbers(bool shown) { CmdNumeros_->setChecked(shown); }

}  // namespace zel
