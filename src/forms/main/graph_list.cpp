#include "forms/main/graph_list.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>

#include "forms/form.h"
#include "forms/kind_captions.h"
#include "forms/tool_tip.h"
#include "platform/qt/one_line.h"

namespace zel {
namespace {

enum Column { kName, kKind, kText };

char letterOf(const QTreeWidgetItem& item) { return item.text(kName).at(0).toLatin1(); }

QIcon swatch(std::int32_t colour) {
  constexpr int kSide = 32;
  constexpr qreal kRadius = 8;
  QPixmap pixmap(kSide, kSide);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(colour & 0xFF, colour >> 8 & 0xFF, colour >> 16 & 0xFF));
  painter.drawRoundedRect(QRectF(2, 2, kSide - 4, kSide - 4), kRadius, kRadius);
  painter.end();
  return pixmap;
}

}  // namespace

GraphList::GraphList(QWidget* parent) : QTreeWidget(parent) {
  setColumnCount(3);
  setRootIsDecorated(false);
  setUniformRowHeights(true);
  setAllColumnsShowFocus(true);
  setSelectionMode(QAbstractItemView::ExtendedSelection);
  header()->setStretchLastSection(true);
  header()->setSectionsMovable(false);
  connect(this, &QTreeWidget::itemDoubleClicked, this, [this] { emit editRequested(); });
}

void GraphList::listGraphs(const GraphTable& graphs) {
  const std::string selected = selectedLetters();
  const QTreeWidgetItem* current = currentItem();
  const char current_letter = current ? letterOf(*current) : '\0';
  clear();
  for (char letter = 'a'; letter <= 'z'; ++letter) {
    const auto def = graphs.graph(letter);
    if (!def || !def->defined) continue;
    auto* item = new QTreeWidgetItem(this);
    item->setText(kName, QString(QChar::fromLatin1(letter)));
    item->setIcon(kName, swatch(def->color));
    item->setForeground(kName,
                        QColor(def->color & 0xFF, def->color >> 8 & 0xFF, def->color >> 16 & 0xFF));
    QFont bold = font();
    bold.setBold(true);
    item->setFont(kName, bold);
    item->setText(kKind, kindCaption(def->tipo));
    item->setText(kText, inOneLine(toQt(displayText(*def))));
    item->setToolTip(kText, toolTipOf(item->text(kText)));
    if (letter == current_letter) setCurrentItem(item);
    item->setSelected(selected.find(letter) != std::string::npos);
  }
  resizeColumnToContents(kName);
  resizeColumnToContents(kKind);
}

void GraphList::applyLanguage(const GraphTable& graphs) {
  setHeaderLabels(
      {caption("Nombre", "Name"), caption("Tipo", "Type"), caption("Declaración", "Definition")});
  listGraphs(graphs);
}

std::string GraphList::selectedLetters() const {
  std::string letters;
  for (int row = 0; row < topLevelItemCount(); ++row)
    if (topLevelItem(row)->isSelected()) letters += letterOf(*topLevelItem(row));
  return letters;
}

void GraphList::selectLetter(char letter) {
  for (int row = 0; row < topLevelItemCount(); ++row)
    if (letterOf(*topLevelItem(row)) == letter) setCurrentItem(topLevelItem(row));
}

void GraphList::keyPressEvent(QKeyEvent* event) {
  const bool is_enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (is_enter && !selectedLetters().empty())
    emit editRequested();
  else if (event->key() == Qt::Key_Delete)
    emit deleteRequested();
  else
    QTreeWidget::keyPressEvent(event);
}

}  // namespace zel
