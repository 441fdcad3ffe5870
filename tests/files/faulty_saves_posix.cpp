// Saves whose calls fail, one after the other, and saves that are killed before each: the older or
// the newer document is there, whole, and the next save takes away what a killed one left.
// ZEL_SAVES=COUNT goes on with documents of other sizes until there were so many.

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <iostream>

#include <sys/stat.h>
#include <sys/wait.h>

#include "child_posix.h"
#include "document_fixture.h"
#include "faulty_calls_posix.h"
#include "files/temporary_name.h"

namespace zel::test {
namespace {

namespace fs = std::filesystem;

constexpr int kSharers = 4;  // the tests that share what ZEL_SAVES asks for

enum class Target { missing, there, link };

int wantedSaves() {
  const char* const text = std::getenv("ZEL_SAVES");
  return text == nullptr ? 0 : std::atoi(text) / kSharers;
}

class FaultySaves : public DocumentTest {
 protected:
  FaultySaves() { makeDocuments(1); }

  ~FaultySaves() override { std::cout << saves_ << " saves\n"; }

  /// An older and a newer document that need some calls of `write`.
  void makeDocuments(std::size_t size) {
    older_.rebuildGraph('a', "x", "", 0, 'F', nullptr);
    newer_.rebuildGraph('b', "x+" + std::string(size, '1'), "", 255, 'F', nullptr);
    old_bytes_ = *documentBytes(view, older_);
    new_bytes_ = *documentBytes(view, newer_);
  }

  /// The folder holds the target alone.
  void prepare(Target target) {
    target_ = target;
    for (const std::string& name : folder.names()) fs::remove(folder / name);
    if (target == Target::missing) return;
    const std::string file = target == Target::link ? folder / "target" : path;
    putBytes(file, old_bytes_);
    ASSERT_EQ(::chmod(file.c_str(), 0640), 0);
    if (target == Target::link) fs::create_symlink("target", path);
  }

  WriteResult save(const Fault& fault) {
    beginFaults(fault);
    const WriteResult result = writeDocument(path, view, newer_);
    calls_ = endFaults();
    ++saves_;
    return result;
  }

  /// Lets every call fail in turn, until an attempt has fewer.
  template <class Attempt>
  void tryEveryCall(Fault fault, Attempt attempt) {
    do {
      ++fault.first;
      SCOPED_TRACE("call " + std::to_string(fault.first));
      attempt(fault);
    } while (calls_ >= fault.first && !HasFailure());
    constexpr int kFewestCalls = 5;
    EXPECT_GT(fault.first, kFewestCalls);
  }

  /// Every target, with documents of more and more bytes as long as saves are wanted.
  template <class Round>
  void tryTargets(Round round) {
    std::size_t size = 9000;
    do {  // of 0 to 100,002 bytes
      makeDocuments(size);
      for (const Target target : {Target::missing, Target::there, Target::link})
        if (!HasFailure()) round(target);
      size = size * 3 % 100003;
    } while (saves_ < wantedSaves() && !HasFailure());
  }

  bool holdsOld() const { return target_ == Target::missing ? !fs::exists(path) : is(old_bytes_); }
  bool holdsNew() const { return fs::exists(path) && is(new_bytes_); }

  /// The names beside the document (and the link to it); all are temporary ones.
  std::set<std::string> leftovers() const {
    std::set<std::string> names = folder.names();
    names.erase("sample.zel");
    names.erase("target");
    for (const std::string& name : names) EXPECT_TRUE(isTemporaryName(name)) << name;
    return names;
  }

  void expectACleanSave() {
    EXPECT_TRUE(writeDocument(path, view, newer_).written);
    ++saves_;
    EXPECT_TRUE(holdsNew());
    EXPECT_EQ(leftovers(), std::set<std::string>{});
    EXPECT_EQ(fs::is_symlink(path), target_ == Target::link);
  }

  mode_t modeOf(const std::string& name) const {
    struct stat status {};
    EXPECT_EQ(::stat((folder / name).c_str(), &status), 0);
    return status.st_mode & 0777;
  }

  int calls_ = 0;
  int saves_ = 0;
  Target target_ = Target::there;
  GraphTable older_;
  GraphTable newer_;
  std::string old_bytes_;
  std::string new_bytes_;

 private:
  bool is(const std::string& bytes) const { return bytesOf(path) == bytes; }
};

constexpr int kPiece = 4096;

/// Whether POSIX knows an interruption of this function, as it is called in a save.
bool isInterruptible(std::string_view name) {
  constexpr auto kNames = std::to_array<std::string_view>(
      {"open", "openat", "read", "write", "fsync", "close", "fchmod", "fchown"});
  return std::ranges::find(kNames, name) != kNames.end();
}

TEST_F(FaultySaves, LeaveTheOlderOrTheNewerDocumentWhereOneCallFails) {
  tryTargets([this](Target target) {
    for (const int error : {ENOSPC, EIO, EINTR, EDQUOT, EACCES}) {
      SCOPED_TRACE(error);
      tryEveryCall({0, false, error, kPiece}, [&](const Fault& fault) {
        prepare(target);
        const WriteResult result = save(fault);
        EXPECT_TRUE(result.written ? holdsNew() : holdsOld());
        EXPECT_EQ(leftovers(), std::set<std::string>{});
        if (result.written && target != Target::missing) {
          EXPECT_EQ(modeOf("sample.zel") & ~mode_t{0640}, mode_t{0});
        }
      });
    }
  });
  EXPECT_GT(saves_, 300);
}

/// A call that is interrupted forever has failed after kMostInterruptions.
TEST_F(FaultySaves, LeaveTheOlderOrTheNewerDocumentWhereNoCallSucceedsAnyMore) {
  tryTargets([this](Target target) {
    for (const int error : {ENOSPC, EIO, EINTR, EDQUOT, EACCES}) {
      SCOPED_TRACE(error);
      tryEveryCall({0, true, error, kPiece}, [&](const Fault& fault) {
        prepare(target);
        const WriteResult result = save(fault);
        EXPECT_TRUE(result.written ? holdsNew() : holdsOld());
        EXPECT_LE(leftovers().size(), 1u);
        expectACleanSave();
      });
    }
  });
  EXPECT_GT(saves_, 300);
}

TEST_F(FaultySaves, LeaveTheOlderOrTheNewerDocumentWhereTheyAreKilled) {
  bool something_was_left = false;
  tryTargets([&](Target target) {
    tryEveryCall({0, false, 0, kPiece}, [&](const Fault& fault) {
      prepare(target);
      calls_ = inAChild([&] { return save(fault).written ? 1 : 0; }) < 0 ? fault.first : 0;
      ++saves_;
      EXPECT_TRUE(holdsNew() || holdsOld());
      for (const std::string& name : leftovers()) {
        something_was_left = true;
        EXPECT_TRUE(modeOf(name) == 0600 || bytesOf(folder / name).empty() ||
                    bytesOf(folder / name) == new_bytes_);
      }
      expectACleanSave();
    });
  });
  EXPECT_TRUE(something_was_left);
}

/// What may be interrupted is done again, but for close, which has closed all the same.
TEST_F(FaultySaves, AreNoFailureWhereACallIsInterruptedOnce) {
  std::set<std::string_view> failed;
  std::set<std::string_view> weathered;
  for (const Target target : {Target::missing, Target::there, Target::link}) {
    prepare(target);
    expectACleanSave();
    const mode_t mode = modeOf("sample.zel");
    tryEveryCall({0, false, EINTR, kPiece}, [&](const Fault& fault) {
      prepare(target);
      const bool is_written = save(fault).written;
      if (faultyCall().empty()) return;
      (is_written ? weathered : failed).insert(faultyCall());
      if (!is_written || !isInterruptible(faultyCall())) return;
      EXPECT_TRUE(holdsNew());
      EXPECT_EQ(modeOf("sample.zel"), mode) << faultyCall();
      EXPECT_EQ(leftovers(), std::set<std::string>{});
    });
  }
  for (const std::string_view name : {"open", "write", "fsync", "close", "fchmod", "fchown"})
    EXPECT_TRUE(weathered.contains(name)) << name;
  // What POSIX lets nobody interrupt is not done again; fcntl only makes another descriptor here.
  EXPECT_EQ(failed, (std::set<std::string_view>{"faccessat", "fcntl", "fstat", "rename", "stat"}));
}

/// Loads under the same faults: the document whole, or none.
TEST_F(FaultySaves, CanBeReadWholeOrNotAtAll) {
  prepare(Target::there);
  for (const bool lasts : {false, true}) {
    tryEveryCall({0, lasts, EIO}, [&](const Fault& fault) {
      graphs.clearGraphs();
      beginFaults(fault);
      const bool loaded = loadDocument(path, view, graphs, header, message);
      calls_ = endFaults();
      EXPECT_EQ(loaded, graphs.slot('a')->defined);
      EXPECT_EQ(message, loaded ? "" : messages::kCannotOpen);
    });
  }
}

TEST_F(FaultySaves, MayBeFourAtOnceWhileSomeAreKilled) {
  constexpr int kSavers = 4;
  constexpr int kSavesEach = 25;
  putBytes(path, old_bytes_);
  const int rounds = 1 + wantedSaves() / (kSavers * kSavesEach);
  for (int round = 0; round < rounds && !HasFailure(); ++round) {
    std::vector<pid_t> savers;
    for (int i = 0; i < kSavers; ++i) {
      const pid_t child = ::fork();
      if (child == 0) {
        bool all = true;
        for (int j = 0; j < kSavesEach; ++j)
          all = writeDocument(path, view, (i + j) % 2 == 0 ? older_ : newer_).written && all;
        ::_exit(all ? 0 : 1);
      }
      savers.push_back(child);
    }
    saves_ += kSavers * kSavesEach;
    for (int look = 0; look < 200; ++look) {
      const std::string bytes = bytesOf(path);
      ASSERT_TRUE(bytes == old_bytes_ || bytes == new_bytes_) << bytes.size();
      if (look == 100) ::kill(savers[0], SIGKILL);
    }
    for (std::size_t i = 0; i < savers.size(); ++i) {
      int status = 0;
      ::waitpid(savers[i], &status, 0);
      EXPECT_TRUE(i == 0 || status == 0) << status;
    }
    target_ = Target::there;
    expectACleanSave();
  }
}

}  // namespace
}  // namespace zel::test
