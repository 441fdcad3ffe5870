#pragma once

#include <functional>

namespace zel::bench {

using Task = std::function<void()>;

/// What a time is: that of the processor at work for this thread, which other programs do not
/// lengthen, or the one that passes, for tasks of several threads.
enum class Clock { thread, wall };

/// Medians of the seconds that a task takes.
struct SideBySide {
  double measured = 0;
  double beside = 0;
};

/// Runs two tasks in turn, so that what else the machine does hits both. A turn takes half a
/// millisecond, or one run of the task where that takes longer.
SideBySide measureSideBySide(int rounds, const Task& measured, const Task& beside,
                             Clock clock = Clock::thread);

/// The same for a task alone.
double measureAlone(int rounds, const Task& task);

}  // namespace zel::bench
