// Who may use a file stays the same when it is replaced; what cannot be kept gives nobody more.

#include <cstdio>
#include <cstdlib>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/xattr.h>

#include "child_posix.h"
#include "files/whole_file.h"
#include "support/temporary_folder.h"

namespace zel::test {
namespace {

namespace fs = std::filesystem;

/// What a command says, and nothing when it fails.
std::string outputOf(const std::string& command) {
  FILE* const pipe = ::popen((command + " 2>/dev/null").c_str(), "r");
  if (pipe == nullptr) return {};
  std::string output;
  for (int c = std::fgetc(pipe); c != EOF; c = std::fgetc(pipe)) output += static_cast<char>(c);
  return ::pclose(pipe) == 0 ? output : std::string();
}

class FileAccess : public ::testing::Test {
 protected:
  FileAccess() { putBytes(path, "old"); }

  static mode_t modeOf(const std::string& name) {
    struct stat status {};
    EXPECT_EQ(::stat(name.c_str(), &status), 0);
    return status.st_mode & 07777;
  }

  /// The lines of the access control list.
  static std::string listOf(const std::string& name) {
    return outputOf("getfacl --omit-header --no-effective --numeric --absolute-names '" + name +
                    "'");
  }

  /// False where lists cannot be had.
  static bool setList(const std::string& entries, const std::string& name) {
    return std::system(("setfacl " + entries + " '" + name + "' 2>/dev/null").c_str()) == 0;
  }

  void rewrite() { EXPECT_EQ(writeWholeFile(path, "new"), (WriteResult{true, true})); }

  /// Gives the file to strangers and lets another one write it, who cannot keep its group.
  void rewriteAsNobody() {
    ASSERT_EQ(::chown(path.c_str(), 4321, 1234), 0);
    fs::permissions(folder.path(), fs::perms::all);
    EXPECT_EQ(asNobody([&] { return writeWholeFile(path, "new").written ? 1 : 0; }), 1);
  }

  TemporaryFolder folder;
  std::string path = folder / "file";
};

constexpr const char* kNoLists = "there is no setfacl, or no lists in this file system";
constexpr const char* kNoRoot = "only root may give files away";

TEST_F(FileAccess, KeepsTheAccessControlList) {
  if (!setList("-m u::rw,u:1234:rw,g::r,g:2345:r,m::rw,o::-", path)) GTEST_SKIP() << kNoLists;
  const std::string before = listOf(path);
  rewrite();
  EXPECT_EQ(listOf(path), before);
  EXPECT_EQ(before,
            "user::rw-\nuser:1234:rw-\ngroup::r--\ngroup:2345:r--\nmask::rw-\nother::---\n\n");
}

TEST_F(FileAccess, DoesNotGiveTheGroupWhatItsMaskAllowsToOthers) {
  ASSERT_EQ(::chmod(path.c_str(), 0600), 0);
  if (!setList("-m u:1234:rw", path)) GTEST_SKIP() << kNoLists;
  ASSERT_EQ(modeOf(path), mode_t{0660});
  rewrite();
  EXPECT_EQ(listOf(path), "user::rw-\nuser:1234:rw-\ngroup::---\nmask::rw-\nother::---\n\n");
}

TEST_F(FileAccess, TakesNoListFromTheFolder) {
  ASSERT_EQ(::chmod(path.c_str(), 0660), 0);
  if (!setList("-d -m u:1234:rw", folder.path().string())) GTEST_SKIP() << kNoLists;
  rewrite();
  EXPECT_EQ(listOf(path), "user::rw-\ngroup::rw-\nother::---\n\n");
  EXPECT_TRUE(writeWholeFile(folder / "another", "x").written);
  EXPECT_NE(listOf(folder / "another").find("user:1234:rw-"), std::string::npos);
}

TEST_F(FileAccess, KeepsSpecialBitsBesideAList) {
  if (!setList("-m u:1234:r", path)) GTEST_SKIP() << kNoLists;
  ASSERT_EQ(::chmod(path.c_str(), 02750), 0);
  const std::string before = listOf(path);
  rewrite();
  EXPECT_EQ(listOf(path), before);
  EXPECT_EQ(modeOf(path), mode_t{02750});
}

TEST_F(FileAccess, LeavesTheListsOwnGroupsWithoutTheirRightsInAnotherGroup) {
  if (::geteuid() != 0) GTEST_SKIP() << kNoRoot;
  if (!setList("-m u:65534:rw,g::rw,g:2345:rw,m::rw,o::r", path)) GTEST_SKIP() << kNoLists;
  rewriteAsNobody();
  EXPECT_EQ(listOf(path),
            "user::rw-\nuser:65534:rw-\ngroup::r--\ngroup:2345:rw-\nmask::rw-\nother::r--\n\n");
}

TEST_F(FileAccess, KeepsOutWhoWasKeptOutByTheGroupOfAList) {
  if (::geteuid() != 0) GTEST_SKIP() << kNoRoot;
  if (!setList("-n -m u:65534:rw,g::rwx,m::w,o::r", path)) GTEST_SKIP() << kNoLists;
  rewriteAsNobody();
  EXPECT_EQ(listOf(path), "user::rw-\nuser:65534:rw-\ngroup::---\nmask::-w-\nother::---\n\n");
}

TEST_F(FileAccess, KeepsOutWhoWasKeptOutByTheGroup) {
  if (::geteuid() != 0) GTEST_SKIP() << kNoRoot;
  ASSERT_EQ(::chmod(path.c_str(), 0626), 0);
  rewriteAsNobody();
  EXPECT_EQ(modeOf(path), mode_t{0622});
}

TEST_F(FileAccess, KeepsExtendedAttributes) {
  const std::string value("text\0bytes\xFF", 11);
  if (::setxattr(path.c_str(), "user.one", value.data(), value.size(), 0) != 0)
    GTEST_SKIP() << "no extended attributes in this file system";
  ASSERT_EQ(::setxattr(path.c_str(), "user.empty", "", 0, 0), 0);
  rewrite();
  std::string found(20, ' ');
  const auto size = ::getxattr(path.c_str(), "user.one", found.data(), found.size());
  ASSERT_EQ(size, 11);
  EXPECT_EQ(found.substr(0, 11), value);
  EXPECT_EQ(::getxattr(path.c_str(), "user.empty", nullptr, 0), 0);
}

TEST_F(FileAccess, DoesNotGiveNewBytesTheCapabilitiesOfTheOldOnes) {
  const std::string nothing("\1\0\0\2\0\4\0\0\0\0\0\0\0\0\0\0\0\0\0\0", 20);
  if (::setxattr(path.c_str(), "security.capability", nothing.data(), nothing.size(), 0) != 0)
    GTEST_SKIP() << "no file capabilities here";
  rewrite();
  EXPECT_LT(::getxattr(path.c_str(), "security.capability", nullptr, 0), 0);
}

}  // namespace
}  // namespace zel::test
