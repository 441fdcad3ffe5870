#include "plot/session/plot_command.h"

#include <algorithm>

namespace zel {

std::optional<PlotCommand> plotCommand(std::string_view key) {
  const auto* const found = std::find(kPlotCommandKeys.begin(), kPlotCommandKeys.end(), key);
  if (found == kPlotCommandKeys.end()) return std::nullopt;
  return static_cast<PlotCommand>(found - kPlotCommandKeys.begin());
}

}  // namespace zel
