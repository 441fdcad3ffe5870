#pragma once

#include <QTreeWidget>
#include <string>

#include "graphs/graph_table.h"

namespace zel {

/// The list of the document's graphs: a row for each, with its letter in the graph's colour, its
/// kind and its display text. A row's key is the letter.
class GraphList : public QTreeWidget {
  Q_OBJECT

 public:
  explicit GraphList(QWidget* parent = nullptr);

  /// Lists the graphs in use in letter order; the selection stays on letters that are still there.
  void listGraphs(const GraphTable& graphs);
  void applyLanguage(const GraphTable& graphs);

  /// The selected letters in list order.
  std::string selectedLetters() const;
  void selectLetter(char letter);

 signals:
  /// A row was double-clicked, or Enter was pressed on it.
  void editRequested();
  void deleteRequested();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace zel
