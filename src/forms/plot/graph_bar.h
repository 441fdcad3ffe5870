#pragma once

#include <QString>
#include <QWidget>

#include "graphs/graph_def.h"

class QFrame;
class QPushButton;

namespace zel {

class ElidedLabel;

/// The row above the picture of the plot window: the buttons that change the active graph, its
/// colour and text, and the button that switches the numbers over the picture.
class GraphBar : public QWidget {
  Q_OBJECT

 public:
  explicit GraphBar(QWidget* parent = nullptr);

  void assignCaptions();
  /// Shows the active graph; nothing in a document without graphs, whose buttons are not enabled.
  void showGraph(const GraphDef* graph);
  /// The text of the active graph, as a whole.
  QString graphText() const;
  /// The button of the numbers is pressed while they are shown.
  void showNumbers(bool shown);

 signals:
  void previousClicked();
  void nextClicked();
  void numbersClicked();

 private:
  QPushButton* CmdGrafAnterior_;
  QPushButton* CmdGrafSiguiente_;
  QFrame* swatch_;
  ElidedLabel* LblGrafico_;
  QPushButton* CmdNumeros_;
};

}  // namespace zel
