#pragma once

#include <cerrno>

#include <sys/wait.h>
#include <unistd.h>

namespace zel::test {

/// The result of a call that a child process makes, from 0 to 255; -1 when it did not come back.
template <class Call>
int inAChild(Call call) {
  const pid_t child = ::fork();
  if (child == 0) ::_exit(call());
  int status = 0;
  while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
  }
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// The same as a user who may not do everything.
template <class Call>
int asNobody(Call call) {
  return inAChild([&] {
    const bool is_nobody = ::geteuid() != 0 || (::setgid(65534) == 0 && ::setuid(65534) == 0);
    return is_nobody ? call() : 99;
  });
}

}  // namespace zel::test
