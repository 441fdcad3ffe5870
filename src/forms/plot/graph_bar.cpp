#include "forms/plot/graph_bar.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "forms/editor/colour_swatch.h"
#include "forms/form.h"
#include "forms/tool_tip.h"
#include "platform/icons/plot_icons.h"
#include "platform/qt/one_line.h"

namespace zel {
namespace {

QPushButton* makeButton(const char* name) {
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
      CmdGrafAnterior_(makeButton("CmdGrafAnterior")),
      CmdGrafSiguiente_(makeButton("CmdGrafSiguiente")),
      swatch_(new QFrame),
      LblGrafico_(new QLabel) {
  LblGrafico_->setObjectName("LblGrafico");
  LblGrafico_->setTextFormat(Qt::PlainText);
  LblGrafico_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  swatch_->setObjectName("LblColor");
  swatch_->setFrameStyle(QFrame::Box | QFrame::Plain);
  swatch_->setAutoFillBackground(true);
  const int side = fontMetrics().height();
  swatch_->setFixedSize(side, side);
  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(CmdGrafAnterior_);
  row->addWidget(CmdGrafSiguiente_);
  row->addSpacing(side / 2);
  row->addWidget(swatch_);
  row->addWidget(LblGrafico_, 1);
  connect(CmdGrafAnterior_, &QPushButton::clicked, this, [this] { emit previousClicked(); });
  connect(CmdGrafSiguiente_, &QPushButton::clicked, this, [this] { emit nextClicked(); });
}

void GraphBar::assignCaptions() {
  CmdGrafAnterior_->setText(caption("Anterior", "Previous"));
  CmdGrafAnterior_->setToolTip(caption("Gráfico anterior", "Previous graph"));
  CmdGrafSiguiente_->setText(caption("Siguiente", "Next"));
  CmdGrafSiguiente_->setToolTip(caption("Gráfico siguiente", "Next graph"));
  for (QPushButton* const button : {CmdGrafAnterior_, CmdGrafSiguiente_})
    button->setAccessibleName(button->toolTip());
  LblGrafico_->setAccessibleDescription(caption("Gráfico activo", "Active graph"));
}

void GraphBar::showGraph(const std::optional<GraphDef>& graph) {
  CmdGrafAnterior_->setEnabled(graph.has_value());
  CmdGrafSiguiente_->setEnabled(graph.has_value());
  swatch_->setVisible(graph.has_value());
  text_ = graph ? inOneLine(toQt(displayText(*graph))) : QString();
  QPalette palette = this->palette();
  if (graph) palette.setColor(QPalette::Window, qtColour(graph->color));
  swatch_->setPalette(palette);
  LblGrafico_->setAccessibleName(text_);
  fitText();
}

void GraphBar::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  layout()->activate();
  fitText();
}

void GraphBar::fitText() {
  const int room = LblGrafico_->width();
  const QString fitted = LblGrafico_->fontMetrics().elidedText(text_, Qt::ElideRight, room);
  LblGrafico_->setText(fitted);
  LblGrafico_->setToolTip(fitted == text_ ? QString() : toolTipOf(text_));
}

}  // namespace zel
