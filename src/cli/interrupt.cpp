#include "cli/interrupt.h"

#include <csignal>
#include <cstdlib>

#include "cli/console.h"

namespace zel {
namespace {

volatile std::sig_atomic_t deferred = 0;
volatile std::sig_atomic_t pending = 0;

extern "C" void onInterrupt(int) {
  if (deferred == 0) std::_Exit(kExitInterrupted);
  pending = 1;
}

}  // namespace

void endOnInterrupt() {
  if (std::signal(SIGINT, SIG_IGN) != SIG_IGN) std::signal(SIGINT, onInterrupt);
}

DeferInterrupt::DeferInterrupt() { deferred = 1; }

DeferInterrupt::~DeferInterrupt() {
  deferred = 0;
  if (pending != 0) std::_Exit(kExitInterrupted);
}

}  // namespace zel
