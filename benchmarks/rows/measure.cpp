#include "benchmarks/rows/measure.h"

#include <algorithm>
#include <cmath>
#include <ctime>
#include <vector>

namespace zel::bench {
namespace {

constexpr double kTurn = 0.0005;  // seconds; the system seldom interrupts so short a turn

double now(Clock clock) {
  timespec time = {};
  clock_gettime(clock == Clock::wall ? CLOCK_MONOTONIC : CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

double secondsOf(const Task& task, int times, Clock clock) {
  const double began = now(clock);
  for (int i = 0; i < times; ++i) task();
  return (now(clock) - began) / times;
}

/// How often a task is run in a turn. Finding that out warms the task up.
int timesInTurn(const Task& task, Clock clock) {
  int times = 1;
  double seconds = secondsOf(task, times, clock);
  while (seconds * times < kTurn / 4) {
    times *= 2;
    seconds = secondsOf(task, times, clock);
  }
  return std::max(1, static_cast<int>(std::lround(kTurn / seconds)));
}

double median(std::vector<double>& seconds) {
  const auto middle = seconds.begin() + static_cast<std::ptrdiff_t>(seconds.size() / 2);
  std::nth_element(seconds.begin(), middle, seconds.end());
  return *middle;
}

}  // namespace

SideBySide measureSideBySide(int rounds, const Task& measured, const Task& beside, Clock clock) {
  const int times_measured = timesInTurn(measured, clock);
  const int times_beside = timesInTurn(beside, clock);
  std::vector<double> seconds_measured;
  std::vector<double> seconds_beside;
  for (int i = 0; i < rounds; ++i) {
    seconds_measured.push_back(secondsOf(measured, times_measured, clock));
    seconds_beside.push_back(secondsOf(beside, times_beside, clock));
  }
  return {median(seconds_measured), median(seconds_beside)};
}

double measureAlone(int rounds, const Task& task) {
  const int times = timesInTurn(task, Clock::thread);
  std::vector<double> seconds;
  for (int i = 0; i < rounds; ++i) seconds.push_back(secondsOf(task, times, Clock::thread));
  return median(seconds);
}

}  // namespace zel::bench
