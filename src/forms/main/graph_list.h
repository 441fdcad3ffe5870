#pragma once

#include <QTreeWidget>
#include <memory>
#include <string>
#include <string_view>

#include "graphs/graph_table.h"

class QLabel;

namespace zel {

/// The list of the document's graphs: a row for each, with its colour, its letter, its kind and its
/// display text. A row's key is the letter. An empty list says what can be done.
class GraphList : public QTreeWidget {
  Q_OBJECT

 public:
  explicit GraphList(QWidget* parent = nullptr);

  /// Lists the graphs in use in letter order. The selection stays on letters that are still there;
  /// where all of them have gone it is on the row that has moved to the first one's place.
  void listGraphs(const GraphTable& graphs);
  void applyLanguage(const GraphTable& graphs);

  /// The selected letters in list order.
  std::string selectedLetters() const;
  /// Selects the rows with these letters and no others; where there is none, all stays as it is.
  void selectLetters(std::string_view letters);
  /// Selects the first row alone, if there is one.
  void selectFirst();

 signals:
  /// A row was double-clicked, or Enter was pressed in the list.
  void editRequested();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  std::unique_ptr<QTreeWidgetItem> makeRow(const GraphDef& def) const;
  void selectRows(const QList<QTreeWidgetItem*>& rows);

  QLabel* hint_;
};

}  // namespace zel
