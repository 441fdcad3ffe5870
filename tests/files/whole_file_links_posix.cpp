// What POSIX file systems know beside names and bytes: links, permissions, owners, pipes, devices.

#include <thread>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "files/text_file.h"
#include "files/whole_file.h"
#include "support/temporary_folder.h"

namespace zel::test {
namespace {

namespace fs = std::filesystem;

class WholeFileOnPosix : public ::testing::Test {
 protected:
  void link(const std::string& target, std::string_view name) {
    fs::create_symlink(target, folder.path() / name);
  }

  static mode_t modeOf(const std::string& path) {
    struct stat status {};
    EXPECT_EQ(::stat(path.c_str(), &status), 0);
    return status.st_mode & 07777;
  }

  TemporaryFolder folder;
  std::string path = folder / "file";
};

TEST_F(WholeFileOnPosix, KeepsALinkAndReplacesItsTarget) {
  fs::create_directory(folder / "sub");
  putBytes(folder / "sub/target", "old");
  link("sub/target", "relative");
  link(folder / "sub/target", "absolute");
  link("relative", "chain");
  for (const char* const name : {"relative", "absolute", "chain"}) {
    const WriteResult result = writeWholeFile(folder / name, name);
    EXPECT_TRUE(result.existed && result.written) << name;
    EXPECT_TRUE(fs::is_symlink(folder / name)) << name;
    EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(folder / "sub/target")));
    EXPECT_EQ(bytesOf(folder / "sub/target"), name);
  }
  EXPECT_EQ(folder.names(), (std::set<std::string>{"absolute", "chain", "relative", "sub"}));
}

TEST_F(WholeFileOnPosix, CreatesTheTargetOfADanglingLink) {
  link("target", "link");
  const WriteResult result = writeWholeFile(folder / "link", "new");
  EXPECT_FALSE(result.existed);
  EXPECT_TRUE(result.written);
  EXPECT_TRUE(fs::is_symlink(folder / "link"));
  EXPECT_EQ(bytesOf(folder / "target"), "new");
}

TEST_F(WholeFileOnPosix, CreatesTheTargetOfADanglingLinkByReadingIt) {
  link("target", "link");
  std::string text = "before";
  EXPECT_FALSE(readTextFile(folder / "link", text));
  EXPECT_TRUE(fs::exists(folder / "target"));
}

TEST_F(WholeFileOnPosix, FailsAtALoopOfLinks) {
  link("two", "one");
  link("one", "two");
  std::string text = "before";
  EXPECT_FALSE(writeWholeFile(folder / "one", "x").written);
  EXPECT_FALSE(readTextFile(folder / "one", text));
  EXPECT_EQ(text, "before");
  EXPECT_EQ(folder.names(), (std::set<std::string>{"one", "two"}));
}

TEST_F(WholeFileOnPosix, FailsAtALinkToAFolder) {
  link(".", "here");
  EXPECT_FALSE(writeWholeFile(folder / "here", "x").written);
  EXPECT_TRUE(fs::is_symlink(folder / "here"));
}

TEST_F(WholeFileOnPosix, KeepsThePermissions) {
  for (const mode_t mode : {0600u, 0644u, 0664u, 0640u, 0666u, 0755u, 0200u}) {
    putBytes(path, "old");
    ASSERT_EQ(::chmod(path.c_str(), mode), 0);
    EXPECT_TRUE(writeWholeFile(path, "new").written);
    EXPECT_EQ(modeOf(path), mode);
    fs::remove(path);
  }
}

TEST_F(WholeFileOnPosix, GivesANewFileThePermissionsOfTheUmask) {
  const mode_t before = ::umask(027);
  EXPECT_TRUE(writeWholeFile(path, "new").written);
  EXPECT_TRUE(createMissingFile(folder / "made"));
  ::umask(before);
  EXPECT_EQ(modeOf(path), mode_t{0640});
  EXPECT_EQ(modeOf(folder / "made"), mode_t{0640});
}

TEST_F(WholeFileOnPosix, KeepsTheOwnerWhereThatIsAllowed) {
  if (::geteuid() != 0) GTEST_SKIP() << "only root may give files away";
  putBytes(path, "old");
  ASSERT_EQ(::chown(path.c_str(), 4321, 1234), 0);
  ASSERT_EQ(::chmod(path.c_str(), 0640), 0);
  EXPECT_TRUE(writeWholeFile(path, "new").written);
  struct stat status {};
  ASSERT_EQ(::stat(path.c_str(), &status), 0);
  EXPECT_EQ(status.st_uid, uid_t{4321});
  EXPECT_EQ(status.st_gid, gid_t{1234});
  EXPECT_EQ(status.st_mode & 07777, mode_t{0640});
}

/// Calls as a user who may not do everything; the result is the exit status of a child.
template <class Call>
int asNobody(Call call) {
  const pid_t child = ::fork();
  if (child == 0) {
    const bool is_nobody = ::geteuid() != 0 || (::setgid(65534) == 0 && ::setuid(65534) == 0);
    ::_exit(is_nobody ? call() : 99);
  }
  int status = 0;
  while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
  }
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

constexpr int kExisted = 1;
constexpr int kWritten = 2;

int writeAsNobody(const std::string& path) {
  return asNobody([&] {
    const WriteResult result = writeWholeFile(path, "new");
    return (result.existed ? kExisted : 0) + (result.written ? kWritten : 0);
  });
}

TEST_F(WholeFileOnPosix, RefusesAFileWithoutWritePermission) {
  putBytes(path, "old");
  fs::permissions(folder.path(), fs::perms::all);
  ASSERT_EQ(::chmod(path.c_str(), 0444), 0);
  EXPECT_EQ(writeAsNobody(path), kExisted);
  EXPECT_EQ(bytesOf(path), "old");
  EXPECT_EQ(folder.names(), std::set<std::string>{"file"});
}

TEST_F(WholeFileOnPosix, RefusesAFolderWithoutWritePermission) {
  putBytes(path, "old");
  ASSERT_EQ(::chmod(path.c_str(), 0666), 0);
  fs::permissions(folder.path(), fs::perms(0555));
  EXPECT_EQ(writeAsNobody(path), kExisted);
  EXPECT_EQ(writeAsNobody(folder / "other"), 0);
  EXPECT_EQ(asNobody([&] { return createMissingFile(folder / "other") ? 1 : 0; }), 0);
  fs::permissions(folder.path(), fs::perms::all);
  EXPECT_EQ(bytesOf(path), "old");
  EXPECT_EQ(folder.names(), std::set<std::string>{"file"});
}

TEST_F(WholeFileOnPosix, WritesInAFolderThatCannotBeListed) {
  putBytes(path, "old");
  ASSERT_EQ(::chmod(path.c_str(), 0666), 0);
  fs::permissions(folder.path(), fs::perms(0333));
  EXPECT_EQ(writeAsNobody(path), kExisted + kWritten);
  fs::permissions(folder.path(), fs::perms::all);
  EXPECT_EQ(bytesOf(path), "new");
}

TEST_F(WholeFileOnPosix, TakesGroupPermissionsAwayWhereTheGroupCannotBeKept) {
  if (::geteuid() != 0) GTEST_SKIP() << "only root may give files away";
  putBytes(path, "old");
  ASSERT_EQ(::chown(path.c_str(), 4321, 1234), 0);
  ASSERT_EQ(::chmod(path.c_str(), 0676), 0);
  fs::permissions(folder.path(), fs::perms::all);
  EXPECT_EQ(writeAsNobody(path), kExisted + kWritten);
  EXPECT_EQ(modeOf(path), mode_t{0666});
}

TEST_F(WholeFileOnPosix, CannotReadWhatItMayNot) {
  putBytes(path, "secret");
  ASSERT_EQ(::chmod(path.c_str(), 0000), 0);
  fs::permissions(folder.path(), fs::perms::all);
  const int result = asNobody([&] {
    std::string text = "before";
    return readTextFile(path, text) || text != "before" ? 1 : 0;
  });
  EXPECT_EQ(result, 0);
}

TEST_F(WholeFileOnPosix, WritesAndReadsAFifoInItsPlace) {
  ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
  const std::string sent(300'000, 'x');
  WriteResult result;
  std::thread writer([&] { result = writeWholeFile(path, sent); });
  const auto received = readWholeFile(path);
  writer.join();
  EXPECT_TRUE(result.existed && result.written);
  EXPECT_EQ(received, sent);
  EXPECT_TRUE(fs::is_fifo(path));
}

TEST_F(WholeFileOnPosix, WritesADeviceInItsPlace) {
  const WriteResult result = writeWholeFile("/dev/null", "x");
  EXPECT_TRUE(result.existed && result.written);
  EXPECT_TRUE(fs::is_character_file("/dev/null"));
  if (fs::exists("/dev/full")) {
    EXPECT_FALSE(writeWholeFile("/dev/full", "x").written);
  }
}

TEST_F(WholeFileOnPosix, GivesUpReadingADeviceWithoutAnEnd) {
  std::string text = "before";
  EXPECT_FALSE(readTextFile("/dev/zero", text));
  EXPECT_EQ(text, "before");
}

TEST_F(WholeFileOnPosix, LeavesTheOtherNameOfAFileItsOldBytes) {
  putBytes(path, "old");
  fs::create_hard_link(path, folder / "other");
  EXPECT_TRUE(writeWholeFile(path, "new").written);
  EXPECT_EQ(bytesOf(path), "new");
  EXPECT_EQ(bytesOf(folder / "other"), "old");
}

TEST_F(WholeFileOnPosix, IsReachedThroughADescriptor) {
  putBytes(path, "old");
  const int descriptor = ::open(path.c_str(), O_RDONLY);
  const std::string through = "/proc/self/fd/" + std::to_string(descriptor);
  if (!fs::exists(through)) GTEST_SKIP() << "there is no " << through;
  EXPECT_TRUE(writeWholeFile(through, "new").written);
  EXPECT_EQ(bytesOf(path), "new");
  fs::remove(path);
  ::close(descriptor);
}

TEST_F(WholeFileOnPosix, IsNotRevivedWhenItWasDeletedWhileOpen) {
  putBytes(path, "old");
  const int descriptor = ::open(path.c_str(), O_RDONLY);
  const std::string through = "/proc/self/fd/" + std::to_string(descriptor);
  if (!fs::exists(through)) GTEST_SKIP() << "there is no " << through;
  fs::remove(path);
  EXPECT_FALSE(writeWholeFile(through, "new").written);
  EXPECT_EQ(folder.names(), std::set<std::string>{});
  ::close(descriptor);
}

}  // namespace
}  // namespace zel::test
