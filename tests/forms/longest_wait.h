#pragma once

#include <QAbstractEventDispatcher>
#include <QObject>
#include <algorithm>
#include <chrono>
#include <ctime>
#include <string>

namespace zel::test {

/// How long the longest stretch was in which no pending event could run: between the looks at
/// pending events, and the begin and the end of what is watched. Other programs take their share of
/// the clock's time, so the processor's is measured too.
class LongestWait {
 public:
  LongestWait() {
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake,
                     &context_, [this] { look(); });
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock,
                     &context_, [this] { look(); });
  }

  void begin() {
    clock_ = Clock::now();
    processor_ = std::clock();
    is_watching_ = true;
  }

  /// `what` stands in the text if it was the longest.
  void end(const std::string& what) {
    look();
    is_watching_ = false;
    if (longest_processor_ == told_) return;
    told_ = longest_processor_;
    what_ = what;
  }

  /// "longest wait: 31 ms (18 ms of the processor) in frmGrafico"
  std::string text() const {
    const auto clock = std::chrono::duration_cast<std::chrono::milliseconds>(longest_clock_);
    return "longest wait: " + std::to_string(clock.count()) + " ms (" +
           std::to_string(longest_processor_ * 1000 / CLOCKS_PER_SEC) +
           " ms of the processor) in " + what_;
  }

 private:
  using Clock = std::chrono::steady_clock;

  void look() {
    if (!is_watching_) return;
    const auto clock = Clock::now();
    const std::clock_t processor = std::clock();
    longest_clock_ = std::max(longest_clock_, clock - clock_);
    longest_processor_ = std::max(longest_processor_, processor - processor_);
    clock_ = clock;
    processor_ = processor;
  }

  QObject context_;
  bool is_watching_ = false;
  Clock::time_point clock_;
  std::clock_t processor_ = 0;
  Clock::duration longest_clock_{};
  std::clock_t longest_processor_ = 0;
  std::clock_t told_ = 0;  // of what_
  std::string what_;
};

}  // namespace zel::test
