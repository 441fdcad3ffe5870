// What some file systems refuse, or cannot do: a save goes through where it can, and tells where
// not.

#include <cerrno>

#include <gtest/gtest.h>

#include "faulty_calls_posix.h"
#include "files/descriptor.h"
#include "files/whole_file.h"
#include "support/temporary_folder.h"

namespace zel::test {
namespace {

class OddFileSystem : public ::testing::Test {
 protected:
  /// The result of a write; counts the calls that the fault is about.
  WriteResult writeUnder(const Fault& fault) {
    beginFaults(fault);
    const WriteResult result = writeWholeFile(path, "new");
    calls = endFaults();
    return result;
  }

  void expectOnly(std::string_view bytes) {
    EXPECT_EQ(folder.names(), std::set<std::string>{"file"});
    EXPECT_EQ(bytesOf(path), bytes);
  }

  int calls = 0;
  TemporaryFolder folder;
  std::string path = folder / "file";
};

TEST_F(OddFileSystem, ThatTakesNoByteIsNotTriedForever) {
  putBytes(path, "old");
  EXPECT_EQ(writeUnder({.piece = 0}), (WriteResult{true, false, EIO}));
  expectOnly("old");
}

TEST_F(OddFileSystem, ThatInterruptsACallForeverIsNotTriedForever) {
  putBytes(path, "old");
  EXPECT_EQ(writeUnder({.first = 1, .lasts = true, .error = EINTR, .only = "fsync"}),
            (WriteResult{true, false, EINTR}));
  ASSERT_EQ(kMostInterruptions, 100);
  EXPECT_EQ(calls, 1 + kMostInterruptions);
  expectOnly("old");
}

TEST_F(OddFileSystem, ThatInterruptsACallOnceIsAskedOnceMore) {
  EXPECT_TRUE(writeUnder({.first = 1, .error = EINTR, .only = "fsync"}).written);
  EXPECT_EQ(calls, 3);  // of the file, again, and of its folder
}

TEST_F(OddFileSystem, WithTheSamePermissionsForAllFilesTakesNewOnes) {
  EXPECT_EQ(writeUnder({.first = 1, .lasts = true, .error = EPERM, .only = "fchmod"}),
            (WriteResult{false, true}));
  expectOnly("new");
}

TEST_F(OddFileSystem, ThatDoesNotShowAHiddenFileAgainGetsNone) {
  EXPECT_EQ(writeUnder({.first = 2, .error = EPERM, .only = "fchmod"}),
            (WriteResult{false, false, EPERM}));
  EXPECT_EQ(folder.names(), std::set<std::string>{});
}

TEST_F(OddFileSystem, WithoutLocksIsWrittenToAndKeepsLeftovers) {
  const std::string left = ".zel-0123456789abcdef.tmp";
  putBytes(folder / left, "left");
  EXPECT_TRUE(writeUnder({.first = 1, .lasts = true, .error = ENOLCK, .only = "flock"}).written);
  EXPECT_EQ(folder.names(), (std::set<std::string>{"file", left}));
  EXPECT_EQ(bytesOf(path), "new");
}

TEST_F(OddFileSystem, WhoseFoldersCannotBeBroughtToTheDiskIsWrittenTo) {
  putBytes(path, "old");
  for (const char* const call : {"open", "fsync"}) {  // the first is that of the file
    EXPECT_EQ(writeUnder({.first = 2, .lasts = true, .error = EINVAL, .only = call}),
              (WriteResult{true, true}));
    EXPECT_EQ(calls, 2) << call;
    expectOnly("new");
  }
}

TEST_F(OddFileSystem, WithALinkThatIsLongerThanAnyPathIsNotFollowedHalfWay) {
  putBytes(path, "old");
  const std::string target(5000, 'x');
  EXPECT_EQ(writeUnder({.only = "readlink", .answer = target}), (WriteResult{true, false, ELOOP}));
  expectOnly("old");
}

TEST_F(OddFileSystem, WithLinksThatNeverEndIsNotFollowedForever) {
  putBytes(path, "old");
  EXPECT_EQ(writeUnder({.only = "readlink", .answer = "file"}), (WriteResult{true, false, ELOOP}));
  EXPECT_EQ(calls, 41);  // what the fortieth link leads to may be the file
  expectOnly("old");
}

TEST_F(OddFileSystem, ThatLosesAFileAtItsCloseHasMadeNone) {
  beginFaults({.first = 1, .error = EIO, .only = "close"});
  EXPECT_FALSE(createMissingFile(path));
  EXPECT_EQ(endFaults(), 1);
}

}  // namespace
}  // namespace zel::test
