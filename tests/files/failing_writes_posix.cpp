#include <cerrno>
#include <csignal>
#include <string>

#include <gtest/gtest.h>
#include <unistd.h>

#include "child_posix.h"
#include "files/failing_writes.h"

namespace zel::test {
namespace {

constexpr int kSurvived = 7;

/// The error of a write to a pipe that nobody reads.
int errorOfAClosedPipe() {
  int ends[2];
  if (::pipe(ends) != 0) return 0;
  ::close(ends[0]);
  return ::write(ends[1], "x", 1) < 0 ? errno : 0;
}

/// Becomes a program that sends itself a signal, and ends with kSurvived where that does not end
/// it.
int startProgramThatGets(int signal) {
  const std::string command =
      "kill -" + std::to_string(signal) + " $$; exit " + std::to_string(kSurvived);
  ::execl("/bin/sh", "sh", "-c", command.c_str(), nullptr);
  return 0;
}

TEST(FailingWrite, ToAClosedPipeIsAnErrorWhereThatIsAskedFor) {
  EXPECT_EQ(inAChild([] {
              ::signal(SIGPIPE, SIG_DFL);
              letWritesFail(ClosedPipe::fails);
              return errorOfAClosedPipe();
            }),
            EPIPE);
}

TEST(FailingWrite, ToAClosedPipeEndsTheProcessOtherwise) {
  EXPECT_EQ(inAChild([] {
              ::signal(SIGPIPE, SIG_DFL);
              letWritesFail(ClosedPipe::ends_process);
              return errorOfAClosedPipe();
            }),
            -1);
}

TEST(FailingWrite, EndsAProgramThatIsStartedAsEver) {
  for (const int signal : {SIGPIPE, SIGXFSZ}) {
    EXPECT_EQ(inAChild([&] {
                ::signal(signal, SIG_DFL);
                letWritesFail(ClosedPipe::fails);
                return startProgramThatGets(signal);
              }),
              -1);
  }
}

TEST(FailingWrite, IsNothingToAProgramWhoseStarterIgnoresIt) {
  for (const int signal : {SIGPIPE, SIGXFSZ}) {
    EXPECT_EQ(inAChild([&] {
                ::signal(signal, SIG_IGN);
                letWritesFail(ClosedPipe::fails);
                return startProgramThatGets(signal);
              }),
              kSurvived);
  }
}

}  // namespace
}  // namespace zel::test
