#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "plot/screen.h"

namespace zel::test {

/// Records what is shown, and lets a test be the user: `on_events` runs inside of
/// runPendingEvents, with the number of the run from 1.
class RecorderScreen : public Screen {
 public:
  void showStatus(const StatusPanels& panels) override { statuses.push_back(panels); }
  void runPendingEvents() override {
    ++event_runs;
    if (on_events) on_events(event_runs);
  }

  /// The panels of each status that was shown, from the first to the fourth: "first|second||".
  std::vector<std::string> texts() const {
    std::vector<std::string> result;
    for (const StatusPanels& panels : statuses)
      result.push_back(panels.first + "|" + panels.second + "|" + panels.third + "|" +
                       panels.fourth);
    return result;
  }

  std::vector<StatusPanels> statuses;
  std::size_t event_runs = 0;
  std::function<void(std::size_t)> on_events;
};

}  // namespace zel::test
