// What POSIX file systems know beside names and bytes: links, permissions, owners, pipes, devices.

#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include "child_posix.h"
#include "faulty_calls_posix.h"
#include "files/absolute_path.h"
#include "files/failing_writes.h"
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

TEST_F(WholeFileOnPosix, DoesNotCreateTheTargetOfADanglingLink) {
  link("target", "link");
  link("link", "chain");
  for (const char* const name : {"link", "chain"}) {
    EXPECT_EQ(writeWholeFile(folder / name, "new"), (WriteResult{false, false, ENOENT}));
    EXPECT_FALSE(createMissingFile(folder / name));
    removeEmptyFile(folder / name);
    std::optional<std::string> text = "before";
    EXPECT_TRUE(readTextFile(folder / name, text));
    EXPECT_EQ(text, "before");
  }
  EXPECT_EQ(folder.names(), (std::set<std::string>{"chain", "link"}));
}

TEST_F(WholeFileOnPosix, TakesALinkToAnEmptyFileNotAway) {
  putBytes(folder / "target", "");
  link("target", "link");
  removeEmptyFile(folder / "link");
  EXPECT_EQ(folder.names(), (std::set<std::string>{"link", "target"}));
}

TEST_F(WholeFileOnPosix, FailsAtALoopOfLinks) {
  link("two", "one");
  link("one", "two");
  std::optional<std::string> text = "before";
  EXPECT_EQ(writeWholeFile(folder / "one", "x").error, ELOOP);
  EXPECT_TRUE(readTextFile(folder / "one", text));
  EXPECT_EQ(text, "before");
  EXPECT_EQ(folder.names(), (std::set<std::string>{"one", "two"}));
}

TEST_F(WholeFileOnPosix, SavesThroughAsManyLinksAsItReadsThrough) {
  putBytes(path, "old");
  link("file", "1");
  for (int i = 2; i <= 60; ++i) link(std::to_string(i - 1), std::to_string(i));
  int readable = 0;
  for (int i = 1; i <= 60; ++i) {
    const std::string name = folder / std::to_string(i);
    const bool is_read = readWholeFile(name).has_value();
    EXPECT_EQ(writeWholeFile(name, std::to_string(i)).written, is_read) << i;
    EXPECT_TRUE(fs::is_symlink(name)) << i;
    readable += is_read;
  }
  EXPECT_EQ(bytesOf(path), std::to_string(readable));
#ifdef __linux__
  EXPECT_EQ(readable, 40);
#endif
}

TEST_F(WholeFileOnPosix, FailsAtALinkToAFolder) {
  link(".", "here");
  EXPECT_FALSE(writeWholeFile(folder / "here", "x").written);
  EXPECT_TRUE(fs::is_symlink(folder / "here"));
}

TEST_F(WholeFileOnPosix, HasAnObstacleInANameThatIsTooLongAndInALinkThatLeadsNowhere) {
  EXPECT_EQ(obstacleToWriting(folder / std::string(300, 'n')), ENAMETOOLONG);
  link("gone", "nowhere");
  EXPECT_EQ(obstacleToWriting(folder / "nowhere"), ENOENT);
  EXPECT_EQ(folder.names(), std::set<std::string>{"nowhere"});
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
  EXPECT_EQ(asNobody([&] { return obstacleToWriting(path); }), EACCES);
  EXPECT_EQ(bytesOf(path), "old");
  EXPECT_EQ(folder.names(), std::set<std::string>{"file"});
}

TEST_F(WholeFileOnPosix, RefusesAFolderWithoutWritePermission) {
  putBytes(path, "old");
  ASSERT_EQ(::chmod(path.c_str(), 0666), 0);
  fs::permissions(folder.path(), fs::perms(0555));
  EXPECT_EQ(writeAsNobody(path), kExisted);
  EXPECT_EQ(writeAsNobody(folder / "other"), 0);
  EXPECT_EQ(asNobody([&] { return obstacleToWriting(path); }), EACCES);
  EXPECT_EQ(asNobody([&] { return obstacleToWriting(folder / "other"); }), EACCES);
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
    std::optional<std::string> text = "before";
    return readTextFile(path, text) && text == "before" ? 0 : 1;
  });
  EXPECT_EQ(result, 0);
}

TEST_F(WholeFileOnPosix, RefusesAFifoWithoutWaitingForItsOtherEnd) {
  ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
  link("file", "link");
  for (const std::string& name : {path, folder / "link"}) {
    EXPECT_EQ(readWholeFile(name), std::nullopt);
    EXPECT_EQ(writeWholeFile(name, "x"), (WriteResult{true, false, ENOTSUP}));
    removeEmptyFile(name);
  }
  EXPECT_TRUE(fs::is_fifo(path));
}

TEST_F(WholeFileOnPosix, LeavesAFifoWithAWriterAsItIs) {
  ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
  const int both = ::open(path.c_str(), O_RDWR | O_NONBLOCK);
  ASSERT_EQ(::write(both, "sent", 4), 4);
  EXPECT_EQ(readWholeFile(path), std::nullopt);
  std::string received(5, ' ');
  EXPECT_EQ(::read(both, received.data(), received.size()), 4);
  ::close(both);
}

TEST_F(WholeFileOnPosix, RefusesASocket) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  ASSERT_LT(path.size(), sizeof address.sun_path);
  path.copy(address.sun_path, path.size());
  const int number = ::socket(AF_UNIX, SOCK_STREAM, 0);
  ASSERT_EQ(::bind(number, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
  EXPECT_EQ(readWholeFile(path), std::nullopt);
  EXPECT_EQ(writeWholeFile(path, "x"), (WriteResult{true, false, ENOTSUP}));
  ::close(number);
}

TEST_F(WholeFileOnPosix, RefusesADevice) {
  for (const char* const device : {"/dev/null", "/dev/zero", "/dev/full"}) {
    if (!fs::exists(device)) continue;
    EXPECT_EQ(readWholeFile(device), std::nullopt) << device;
    EXPECT_EQ(writeWholeFile(device, "x"), (WriteResult{true, false, ENOTSUP})) << device;
  }
}

TEST_F(WholeFileOnPosix, GivesTheErrorOfTheCallThatFailed) {
  const auto errorOf = [](const std::string& name) {
    const WriteResult result = writeWholeFile(name, "x");
    EXPECT_FALSE(result.existed || result.written) << name;
    return result.error;
  };
  EXPECT_EQ(errorOf(folder.path().string()), EISDIR);
  EXPECT_EQ(errorOf(folder / "missing/file"), ENOENT);
  EXPECT_EQ(errorOf(folder / std::string(300, 'n')), ENAMETOOLONG);
  EXPECT_EQ(errorOf(""), ENOENT);
  putBytes(path, "old");
  EXPECT_EQ(errorOf(path + "/below"), ENOTDIR);
  EXPECT_EQ(errorOf(path + std::string("\0y", 2)), EINVAL);
}

TEST_F(WholeFileOnPosix, WasThereWhicheverCallFailsAfterTheFirstLook) {
  int failing = 1;
  int calls = 0;
  do {
    putBytes(path, "old");
    beginFaults({.first = ++failing, .error = EIO});
    const WriteResult result = writeWholeFile(path, "new");
    calls = endFaults();
    EXPECT_TRUE(result.existed) << failing;
    EXPECT_EQ(bytesOf(path), result.written ? "new" : "old") << failing;
  } while (failing <= calls);
  EXPECT_GT(calls, 10);
}

TEST_F(WholeFileOnPosix, GivesTheErrorOfAWriteBeyondTheLimitOfTheProcess) {
  putBytes(path, "old");
  const int error = inAChild([&] {
    const rlimit limits = {1000, 1000};
    ::signal(SIGXFSZ, SIG_DFL);
    letWritesFail(ClosedPipe::ends_process);
    if (::setrlimit(RLIMIT_FSIZE, &limits) != 0) return 0;
    return writeWholeFile(path, std::string(5000, 'x')).error;
  });
  EXPECT_EQ(error, EFBIG);
  EXPECT_EQ(bytesOf(path), "old");
  EXPECT_EQ(folder.names(), std::set<std::string>{"file"});
}

TEST_F(WholeFileOnPosix, HasTheNameThatWasGivenWhateverItsBytes) {
  const std::string name = folder.path().string() + "/n\xFF\xC3(.zel";
  EXPECT_TRUE(writeWholeFile(name, "x").written);
  EXPECT_EQ(folder.names(), std::set<std::string>{"n\xFF\xC3(.zel"});
  EXPECT_EQ(readWholeFile(name), "x");
  EXPECT_EQ(absolutePath(name), name);
  const CurrentFolderGuard current(folder.path());
  EXPECT_EQ(readWholeFile(absolutePath("n\xFF\xC3(.zel")), "x");
  EXPECT_TRUE(createMissingFile("m\xFF"));
  EXPECT_TRUE(folder.names().contains("m\xFF"));
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
