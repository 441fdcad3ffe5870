#pragma once

#include <chrono>
#include <iosfwd>
#include <string>

namespace zel {

/// Shows how far a long work is, on one line of standard error when that is a terminal, from its
/// second second on.
class Progress {
 public:
  explicit Progress(std::ostream& err);
  ~Progress() { clear(); }
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  /// Shows the text that `text()` makes, unless it is too soon for another look.
  template <class Text>
  void show(const Text& text) {
    if (shows_ && isDue()) write(text());
  }

  /// Takes the line away until the next look.
  void clear();

 private:
  using Clock = std::chrono::steady_clock;

  bool isDue();
  void write(const std::string& text);

  std::ostream& err_;
  bool shows_;
  Clock::time_point next_;
  std::size_t width_ = 0;
};

}  // namespace zel
