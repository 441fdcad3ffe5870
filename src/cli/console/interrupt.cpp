#include "cli/console/interrupt.h"

#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <thread>

#include "cli/console/console.h"

namespace zel {
namespace {

std::atomic<int> deferred = 0;  // so many threads put a file in its place
std::atomic<bool> pending = false;
static_assert(std::atomic<int>::is_always_lock_free && std::atomic<bool>::is_always_lock_free);

/// Looks at the threads after it has told them: the last of them sees one or the other.
extern "C" void onInterrupt(int) {
  pending = true;
  if (deferred == 0) std::_Exit(kExitInterrupted);
}

/// For the thread that ends the program.
[[noreturn]] void waitForTheEnd() {
  for (;;) std::this_thread::sleep_for(std::chrono::hours(1));
}

}  // namespace

void endOnInterrupt() {
  if (std::signal(SIGINT, SIG_IGN) != SIG_IGN) std::signal(SIGINT, onInterrupt);
}

DeferInterrupt::DeferInterrupt() {
  ++deferred;
  if (!pending) return;
  end();
  waitForTheEnd();
}

DeferInterrupt::~DeferInterrupt() { end(); }

void DeferInterrupt::end() {
  if (--deferred == 0 && pending) std::_Exit(kExitInterrupted);
}

}  // namespace zel
