#pragma once

#include <string>

namespace zel {

inline constexpr const char* kVersionText = "2.8";
inline constexpr const char* kBuildText = "2.8.81.02.2008";

/// What the presentation window decides. It stays for two ticks of its timer, because the first one
/// after an activation only clears a flag; this wait is meant.
class Presentation {
 public:
  static constexpr int kInterval = 2000;  // milliseconds from tick to tick

  bool timerRuns() const { return timer_runs_; }
  void enableTimer(bool runs) { timer_runs_ = runs; }

  void activated() { just_activated_ = true; }
  /// Without its timer the window is closed with its button.
  bool showsCloseButton() const { return !timer_runs_; }

  /// True when the window closes.
  bool tick();
  /// "P" and "p" pause and go on; any other character closes the window. True when it closes.
  bool keyPressed(char32_t key);
  bool versionClicked() const { return timer_runs_; }

  /// The build text, or that it is paused, in the current language.
  std::string statusText() const;

 private:
  bool timer_runs_ = false;
  bool just_activated_ = false;
  bool is_paused_ = false;
};

}  // namespace zel
