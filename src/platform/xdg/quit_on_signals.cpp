// A signal may come in the middle of anything, where next to nothing may be called. So its handler
// writes a byte into a pipe, and the event loop, which listens at the other end, ends the program
// between two events.

#include <QCoreApplication>
#include <QEvent>
#include <QSocketNotifier>
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <ctime>

#include <fcntl.h>
#include <unistd.h>

#include "platform/desktop_services.h"

namespace zel {
namespace {

/// A handler of signals knows what is global, and nothing else.
std::atomic<int> pipe_end = -1;
static_assert(std::atomic<int>::is_always_lock_free);
std::atomic<std::time_t> first_signal = 0;  // seconds of the clock; 0 before it
static_assert(std::atomic<std::time_t>::is_always_lock_free);

/// A terminal that is closed, or a program that ends others, may send a signal twice at once: what
/// is kept meanwhile is not to be lost. Later than this the loop may not come around any more.
constexpr std::time_t kPatience = 2;  // seconds

extern "C" void noteSignal(int number) {
  const int before = errno;
  timespec now{};
  ::clock_gettime(CLOCK_MONOTONIC, &now);
  std::time_t first = 0;
  if (!first_signal.compare_exchange_strong(first, now.tv_sec) && now.tv_sec - first >= kPatience) {
    std::signal(number, SIG_DFL);
    std::raise(number);
  }
  const char byte = 0;
  // A pipe that is full has told enough.
  [[maybe_unused]] const auto written = ::write(pipe_end, &byte, sizeof byte);
  errno = before;
}

/// One that the program was started to ignore, as nohup does, stays ignored.
void catchSignal(int number) {
  struct sigaction action {};
  if (::sigaction(number, nullptr, &action) != 0 || action.sa_handler == SIG_IGN) return;
  action = {};
  action.sa_handler = noteSignal;
  action.sa_flags = SA_RESTART;
  ::sigaction(number, &action, nullptr);
}

}  // namespace

void quitOnSignals() {
  std::array<int, 2> ends{};
  if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
  pipe_end = ends[1];
  QCoreApplication* const application = QCoreApplication::instance();
  auto* const notifier = new QSocketNotifier(ends[0], QSocketNotifier::Read, application);
  QObject::connect(notifier, &QSocketNotifier::activated, application, [=] {
    notifier->setEnabled(false);
    QEvent quit(QEvent::Quit);
    QCoreApplication::sendEvent(application, &quit);
  });
  for (const int number : {SIGTERM, SIGINT, SIGHUP}) catchSignal(number);
}

}  // namespace zel
