#pragma once

#include <QStatusBar>
#include <array>

#include "plot/screen.h"

namespace zel {

class ElidedLabel;

/// A status bar of four panels. The first is always visible, the others only with text; a text
/// without room ends in dots. The panels are named as the bar with "_Panel1" to "_Panel4" behind
/// it.
class PanelBar : public QStatusBar {
  Q_OBJECT

 public:
  explicit PanelBar(const char* name);

  void showPanels(const StatusPanels& panels);
  /// What the panels hold, in one line.
  QString text() const;

 signals:
  void panelsShown();

 private:
  std::array<ElidedLabel*, 4> panels_{};
};

}  // namespace zel
