#include <cerrno>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "child_posix.h"
#include "files/standard_streams.h"

namespace zel::test {
namespace {

constexpr int kStreams = 3;

/// Closes standard streams, those of the bits that are set.
void closeStreams(unsigned which) {
  for (int number = 0; number < kStreams; ++number)
    if ((which >> number & 1) != 0) ::close(number);
}

/// The descriptor that is opened next.
int nextNumber() { return ::open("/", O_RDONLY); }

TEST(StandardStreams, LeaveTheirNumbersToNoOtherFileWhicheverAreClosed) {
  for (unsigned closed = 0; closed < 1U << kStreams; ++closed) {
    const int number = inAChild([&] {
      closeStreams(closed);
      fillStandardStreams();
      return nextNumber();
    });
    EXPECT_GE(number, kStreams) << closed;
  }
}

TEST(StandardStreams, StayClosedToReadsAndWrites) {
  EXPECT_EQ(inAChild([] {
              closeStreams(0b111);
              fillStandardStreams();
              char byte = 'x';
              int failures = 0;
              if (::read(0, &byte, 1) < 0 && errno == EBADF) ++failures;
              for (const int number : {1, 2})
                if (::write(number, &byte, 1) < 0 && errno == EBADF) ++failures;
              return failures;
            }),
            kStreams);
}

TEST(StandardStreams, AreLeftAloneWhereTheyAreOpen) {
  EXPECT_EQ(inAChild([] {
              int ends[2];
              if (::pipe(ends) != 0 || ::dup2(ends[0], 0) < 0 || ::dup2(ends[1], 1) < 0) return 1;
              ::close(2);
              fillStandardStreams();
              char byte = 'x';
              const bool passes = ::write(1, &byte, 1) == 1 && ::read(0, &byte, 1) == 1;
              return passes ? 0 : 2;
            }),
            0);
}

}  // namespace
}  // namespace zel::test
