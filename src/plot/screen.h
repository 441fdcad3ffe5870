#pragma once

#include <string>

namespace zel {

/// The four panels of the status bar. The first is always shown, the others only when they hold
/// text.
struct StatusPanels {
  std::string first;
  std::string second;
  std::string third;
  std::string fourth;

  bool operator==(const StatusPanels&) const = default;
};

/// What a drawing tells the user, and how it lets the user in.
class Screen {
 public:
  virtual ~Screen() = default;

  virtual void showStatus(const StatusPanels& panels) = 0;
  /// Lets pending events run. Anything may happen inside: a resize, a close, another redraw, the
  /// stop keys. Whoever calls this looks at its state again afterwards.
  virtual void runPendingEvents() = 0;
};

}  // namespace zel
