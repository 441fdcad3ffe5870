#pragma once

#include <QElapsedTimer>

#include "plot/screen.h"

namespace zel {

class PanelBar;
class PictureBox;

/// The plot window as a drawing sees it. Pending events run at most every few milliseconds, however
/// often the drawing asks, and what it has drawn is shown now and then.
class PlotScreen : public Screen {
 public:
  static constexpr int kEventInterval = 5;  // milliseconds

  PlotScreen(PictureBox& picture, PanelBar& bar) : picture_(picture), bar_(bar) {}

  void showStatus(const StatusPanels& panels) override;
  void runPendingEvents() override;

 private:
  PictureBox& picture_;
  PanelBar& bar_;
  QElapsedTimer since_events_;
};

}  // namespace zel
