// A descriptor that is opened gets the lowest number that is free, so the numbers are filled from
// below. What comes in the place of a stream is opened the wrong way round on purpose: output that
// goes nowhere is told as output that cannot be written.

#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

#include "files/standard_streams.h"

namespace zel {

void fillStandardStreams() {
  for (int number = STDIN_FILENO; number <= STDERR_FILENO; ++number) {
    if (::fcntl(number, F_GETFD) >= 0 || errno != EBADF) continue;
    static_cast<void>(::open("/dev/null", number == STDIN_FILENO ? O_WRONLY : O_RDONLY));
  }
}

}  // namespace zel
