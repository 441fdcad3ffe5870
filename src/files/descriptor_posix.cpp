#include <fcntl.h>
#include <unistd.h>

#include "files/descriptor.h"

namespace zel {

void Descriptor::reset(int number) {
  close();
  number_ = number;
}

int Descriptor::close() {
  if (number_ < 0) return 0;
  const int error = ::close(number_) == 0 || errno == EINTR ? 0 : errno;
  number_ = kNone;
  return error;
}

int openFile(const std::string& path, int flags, unsigned permissions) {
  return retried([&] { return ::open(path.c_str(), flags | O_CLOEXEC | O_NOCTTY, permissions); });
}

}  // namespace zel
