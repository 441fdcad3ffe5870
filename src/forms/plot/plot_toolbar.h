#pragma once

#include <QToolBar>
#include <array>

#include "plot/session/plot_command.h"

namespace zel {

class PlotSession;

/// The toolbar of the plot window: a button for each command, in their order. Action and button are
/// named by the command's key.
class PlotToolbar : public QToolBar {
  Q_OBJECT

 public:
  PlotToolbar();

  void assignCaptions();
  /// Buttons are enabled and pressed as the session is.
  void follow(const PlotSession& session);

 signals:
  void ButtonClick(PlotCommand command);

 private:
  std::array<QAction*, kPlotCommandKeys.size()> actions_{};
};

}  // namespace zel
