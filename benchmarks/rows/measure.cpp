#include "benchmarks/rows/measure.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <vector>

namespace zel::bench {
namespace {

constexpr double kTurn = 0.0005;  // seconds; the system seldom interrupts so short a turn

double secondsOf(const Task& task, int times) {
  const auto began = std::chrono::steady_clock::now();
  for (int i = 0; i < times; ++i) task();
  const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - began;
  return elapsed.count() / times;
}

/// How often a task is run in a turn. Finding that out warms the task up.
int timesInTurn(const Task& task) {
  int times = 1;
  double seconds = secondsOf(task, times);
  while (seconds * times < kTurn / 4) {
    times *= 2;
    seconds = secondsOf(task, times);
  }
  return std::max(1, static_cast<int>(std::lround(kTurn / seconds)));
}

double median(std::vector<double>& seconds) {
  const auto middle = seconds.begin() + static_cast<std::ptrdiff_t>(seconds.size() / 2);
  std::nth_element(seconds.begin(), middle, seconds.end());
  return *middle;
}

}  // namespace

SideBySide measureSideBySide(int rounds, const Task& measured, const Task& beside) {
  const int times_measured = timesInTurn(measured);
  const int times_beside = timesInTurn(beside);
  std::vector<double> seconds_measured;
  std::vector<double> seconds_beside;
  for (int i = 0; i < rounds; ++i) {
    seconds_measured.push_back(secondsOf(measured, times_measured));
    seconds_beside.push_back(secondsOf(beside, times_beside));
  }
  return {median(seconds_measured), median(seconds_beside)};
}

double measureAlone(int rounds, const Task& task) {
  const int times = timesInTurn(task);
  std::vector<double> seconds;
  for (int i = 0; i < rounds; ++i) seconds.push_back(secondsOf(task, times));
  return median(seconds);
}

}  // namespace zel::bench
