// What killed saves leave behind goes away with the next save, and nothing else does.

#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>

#include "child_posix.h"
#include "faulty_calls_posix.h"
#include "files/leftovers.h"
#include "files/temporary_name.h"
#include "files/whole_file.h"
#include "support/temporary_folder.h"

namespace zel::test {
namespace {

namespace fs = std::filesystem;

class Leftovers : public ::testing::Test {
 protected:
  void write() { EXPECT_TRUE(writeWholeFile(path, "x").written); }

  std::string leave(const std::string& name = newTemporaryName()) {
    putBytes(folder / name, "left");
    return name;
  }

  using Names = std::set<std::string>;
  TemporaryFolder folder;
  std::string path = folder / "file";
};

TEST(TemporaryNames, AreNeverTheSameAndAreKnownAgain) {
  std::set<std::string> names;
  for (int i = 0; i < 1000; ++i) names.insert(newTemporaryName());
  EXPECT_EQ(names.size(), 1000u);
  std::set<char> digits;
  for (const std::string& name : names) {
    EXPECT_TRUE(isTemporaryName(name)) << name;
    EXPECT_EQ(name.size(), std::string_view(".zel-0123456789abcdef.tmp").size());
    const std::string random = name.substr(std::string_view(".zel-").size(), 16);
    digits.insert(random.begin(), random.end());
  }
  EXPECT_EQ(digits.size(), 16u);
}

/// A copy of the process has the state of any generator that the process holds.
TEST(TemporaryNames, AreOthersInACopyOfTheProcess) {
  const TemporaryFolder folder;
  const std::string path = folder / "name";
  ASSERT_EQ(inAChild([&] {
              putBytes(path, newTemporaryName());
              return 0;
            }),
            0);
  const std::string name = newTemporaryName();
  EXPECT_TRUE(isTemporaryName(bytesOf(path)));
  EXPECT_NE(bytesOf(path), name);
}

TEST(TemporaryNames, AreNothingElse) {
  EXPECT_TRUE(isTemporaryName(".zel-0123456789abcdef.tmp"));
  for (const char* const name :
       {"", ".zel-.tmp", ".zel-0123456789abcde.tmp", ".zel-0123456789abcdef0.tmp",
        ".zel-0123456789ABCDEF.tmp", ".zel-0123456789abcdeg.tmp", ".zel-0123456789abcdef",
        ".zel-0123456789abcdef.zel", "zel-0123456789abcdef.tmp", "xzel-0123456789abcdef.tmp",
        "x.zel-0123456789abcdef.tmp", ".zel-0123456789abcdef.tmp~", ".zel-1234-0"})
    EXPECT_FALSE(isTemporaryName(name)) << name;
}

TEST_F(Leftovers, AreTakenAwayByTheNextSave) {
  leave();
  leave();
  write();
  EXPECT_EQ(folder.names(), Names{"file"});
}

TEST_F(Leftovers, AreTakenAwayFromTheCurrentFolderAndThroughALink) {
  fs::create_directory(folder / "sub");
  putBytes(folder / "sub/target", "old");
  leave("sub/" + newTemporaryName());
  fs::create_symlink("sub/target", path);
  write();
  EXPECT_FALSE(fs::exists(folder / "sub/file"));
  leave("sub/" + newTemporaryName());
  const CurrentFolderGuard current(folder.path() / "sub");
  EXPECT_TRUE(writeWholeFile("target", "x").written);
  EXPECT_EQ(std::distance(fs::directory_iterator("."), fs::directory_iterator()), 1);
}

TEST_F(Leftovers, AreFilesOfTheirNameOnly) {
  for (const char* const name : {".zel-1234-0", "x.tmp", ".zel-0123456789abcdef.zel"}) leave(name);
  write();
  EXPECT_EQ(folder.names(), (Names{"file", ".zel-1234-0", "x.tmp", ".zel-0123456789abcdef.zel"}));
}

TEST_F(Leftovers, AreRegularFilesOnly) {
  const Names names = {"file", ".zel-000000000000000a.tmp", ".zel-000000000000000b.tmp",
                       ".zel-000000000000000c.tmp", ".zel-000000000000000d.tmp"};
  fs::create_directory(folder / ".zel-000000000000000a.tmp");
  ASSERT_EQ(::mkfifo((folder / ".zel-000000000000000b.tmp").c_str(), 0600), 0);
  fs::create_symlink("file", folder / ".zel-000000000000000c.tmp");
  fs::create_symlink("nothing", folder / ".zel-000000000000000d.tmp");
  beginFaults({.only = "openat"});
  write();
  EXPECT_EQ(endFaults(), 0);  // nothing else is even opened
  EXPECT_EQ(folder.names(), names);
  EXPECT_EQ(bytesOf(path), "x");
}

TEST_F(Leftovers, AreNotTheFileThatIsWritten) {
  path = folder / leave();
  removeLeftovers(path);
  EXPECT_EQ(bytesOf(path), "left");
}

TEST_F(Leftovers, AreNotWhatARunningSaveHolds) {
  const std::string held = leave();
  const int number = ::open((folder / held).c_str(), O_WRONLY | O_CLOEXEC);
  ASSERT_EQ(::flock(number, LOCK_EX), 0);
  write();
  EXPECT_EQ(folder.names(), (Names{"file", held}));
  ::close(number);
  write();
  EXPECT_EQ(folder.names(), Names{"file"});
}

TEST_F(Leftovers, AreNotSomebodyElses) {
  if (::geteuid() != 0) GTEST_SKIP() << "only root has others";
  fs::permissions(folder.path(), fs::perms::all);
  const std::string others = leave();
  const std::string own = leave();
  ASSERT_EQ(::chmod((folder / others).c_str(), 0666), 0);
  ASSERT_EQ(::chown((folder / own).c_str(), 65534, 65534), 0);
  EXPECT_EQ(asNobody([&] { return writeWholeFile(path, "x").written ? 1 : 0; }), 1);
  EXPECT_EQ(folder.names(), (Names{"file", others}));
  ASSERT_EQ(::chown((folder / others).c_str(), 4321, 1234), 0);
  write();  // root takes them all away
  EXPECT_EQ(folder.names(), Names{"file"});
}

TEST_F(Leftovers, AreTheOnlyFilesTakenAwayWhicheverCallFails) {
  std::string left;
  const auto prepare = [&] {
    for (const std::string& name : folder.names()) fs::remove(folder / name);
    for (const char* const name : {"file", "other", ".zel-1234-0"}) leave(name);
    left = leave();
  };
  const auto look = [&] {
    Names names = folder.names();
    names.erase(left);
    EXPECT_EQ(names, (Names{"file", "other", ".zel-1234-0"}));
  };
  for (const bool lasts : {false, true})
    atEachCall(
        {.lasts = lasts, .error = EIO}, prepare, [this] { removeLeftovers(path); }, look);
  EXPECT_FALSE(fs::exists(folder / left));
}

TEST_F(Leftovers, StayBehindTheFirstNamesOfALargeFolder) {
  ASSERT_EQ(kMostNamesLookedAt, 10'000u);
  for (std::size_t i = 0; i < kMostNamesLookedAt; ++i) leave();
  write();  // two of the names are "." and ".."
  EXPECT_EQ(folder.names().size(), 3u);
  write();
  EXPECT_EQ(folder.names(), Names{"file"});
}

}  // namespace
}  // namespace zel::test
