#pragma once

#include <QString>
#include <QWidget>
#include <optional>

#include "graphs/graph_def.h"

class QFrame;
class QLabel;
class QPushButton;

namespace zel {

/// The row above the picture of the plot window: the buttons that change the active graph, and its
/// colour and text. A text without room ends in dots.
class GraphBar : public QWidget {
  Q_OBJECT

 public:
  explicit GraphBar(QWidget* parent = nullptr);

  void assignCaptions();
  /// Shows the active graph; nothing in a document without graphs, whose buttons are not enabled.
  void showGraph(const std::optional<GraphDef>& graph);
  /// The text of the active graph, as a whole.
  const QString& graphText() const { return text_; }

 signals:
  void previousClicked();
  void nextClicked();

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void fitText();

  QPushButton* CmdGrafAnterior_;
  QPushButton* CmdGrafSiguiente_;
  QFrame* swatch_;
  QLabel* LblGrafico_;
  QString text_;
};

}  // namespace zel
