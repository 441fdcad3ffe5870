#include "forms/main/graph_list.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>
#include <vector>

#include "forms/form.h"
#include "forms/graph_swatch.h"
#include "forms/kind_captions.h"
#include "forms/listed_text.h"

namespace zel {
namespace {

enum Column { kName, kKind, kText };

char letterOf(const QTreeWidgetItem& item) { return item.text(kName).at(0).toLatin1(); }

}  // namespace

GraphList::GraphList(QWidget* parent) : QTreeWidget(parent), hint_(new QLabel) {
  setColumnCount(3);
  setRootIsDecorated(false);
  setUniformRowHeights(true);
  setAllColumnsShowFocus(true);
  setSelectionMode(QAbstractItemView::ExtendedSelection);
  header()->setStretchLastSection(true);
  header()->setSectionsMovable(false);
  hint_->setObjectName("LblVacia");
  hint_->setAlignment(Qt::AlignCenter);
  hint_->setWordWrap(true);
  hint_->setAttribute(Qt::WA_TransparentForMouseEvents);
  (new QVBoxLayout(viewport()))->addWidget(hint_);
  connect(this, &QTreeWidget::itemDoubleClicked, this, [this] { emit editRequested(); });
}

void GraphList::listGraphs(const GraphTable& graphs) {
  const std::string selected = selectedLetters();
  const QTreeWidgetItem* current = currentItem();
  const char current_letter = current ? letterOf(*current) : '\0';
  const int place = selected.empty() ? -1 : indexOfTopLevelItem(selectedItems().constFirst());
  std::vector<std::unique_ptr<QTreeWidgetItem>> rows;
  for (char letter = 'a'; letter <= 'z'; ++letter) {
    const GraphDef& def = *graphs.slot(letter);
    if (def.defined) rows.push_back(makeRow(def));
  }
  clear();  // after all that needs memory
  for (auto& row : rows) addTopLevelItem(row.release());
  hint_->setVisible(topLevelItemCount() == 0);
  resizeColumnToContents(kName);
  resizeColumnToContents(kKind);
  header()->resizeSection(kText, header()->minimumSectionSize());  // and it fills what is left
  selectLetters(selected);
  for (int row = 0; row < topLevelItemCount(); ++row) {
    if (letterOf(*topLevelItem(row)) == current_letter)
      setCurrentItem(topLevelItem(row), 0, QItemSelectionModel::NoUpdate);
  }
  const bool all_have_gone = place >= 0 && selectedItems().isEmpty();
  if (all_have_gone && topLevelItemCount() > 0)
    selectRows({topLevelItem(std::min(place, topLevelItemCount() - 1))});
}

std::unique_ptr<QTreeWidgetItem> GraphList::makeRow(const GraphDef& def) const {
  auto item = std::make_unique<QTreeWidgetItem>();
  item->setText(kName, QString(QChar::fromLatin1(def.nombre)));
  item->setIcon(kName, graphSwatch(def.color, SwatchLook::rounded));
  QFont bold = font();
  bold.setBold(true);
  item->setFont(kName, bold);
  item->setText(kKind, kindCaption(def.tipo));
  item->setText(kText, listedText(def));
  item->setToolTip(kText, listedTip(def));
  return item;
}

void GraphList::applyLanguage(const GraphTable& graphs) {
  setHeaderLabels(
      {caption("Nombre", "Name"), caption("Tipo", "Type"), caption("Declaración", "Definition")});
  hint_->setText(caption("Agregue un gráfico, o suelte aquí un documento",
                         "Add a graph, or drop a document here"));
  listGraphs(graphs);
}

std::string GraphList::selectedLetters() const {
  std::string letters;
  for (int row = 0; row < topLevelItemCount(); ++row)
    if (topLevelItem(row)->isSelected()) letters += letterOf(*topLevelItem(row));
  return letters;
}

void GraphList::selectLetters(std::string_view letters) {
  QList<QTreeWidgetItem*> rows;
  for (int row = 0; row < topLevelItemCount(); ++row) {
    if (letters.find(letterOf(*topLevelItem(row))) != std::string_view::npos)
      rows << topLevelItem(row);
  }
  if (!rows.isEmpty()) selectRows(rows);
}

void GraphList::selectFirst() {
  if (topLevelItemCount() > 0) selectRows({topLevelItem(0)});
}

/// By commands of their own: what is selected must not depend on the keys that are held down.
void GraphList::selectRows(const QList<QTreeWidgetItem*>& rows) {
  setCurrentItem(rows.constFirst(), 0,
                 QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  for (QTreeWidgetItem* const row : rows) row->setSelected(true);
  scrollToItem(rows.constFirst());
}

void GraphList::keyPressEvent(QKeyEvent* event) {
  const bool is_enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!is_enter)
    QTreeWidget::keyPressEvent(event);
  else if (!event->isAutoRepeat())
    emit editRequested();  // and the window's default button hears nothing of it
}

}  // namespace zel
