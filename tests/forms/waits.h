#pragma once

#include <QAbstractEventDispatcher>
#include <QObject>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <ctime>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace zel::test {

/// How long an event would have waited: the stretches between two looks at pending events, and the
/// begin and the end of what is watched. Other programs take their share of the clock's time, so
/// what is measured is the thread's processor time, and the time by the clock less what the
/// thread stood in line for a processor, which has the waits for the disk in it. Only Linux tells
/// the latter; elsewhere it is all of the clock's time.
class Waits {
 public:
  static constexpr double kLongest = 50;  // milliseconds

  /// What is of one of the kinds `apart` has figures of its own and is none of the waits.
  explicit Waits(std::set<std::string> apart) : apart_(std::move(apart)) {
    const QAbstractEventDispatcher* const dispatcher = QAbstractEventDispatcher::instance();
    QObject::connect(dispatcher, &QAbstractEventDispatcher::awake, &context_, [this] { look(); });
    QObject::connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, &context_,
                     [this] { look(); });
    constexpr int kLongestIdle = 1;  // millisecond: while there is nothing to do nothing waits
    never_idle_.start(kLongestIdle);
  }

  /// Until the end stretches count for this kind; what begins inside of it has a kind of its own.
  void begin(std::string kind) {
    look();
    kinds_.push_back(std::move(kind));
  }

  void end() {
    look();
    kinds_.pop_back();
  }

  /// The stretch that is under way counts for this kind, whatever it began as.
  void countAs(std::string kind) { counted_as_ = std::move(kind); }

  /// "longest wait: 18.2 ms of the processor (frmGrafico key), 31.0 ms by the clock (main open)",
  /// how many of all were too long, and a line for what is apart and for each kind that had such a
  /// one.
  std::string text() const {
    std::ostringstream text;
    text.setf(std::ios::fixed);
    text.precision(1);
    text << "longest wait: " << longest_.processor << " ms of the processor (" << by_processor_
         << "), " << longest_.clock << " ms by the clock (" << by_clock_ << ")\n"
         << "waits over " << kLongest << " ms: " << longest_.over_by_processor
         << " by the processor and " << longest_.over_by_clock << " by the clock, of "
         << longest_.count;
    for (const auto& [kind, figures] : figures_) {
      if (!apart_.contains(kind) && figures.over_by_clock + figures.over_by_processor == 0)
        continue;
      text << "\nwaits of " << kind << ": " << figures.count
           << ", over: " << figures.over_by_processor << " (longest " << figures.processor
           << " ms) and " << figures.over_by_clock << " (longest " << figures.clock << " ms)";
    }
    return text.str();
  }

 private:
  struct Figures {
    unsigned long count = 0;
    unsigned long over_by_processor = 0;
    unsigned long over_by_clock = 0;
    double processor = 0;  // the longest, in milliseconds
    double clock = 0;

    void add(double by_processor, double by_clock) {
      ++count;
      over_by_processor += by_processor > kLongest;
      over_by_clock += by_clock > kLongest;
      processor = std::max(processor, by_processor);
      clock = std::max(clock, by_clock);
    }
  };

  /// In milliseconds, and of no meaning but by the difference of two.
  struct Moment {
    double processor = 0;
    double clock = 0;
  };

  static Moment now() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    double run = 0;  // nanoseconds, as what follows
    double in_line = 0;
    std::ifstream("/proc/thread-self/schedstat") >> run >> in_line;
    using Milliseconds = std::chrono::duration<double, std::milli>;
    return {
        static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6,
        Milliseconds(std::chrono::steady_clock::now().time_since_epoch()).count() - in_line / 1e6};
  }

  void look() {
    const Moment moment = now();
    if (!kinds_.empty()) note(moment.processor - before_.processor, moment.clock - before_.clock);
    counted_as_.clear();
    before_ = moment;
  }

  void note(double processor, double clock) {
    const std::string& kind = counted_as_.empty() ? kinds_.back() : counted_as_;
    figures_[kind].add(processor, clock);
    if (apart_.contains(kind)) return;
    if (processor > longest_.processor) by_processor_ = kind;
    if (clock > longest_.clock) by_clock_ = kind;
    longest_.add(processor, clock);
  }

  std::set<std::string> apart_;
  QObject context_;
  QTimer never_idle_;
  std::vector<std::string> kinds_;  // of what is under way, the innermost last
  std::string counted_as_;          // empty for the innermost
  std::map<std::string, Figures> figures_;
  Figures longest_;
  std::string by_processor_;
  std::string by_clock_;
  Moment before_;
};

}  // namespace zel::test
