#pragma once

#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace zel {

/// Jobs that are done on all cores, each of which leaves a text, perhaps an empty one.
class ParallelJobs {
 public:
  /// Does the job of a number. It is called in several threads at once, and throws nothing.
  using Job = std::function<std::string(std::size_t)>;

  /// Begins with them. Where no thread can be had they are done here.
  ParallelJobs(std::size_t count, Job job);
  /// Waits for the jobs that are being done; no other begins.
  ~ParallelJobs();
  ParallelJobs(const ParallelJobs&) = delete;
  ParallelJobs& operator=(const ParallelJobs&) = delete;

  /// What job `i` left, once it is done. Meanwhile `look(done)` is called several times a second
  /// with the number of jobs that are done.
  std::string await(std::size_t i, const std::function<void(std::size_t)>& look);

 private:
  void start();
  void work();

  Job job_;
  std::atomic<std::size_t> next_ = 0;
  std::mutex mutex_;  // guards what follows
  std::condition_variable is_done_;
  std::vector<std::optional<std::string>> results_;
  std::size_t done_ = 0;
  std::vector<std::jthread> threads_;
};

}  // namespace zel
