#include "forms/plot/graph_legend.h"

#include <QSignalBlocker>

#include "forms/form.h"
#include "forms/graph_swatch.h"
#include "forms/listed_text.h"

namespace zel {
namespace {

constexpr int kLetterRole = Qt::UserRole;

char letterOfItem(const QListWidgetItem& item) {
  return static_cast<char>(item.data(kLetterRole).toInt());
}

}  // namespace

GraphLegend::GraphLegend(QWidget* parent) : QListWidget(parent) {
  setObjectName("LstGraficos");
  setFocusPolicy(Qt::TabFocus);
  setUniformItemSizes(true);
  setTextElideMode(Qt::ElideRight);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  const int side = fontMetrics().height();
  setIconSize({side, side});
  hide();
  connect(this, &QListWidget::itemSelectionChanged, this, [this] {
    if (!selectedItems().isEmpty()) emit chosen(letterOfItem(*selectedItems().front()));
  });
}

void GraphLegend::assignCaptions() { setAccessibleName(caption("Gráficos", "Graphs")); }

void GraphLegend::listGraphs(const GraphTable& graphs) {
  const QSignalBlocker blocker(this);
  clear();
  for (char letter = 'a'; letter <= 'z'; ++letter) {
    const GraphDef& def = *graphs.slot(letter);
    if (!def.defined) continue;
    const QIcon swatch = graphSwatch(def.color, SwatchLook::square);
    auto* const item = new QListWidgetItem(swatch, listedText(def), this);
    item->setData(kLetterRole, static_cast<int>(letter));
    item->setToolTip(listedTip(def));
  }
  setVisible(count() > 1);
}

/// The row is selected and not made the current one, which assistive technology would take for a
/// move of the focus.
void GraphLegend::showActive(std::optional<char> letter) {
  const QSignalBlocker blocker(this);
  for (int row = 0; row < count(); ++row)
    item(row)->setSelected(letter == letterOfItem(*item(row)));
}

/// The arrow keys go on from the active graph.
void GraphLegend::focusInEvent(QFocusEvent* event) {
  const QSignalBlocker blocker(this);
  if (!selectedItems().isEmpty()) setCurrentItem(selectedItems().front());
  QListWidget::focusInEvent(event);
}

int GraphLegend::wantedWidth() const {
  constexpr int kLetters = 22;
  return fontMetrics().averageCharWidth() * kLetters + iconSize().width();
}

}  // namespace zel
