#pragma once

#include <QToolBar>
#include <array>

#include "plot/session/plot_command.h"

class QToolButton;

namespace zel {

class PlotSession;

/// The toolbar of the plot window: a button for each command, in their order. Action and button are
/// named by the command's key. The two step buttons repeat while they are held; the button that
/// copies has a menu with "Copiar_Con_Numeros".
class PlotToolbar : public QToolBar {
  Q_OBJECT

 public:
  static constexpr int kStepInterval = 15;  // milliseconds between the steps of a held button

  PlotToolbar();

  void assignCaptions();
  /// Buttons are enabled and pressed as the session is.
  void follow(const PlotSession& session);

 signals:
  void ButtonClick(PlotCommand command);
  void copyWithNumbersClicked();

 private:
  void makeButton(PlotCommand command);
  QToolButton& buttonOf(PlotCommand command);

  std::array<QAction*, kPlotCommandKeys.size()> actions_{};
  QAction* copy_with_numbers_;
};

}  // namespace zel
