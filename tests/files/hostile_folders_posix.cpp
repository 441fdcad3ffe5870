// Saves on file systems that are full, that may not be written, or that go away, and over files of
// other users. Root alone can make such file systems; they end with the child that mounts them.

#include <algorithm>
#include <cerrno>
#include <functional>
#include <vector>

#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/stat.h>

#include "document_fixture.h"
#include "faulty_calls_posix.h"
#include "files/absolute_path.h"
#include "small_disk_posix.h"

namespace zel::test {
namespace {

namespace fs = std::filesystem;

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
    expectToPass([&] {
      if (!mountADisk(disk(), "size=64k")) return kCannotMount;
      return writeDocument(path, view, older_).written ? check() : 0;
    });
  }

  /// Saves while something happens before the first, the second, ... call, and notes in `ends`
  /// whether each save says that it was done.
  void atEachCallOfASave(const std::string& document, const std::function<void()>& prepare,
                         const std::function<void()>& event, const std::function<void()>& look) {
    constexpr int kMostAtOnce = 4096;  // so that there are some calls of `write`
    atEachCall(
        {.piece = kMostAtOnce, .event = event}, prepare,
        [&] { ends_.push_back(writeDocument(document, view, newer_).written); }, look);
  }

  /// Most calls come before the last step, and one or more behind it: the saves before whose call
  /// it happened have failed until then, and are done from there on.
  void expectFailuresFirst(std::size_t fewest) const {
    EXPECT_TRUE(std::ranges::is_sorted(ends_));
    EXPECT_GT(std::ranges::count(ends_, false), fewest);
    EXPECT_GT(std::ranges::count(ends_, true), 1);  // the last one is untouched
  }

  std::string disk() const { return folder.path().string(); }
  bool saves() const { return writeDocument(path, view, newer_).written; }
  bool holdsOld() const { return bytesOf(path) == old_bytes_; }
  static std::set<std::string> namesIn(const std::string& place) {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(place)) names.insert(entry.path().filename());
    return names;
  }
  bool isAlone() const { return folder.names() == std::set<std::string>{"sample.zel"}; }

  GraphTable older_;
  GraphTable newer_;
  std::string old_bytes_;
  std::vector<bool> ends_;
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

/// The same disk in two places: the one that the save sees goes away.
TEST_F(HostileFolders, LeaveTheOlderOrTheNewerDocumentWhereTheDiskGoesAwayInTheMiddle) {
  const TemporaryFolder always_there;
  expectToPass([&] {
    const std::string kept = always_there / "sub/sample.zel";
    const auto plug_in = [&] {
      return ::mount(always_there.path().c_str(), disk().c_str(), "", MS_BIND, nullptr) == 0;
    };
    if (!mountADisk(always_there.path(), "size=256k")) return kCannotMount;
    fs::create_directory(always_there / "sub");
    const std::string newer = *documentBytes(view, newer_);
    atEachCallOfASave(
        folder / "sub/sample.zel",
        [&] {
          putBytes(kept, old_bytes_);
          EXPECT_TRUE(plug_in());
        },
        [&] { EXPECT_EQ(::umount2(disk().c_str(), MNT_DETACH), 0); },
        [&] {
          EXPECT_EQ(bytesOf(kept), ends_.back() ? newer : old_bytes_);
          if (faultyCall().empty()) return;
          EXPECT_EQ(folder.names(), std::set<std::string>{});  // nothing is made where it was
          EXPECT_TRUE(plug_in());
          EXPECT_TRUE(writeDocument(folder / "sub/sample.zel", view, newer_).written);
          EXPECT_EQ(bytesOf(kept), newer);
          EXPECT_EQ(namesIn(always_there / "sub"), std::set<std::string>{"sample.zel"});
          EXPECT_EQ(::umount2(disk().c_str(), MNT_DETACH), 0);
        });
    expectFailuresFirst(6);
    return HasFailure() ? 0 : kPassed;
  });
}

/// The process stands in a folder without a name.
TEST_F(HostileFolders, ComplainWhereTheFolderWentAway) {
  fs::create_directory(folder / "sub");
  const CurrentFolderGuard current(folder.path() / "sub");
  fs::remove(folder / "sub");
  EXPECT_FALSE(writeDocument("sample.zel", view, newer_).written);
  EXPECT_EQ(absolutePath("sample.zel"), "sample.zel");
  EXPECT_EQ(folder.names(), std::set<std::string>{});
}

TEST_F(HostileFolders, ComplainWhereTheFolderGoesAwayInTheMiddle) {
  const CurrentFolderGuard current(folder.path());
  for (const char* const document : {"sample.zel", "../sub/sample.zel"}) {
    ends_.clear();
    atEachCallOfASave(
        document,
        [&] {
          fs::create_directory(folder / "sub");
          fs::current_path(folder / "sub");
          putBytes("sample.zel", old_bytes_);
        },
        [&] { fs::remove_all(folder / "sub"); },
        [&] { EXPECT_TRUE(faultyCall().empty() || folder.names().empty()); });
    expectFailuresFirst(6);
  }
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
