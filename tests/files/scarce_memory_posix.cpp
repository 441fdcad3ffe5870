// Loads that need more memory than the process may have, in a child that may have little.

#include <sys/resource.h>
#include <unistd.h>

#include "child_posix.h"
#include "document_fixture.h"

namespace zel::test {
namespace {

constexpr std::size_t kSpare = std::size_t{40} << 20;

/// Bytes of address space; 0 where the system does not say.
std::size_t usedMemory() {
  std::size_t pages = 0;
  std::ifstream("/proc/self/statm") >> pages;
  return pages * static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
}

class ScarceMemory : public DocumentTest {
 protected:
  void SetUp() override {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the address sanitizer needs its memory";
#endif
    if (usedMemory() == 0) GTEST_SKIP() << "there is no /proc";
  }

  /// Whether a load of these bytes fails with this message.
  bool failsWith(std::string_view bytes, std::string_view expected) {
    putBytes(path, bytes);
    const int failed = inAChild([&] {
      const bool fails = hasLittle() && !loadDocument(path, view, graphs, header, message);
      return fails && message == expected ? 1 : 0;
    });
    return failed == 1;
  }

  /// Leaves this process little more memory than it has.
  static bool hasLittle() {
    const rlim_t limit = usedMemory() + kSpare;
    const rlimit limits = {limit, limit};
    return ::setrlimit(RLIMIT_AS, &limits) == 0;
  }
};

TEST_F(ScarceMemory, MakesALargeFileOneThatCannotBeRead) {
  EXPECT_TRUE(failsWith(std::string(2 * kSpare, 'x'), messages::kCannotOpen));
}

TEST_F(ScarceMemory, StopsADocumentWhoseValueDoesNotFit) {
  const std::string euros(kSpare / 2, '\x80');  // three bytes each in memory
  EXPECT_TRUE(
      failsWith(replaceAll(sampleText(), "usuario=", "usuario=" + euros), messages::kCannotOpen));
}

TEST_F(ScarceMemory, LeavesTheOlderDocumentWhereTheNewOneCannotBeChecked) {
  putBytes(path, "older");
  graphs.rebuildGraph('a', std::string(kSpare, 'x'), "", 0, '?', nullptr);
  const int refused = inAChild([&] {
    return hasLittle() && saveDocument(path, view, graphs) == messages::kCannotSave ? 1 : 0;
  });
  EXPECT_EQ(refused, 1);
  EXPECT_EQ(bytesOf(path), "older");
  EXPECT_TRUE(writeDocument(path, view, graphs).written);
}

}  // namespace
}  // namespace zel::test
