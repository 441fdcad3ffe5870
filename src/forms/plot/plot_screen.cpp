#include "forms/plot/plot_screen.h"

#include <QCoreApplication>

#include "forms/plot/panel_bar.h"
#include "forms/plot/picture_box.h"

namespace zel {

void PlotScreen::showStatus(const StatusPanels& panels) { bar_.showPanels(panels); }

void PlotScreen::runPendingEvents() {
  if (since_events_.isValid() && since_events_.elapsed() < kEventInterval) return;
  picture_.showProgress();
  QCoreApplication::processEvents();
  since_events_.start();
}

}  // namespace zel
