#pragma once

#include <functional>

namespace zel::bench {

using Task = std::function<void()>;

/// Medians of the seconds that a task takes.
struct SideBySide {
  double measured = 0;
  double beside = 0;
};

/// Runs two tasks in turn, so that what else the machine does hits both. A turn takes half a
/// millisecond, or one run of the task where that takes longer.
SideBySide measureSideBySide(int rounds, const Task& measured, const Task& beside);

/// The same for a task alone.
double measureAlone(int rounds, const Task& task);

}  // namespace zel::bench
