// What another program does between two calls of a save, a load or a search for leftovers: nothing
// is taken for what it is not any more.

#include <cerrno>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "faulty_calls_posix.h"
#include "files/leftovers.h"
#include "files/temporary_name.h"
#include "files/whole_file.h"
#include "support/temporary_folder.h"

namespace zel::test {
namespace {

namespace fs = std::filesystem;

using Names = std::set<std::string>;

class Races : public ::testing::Test {
 protected:
  Races() { putBytes(path, "old"); }

  WriteResult writeUnder(const Fault& fault) {
    beginFaults(fault);
    const WriteResult result = writeWholeFile(path, "new");
    calls = endFaults();
    return result;
  }

  std::optional<std::string> readUnder(const Fault& fault) {
    beginFaults(fault);
    auto bytes = readWholeFile(path);
    endFaults();
    return bytes;
  }

  /// A pipe in the place of a file.
  static void putFifo(const std::string& name) {
    fs::remove(name);
    ASSERT_EQ(::mkfifo(name.c_str(), 0600), 0);
  }

  /// What the cleaning of another save that knows no locks would do.
  void removeTemporaryFiles() const {
    for (const std::string& name : folder.names())
      if (isTemporaryName(name)) fs::remove(folder / name);
  }

  int calls = 0;  // of the function that the last fault was about
  TemporaryFolder folder;
  std::string path = folder / "file";
};

TEST_F(Races, OfAnotherSaveAreWaitedFor) {
  const auto replace = [this] {
    putBytes(folder / "other", "of another save");
    fs::rename(folder / "other", path);
  };
  EXPECT_EQ(writeUnder({.first = 3, .only = "stat", .event = replace}), (WriteResult{true, true}));
  EXPECT_EQ(bytesOf(path), "new");
  EXPECT_EQ(folder.names(), Names{"file"});
}

TEST_F(Races, DoNotReplaceAFileThatALinkNoLongerLeadsTo) {
  fs::rename(path, folder / "target");
  putBytes(folder / "other", "older");
  for (const char* const other : {"other", "/proc/version"}) {  // which is in another file system
    if (!fs::exists(folder.path() / other)) continue;
    fs::remove(path);
    fs::create_symlink("target", path);
    const auto turn = [&] {
      fs::remove(path);
      fs::create_symlink(other, path);
    };
    EXPECT_EQ(writeUnder({.first = 2, .only = "stat", .event = turn}),
              (WriteResult{true, false, ENOENT}));
    EXPECT_EQ(calls, 1 + 100 * 2);  // it is looked at a hundred times, at both ends
    EXPECT_EQ(bytesOf(folder / "target"), "old");
    EXPECT_EQ(bytesOf(folder / "other"), "older");
    EXPECT_EQ(folder.names(), (Names{"file", "other", "target"}));
  }
}

TEST_F(Races, DoNotReplaceAPipeThatWasAFile) {
  EXPECT_EQ(writeUnder({.first = 2, .only = "stat", .event = [this] { putFifo(path); }}),
            (WriteResult{true, false, ENOTSUP}));
  EXPECT_TRUE(fs::is_fifo(path));
}

TEST_F(Races, DoNotReadAPipeThatWasAFileNorWaitForIt) {
  EXPECT_EQ(readUnder({.first = 1, .only = "open", .event = [this] { putFifo(path); }}),
            std::nullopt);
}

TEST_F(Races, DoNotReadMoreOfAGrowingFileThanOfAnyOther) {
  const auto grow = [this] { fs::resize_file(path, kMaxWholeFile + 1); };
  EXPECT_EQ(readUnder({.first = 1, .only = "read", .event = grow}), std::nullopt);
}

TEST_F(Races, TakeAnotherNameWhereTheTemporaryFileIsTakenAway) {
  const auto remove = [this] { removeTemporaryFiles(); };
  EXPECT_TRUE(writeUnder({.first = 1, .only = "flock", .event = remove}).written);
  EXPECT_EQ(bytesOf(path), "new");
  EXPECT_EQ(folder.names(), Names{"file"});
}

TEST_F(Races, TakeAnotherNameWhereTheTemporaryFileIsLocked) {
  EXPECT_TRUE(writeUnder({.first = 1, .error = EWOULDBLOCK, .only = "flock"}).written);
  EXPECT_EQ(bytesOf(path), "new");
  EXPECT_EQ(folder.names(), Names{"file"});
}

TEST_F(Races, TryAHundredTemporaryNames) {
  EXPECT_EQ(writeUnder({.first = 1, .lasts = true, .error = EEXIST, .only = "open"}),
            (WriteResult{true, false, EEXIST}));
  EXPECT_EQ(calls, 100);
  EXPECT_EQ(bytesOf(path), "old");
  EXPECT_TRUE(writeUnder({.first = 1, .error = EEXIST, .only = "open"}).written);
}

/// A leftover is what was opened, and not what had its name before.
TEST_F(Races, TakeAPipeUnderTheNameOfALeftoverForNone) {
  const std::string name = folder / newTemporaryName();
  for (const bool has_reader : {false, true}) {
    fs::remove(name);
    putBytes(name, "left");
    int reader = -1;
    const auto replace = [&] {
      putFifo(name);
      if (has_reader) reader = ::open(name.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    };
    beginFaults({.first = 1, .only = "openat", .event = replace});
    removeLeftovers(path);
    EXPECT_EQ(endFaults(), 1);
    EXPECT_TRUE(fs::is_fifo(name)) << has_reader;
    EXPECT_EQ(reader >= 0, has_reader);
    ::close(reader);
  }
}

TEST_F(Races, TakeALinkUnderTheNameOfALeftoverForNone) {
  const std::string name = folder / newTemporaryName();
  putBytes(name, "left");
  const auto replace = [&] {
    fs::remove(name);
    fs::create_symlink("file", name);
  };
  beginFaults({.first = 1, .only = "openat", .event = replace});
  removeLeftovers(path);
  endFaults();
  EXPECT_TRUE(fs::is_symlink(name));
  EXPECT_EQ(bytesOf(path), "old");
}

}  // namespace
}  // namespace zel::test
