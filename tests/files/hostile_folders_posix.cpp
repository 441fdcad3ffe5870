// Saves on file systems that are full, that may not be written, or that go away, and over files of
// other users. Root alone can make such file systems; they end with the child that mounts them.

#include <cerrno>

#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>

#include "child_posix.h"
#include "document_fixture.h"
#include "files/absolute_path.h"

namespace zel::test {
namespace {

namespace fs = std::filesystem;

constexpr int kPassed = 1;
constexpr int kCannotMount = 2;

class HostileFolders : public DocumentTest {
 protected:
  HostileFolders() {
    older_.rebuildGraph('a', "x", "", 0, 'F', nullptr);
    newer_.rebuildGraph('b', "x+" + std::string(20000, '1'), "", 255, 'F', nullptr);
    old_bytes_ = *documentBytes(view, older_);
  }

  /// Runs a check that returns kPassed in a process whose folder is a small file system of its own.
  template <class Check>
  void onASmallDisk(Check check) {
    const int result = inAChild([&] {
      const bool is_mounted = ::unshare(CLONE_NEWNS) == 0 &&
                              ::mount("", "/", "", MS_REC | MS_PRIVATE, nullptr) == 0 &&
                              ::mount("none", disk().c_str(), "tmpfs", 0, "size=64k") == 0;
      if (!is_mounted) return kCannotMount;
      return writeDocument(path, view, older_).written ? check() : 0;
    });
    if (result == kCannotMount) GTEST_SKIP() << "only root can mount a file system";
    EXPECT_EQ(result, kPassed);
  }

  std::string disk() const { return folder.path().string(); }
  bool saves() const { return writeDocument(path, view, newer_).written; }
  bool holdsOld() const { return bytesOf(path) == old_bytes_; }
  bool isAlone() const { return folder.names() == std::set<std::string>{"sample.zel"}; }

  GraphTable older_;
  GraphTable newer_;
  std::string old_bytes_;
};

TEST_F(HostileFolders, KeepTheOlderDocumentWhereTheDiskIsFull) {
  onASmallDisk([&] {
    putBytes(folder / "filler", std::string(80000, 'f'));
    const WriteResult full = writeDocument(path, view, newer_);
    const WriteResult fresh = writeDocument(folder / "new.zel", view, newer_);
    const bool is_kept = holdsOld() && !fs::exists(folder / "new.zel");
    fs::remove(folder / "filler");
    return is_kept && full.error == ENOSPC && fresh.error == ENOSPC && isAlone() && saves()
               ? kPassed
               : 0;
  });
}

TEST_F(HostileFolders, HaveRoomAgainWhereALeftoverFilledTheDisk) {
  onASmallDisk([&] {
    putBytes(folder / ".zel-0123456789abcdef.tmp", std::string(80000, 'f'));
    return saves() && isAlone() ? kPassed : 0;
  });
}

TEST_F(HostileFolders, KeepTheOlderDocumentWhereNothingMayBeWritten) {
  onASmallDisk([&] {
    if (::mount("none", disk().c_str(), "tmpfs", MS_REMOUNT | MS_RDONLY, "size=64k") != 0)
      return kCannotMount;
    const WriteResult refused = writeDocument(path, view, newer_);
    return refused.error == EROFS && holdsOld() && isAlone() ? kPassed : 0;
  });
}

/// The folder is another, empty one from one save to the next.
TEST_F(HostileFolders, ComplainWhereTheFileSystemWentAway) {
  onASmallDisk([&] {
    if (::umount2(disk().c_str(), MNT_DETACH) != 0) return kCannotMount;
    const bool is_told = saveDocument(path, view, newer_) == messages::kCannotSave;
    return is_told && isAlone() ? kPassed : 0;  // the document is new there, and whole
  });
}

/// The file system goes away in the middle of the save: the process stands in a folder without
/// name.
TEST_F(HostileFolders, ComplainWhereTheFolderWentAway) {
  fs::create_directory(folder / "sub");
  const CurrentFolderGuard current(folder.path() / "sub");
  fs::remove(folder / "sub");
  EXPECT_FALSE(writeDocument("sample.zel", view, newer_).written);
  EXPECT_EQ(absolutePath("sample.zel"), "sample.zel");
  EXPECT_EQ(folder.names(), std::set<std::string>{});
}

TEST_F(HostileFolders, KeepAStrangersFileThatMayBeWrittenAndNotReplaced) {
  if (::geteuid() != 0) GTEST_SKIP() << "only root may give files away";
  putBytes(path, old_bytes_);
  ASSERT_EQ(::chmod(path.c_str(), 0666), 0);
  ASSERT_EQ(::chmod(disk().c_str(), 01777), 0);  // nobody else may rename what is there
  EXPECT_EQ(asNobody([&] { return writeDocument(path, view, newer_).error; }), EPERM);
  EXPECT_TRUE(holdsOld() && isAlone());
}

}  // namespace
}  // namespace zel::test
