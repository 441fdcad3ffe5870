// Prints into files where the disk, the system or the folder's owner stands in the way.
#include <filesystem>
#include <fstream>

#include <sys/resource.h>
#include <sys/stat.h>

#include "files/failing_writes.h"
#include "files/small_disk_posix.h"
#include "platform/widgets/print_to_file_fixture.h"

namespace zel::test {
namespace {

class PrintToHostileFile : public PrintToFile {
 protected:
  PrintToHostileFile() { putBytes(file, older); }
  bool holdsOlder() const { return bytesOf(file) == older; }

  const std::string older = std::string(5000, 'o');
};

TEST_F(PrintToHostileFile, KeepsTheOlderOneWhereTheDiskIsFull) {
  expectToPass([&] {
    if (!mountADisk(folder.path(), "size=64k")) return kCannotMount;
    putBytes(file, older);
    putBytes(folder / "filler", std::string(80000, 'f'));
    const bool is_told = print() == PrintOutcome::failed;
    const bool is_kept =
        holdsOlder() && folder.names() == std::set<std::string>{"filler", "page.pdf"};
    std::filesystem::remove(folder / "filler");
    const bool prints_then = print() == PrintOutcome::printed && isWholePdf(bytesOf(file));
    return is_told && is_kept && prints_then ? kPassed : 0;
  });
}

TEST_F(PrintToHostileFile, LeavesNoneWhereTheDiskIsFull) {
  expectToPass([&] {
    if (!mountADisk(folder.path(), "size=64k")) return kCannotMount;
    putBytes(folder / "filler", std::string(80000, 'f'));
    const bool is_told = print() == PrintOutcome::failed;
    return is_told && folder.names() == std::set<std::string>{"filler"} ? kPassed : 0;
  });
}

TEST_F(PrintToHostileFile, KeepsTheOlderOneWhereNoFileMayBecomeAsLongAsThePage) {
  const int result = inAChild([&] {
    const rlimit limits = {1000, 1000};
    letWritesFail(ClosedPipe::ends_process);
    if (::setrlimit(RLIMIT_FSIZE, &limits) != 0) return 0;
    return print() == PrintOutcome::failed ? kPassed : 0;
  });
  EXPECT_EQ(result, kPassed);
  EXPECT_TRUE(holdsOlder());
  EXPECT_EQ(folder.names(), std::set<std::string>{"page.pdf"});
}

TEST_F(PrintToHostileFile, IsNotStartedOverOneThatMayNotBeWritten) {
  ASSERT_EQ(::chmod(file.c_str(), 0444), 0);
  ASSERT_EQ(::chmod(folder.path().c_str(), 0777), 0);
  EXPECT_EQ(asNobody([&] { return print() == PrintOutcome::not_started ? kPassed : 0; }), kPassed);
  EXPECT_TRUE(holdsOlder());
  EXPECT_EQ(folder.names(), std::set<std::string>{"page.pdf"});
}

/// The older file may be written, but nothing may take its place.
TEST_F(PrintToHostileFile, IsNotStartedInAFolderThatMayNotBeWritten) {
  ASSERT_EQ(::chmod(file.c_str(), 0666), 0);
  ASSERT_EQ(::chmod(folder.path().c_str(), 0555), 0);
  EXPECT_EQ(asNobody([&] { return print() == PrintOutcome::not_started ? kPassed : 0; }), kPassed);
  ASSERT_EQ(::chmod(folder.path().c_str(), 0755), 0);
  EXPECT_TRUE(holdsOlder());
  EXPECT_EQ(folder.names(), std::set<std::string>{"page.pdf"});
}

TEST_F(PrintToHostileFile, IsNotStartedWithoutAFolderForThePageUntilItIsWhole) {
  ASSERT_EQ(::mkdir((folder / "temporary").c_str(), 0555), 0);
  ASSERT_EQ(::chmod(file.c_str(), 0666), 0);
  ASSERT_EQ(::chmod(folder.path().c_str(), 0777), 0);
  const EnvironmentGuard temporary("TMPDIR", (folder / "temporary").c_str());
  EXPECT_EQ(asNobody([&] { return print() == PrintOutcome::not_started ? kPassed : 0; }), kPassed);
  EXPECT_TRUE(holdsOlder());
}

TEST_F(PrintToHostileFile, IsNotStartedForADevice) {
  file = "/dev/null";
  EXPECT_EQ(print(), PrintOutcome::not_started);
}

TEST_F(PrintToHostileFile, ReplacesTheOlderOneInOneStepAndKeepsItsPermissions) {
  ASSERT_EQ(::chmod(file.c_str(), 0640), 0);
  std::ifstream reader(file, std::ios::binary);
  EXPECT_EQ(print(), PrintOutcome::printed);
  EXPECT_TRUE(isWholePdf(bytesOf(file)));
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(reader), {}), older);
  struct stat status {};
  ASSERT_EQ(::stat(file.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777, mode_t{0640});
}

TEST_F(PrintToHostileFile, ReplacesTheTargetOfALink) {
  const std::string target = folder / "target";
  std::filesystem::rename(file, target);
  std::filesystem::create_symlink("target", file);
  EXPECT_EQ(print(), PrintOutcome::printed);
  EXPECT_TRUE(std::filesystem::is_symlink(file));
  EXPECT_TRUE(isWholePdf(bytesOf(target)));
}

/// The temporary one was for its user alone.
TEST_F(PrintToHostileFile, GivesANewOneThePermissionsOfAnyNewFile) {
  std::filesystem::remove(file);
  const mode_t mask = ::umask(027);
  EXPECT_EQ(print(), PrintOutcome::printed);
  ::umask(mask);
  struct stat status {};
  ASSERT_EQ(::stat(file.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777, mode_t{0640});
}

}  // namespace
}  // namespace zel::test
