// Two writes that fail send a signal besides, whose default is the end of the process. A handler
// that does nothing is enough, and unlike a signal that is ignored it is not handed on to programs
// that are started.

#include <csignal>

#include "files/failing_writes.h"

namespace zel {
namespace {

extern "C" void passOver(int) {}

void outlive(int number) {
  struct sigaction action {};
  if (::sigaction(number, nullptr, &action) != 0 || action.sa_handler != SIG_DFL) return;
  action.sa_handler = passOver;
  action.sa_flags = SA_RESTART;
  ::sigaction(number, &action, nullptr);
}

}  // namespace

void letWritesFail(ClosedPipe closed_pipe) {
  outlive(SIGXFSZ);
  if (closed_pipe == ClosedPipe::fails) outlive(SIGPIPE);
}

}  // namespace zel
