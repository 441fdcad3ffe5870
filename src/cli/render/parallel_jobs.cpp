#include "cli/render/parallel_jobs.h"

#include <algorithm>
#include <chrono>
#include <system_error>
#include <utility>

namespace zel {

ParallelJobs::ParallelJobs(std::size_t count, Job job) : job_(std::move(job)), results_(count) {
  start();
  if (threads_.empty()) work();
}

ParallelJobs::~ParallelJobs() { next_ = results_.size(); }

/// A thread that cannot be had leaves its share to the others.
void ParallelJobs::start() try {
  const std::size_t cores = std::max(std::thread::hardware_concurrency(), 1U);
  const std::size_t wanted = std::min(cores, results_.size());
  threads_.reserve(wanted);
  while (threads_.size() < wanted) threads_.emplace_back([this] { work(); });
} catch (const std::system_error&) {
}

void ParallelJobs::work() {
  for (std::size_t i = next_++; i < results_.size(); i = next_++) {
    std::string result = job_(i);
    const std::lock_guard guard(mutex_);
    results_[i] = std::move(result);
    ++done_;
    is_done_.notify_one();
  }
}

std::string ParallelJobs::await(std::size_t i, const std::function<void(std::size_t)>& look) {
  constexpr auto kPause = std::chrono::milliseconds(100);
  std::unique_lock lock(mutex_);
  while (!results_[i]) {
    const std::size_t done = done_;
    lock.unlock();
    look(done);
    lock.lock();
    is_done_.wait_for(lock, kPause, [&] { return results_[i].has_value(); });
  }
  return std::move(*results_[i]);
}

}  // namespace zel
