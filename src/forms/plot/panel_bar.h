#pragma once

#include <QStatusBar>
#include <array>

#include "plot/screen.h"

class QLabel;

namespace zel {

/// A status bar of four panels. The first is always visible, the others only with text. The panels
/// are named as the bar with "_Panel1" to "_Panel4" behind it.
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
  std::array<QLabel*, 4> panels_{};
};

}  // namespace zel
