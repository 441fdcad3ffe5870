#pragma once

#include <QListWidget>
#include <optional>

#include "graphs/graph_table.h"

namespace zel {

/// The list of all graphs beside the picture of the plot window: a swatch and the text of each, the
/// active one selected. With fewer than two graphs there is nothing to choose, and it is not shown.
class GraphLegend : public QListWidget {
  Q_OBJECT

 public:
  explicit GraphLegend(QWidget* parent = nullptr);

  void assignCaptions();
  void listGraphs(const GraphTable& graphs);
  void showActive(std::optional<char> letter);

  /// How wide it would like to be, in pixels.
  int wantedWidth() const;

 signals:
  /// The user has chosen the graph of this letter.
  void chosen(char letter);

 protected:
  void focusInEvent(QFocusEvent* event) override;
};

}  // namespace zel
