// Who may use a file stays the same when it is replaced; what cannot be kept gives nobody more.

#include <cerrno>
#include <cstdio>
#include <cstdlib>

#include <grp.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include "child_posix.h"
#include "faulty_calls_posix.h"
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

  static std::string attributeOf(const std::string& name, const char* attribute) {
    std::string value(100, ' ');
    const auto size = ::getxattr(name.c_str(), attribute, value.data(), value.size());
    value.resize(size < 0 ? 0 : static_cast<std::size_t>(size));
    return value;
  }

  static bool putAttribute(const std::string& name, const char* attribute, std::string_view value) {
    return ::setxattr(name.c_str(), attribute, value.data(), value.size(), 0) == 0;
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

constexpr const char* kListAttribute = "system.posix_acl_access";
constexpr const char* kNoLists = "there is no setfacl, or no lists in this file system";
constexpr const char* kNoAttributes = "no extended attributes in this file system";
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

TEST_F(FileAccess, KeepsTheGroupOfWhoIsOneOfItsMembers) {
  if (::geteuid() != 0) GTEST_SKIP() << kNoRoot;
  ASSERT_EQ(::chmod(path.c_str(), 0660), 0);
  const gid_t group = 1234;
  const int result = inAChild([&] {
    if (::setgroups(1, &group) == 0) rewriteAsNobody();
    return HasFailure() ? 1 : 0;
  });
  EXPECT_EQ(result, 0);
  EXPECT_EQ(bytesOf(path), "new");
  EXPECT_EQ(modeOf(path), mode_t{0660});
  struct stat status {};
  ASSERT_EQ(::stat(path.c_str(), &status), 0);
  EXPECT_EQ(status.st_gid, group);
  EXPECT_EQ(status.st_uid, uid_t{65534});
}

TEST_F(FileAccess, KeepsExtendedAttributes) {
  const std::string value("text\0bytes\xFF", 11);
  if (!putAttribute(path, "user.one", value)) GTEST_SKIP() << kNoAttributes;
  ASSERT_TRUE(putAttribute(path, "user.empty", ""));
  rewrite();
  EXPECT_EQ(attributeOf(path, "user.one"), value);
  EXPECT_EQ(::getxattr(path.c_str(), "user.empty", nullptr, 0), 0);
}

TEST_F(FileAccess, DoesNotGiveNewBytesTheCapabilitiesOfTheOldOnes) {
  const std::string nothing("\1\0\0\2\0\4\0\0\0\0\0\0\0\0\0\0\0\0\0\0", 20);
  if (!putAttribute(path, "security.capability", nothing))
    GTEST_SKIP() << "no file capabilities here";
  rewrite();
  EXPECT_LT(::getxattr(path.c_str(), "security.capability", nullptr, 0), 0);
}

/// With a list the group's permissions are those of everybody whom the list names.
TEST_F(FileAccess, IsGivenToNobodyMoreWhicheverCallFails) {
  if (!setList("-m u:1234:rw,g::r,m::rw,o::-", path)) GTEST_SKIP() << kNoLists;
  if (!putAttribute(path, "user.one", "kept")) GTEST_SKIP() << kNoAttributes;
  const std::string list = attributeOf(path, kListAttribute);
  const auto prepare = [&] {
    fs::remove(path);
    putBytes(path, "old");
    ASSERT_TRUE(putAttribute(path, kListAttribute, list));
    ASSERT_TRUE(putAttribute(path, "user.one", "kept"));
    ASSERT_EQ(modeOf(path), mode_t{0660});
  };
  WriteResult result;
  const auto look = [&] {
    EXPECT_EQ(bytesOf(path), result.written ? "new" : "old");
    const bool is_listed = attributeOf(path, kListAttribute) == list;
    EXPECT_EQ(modeOf(path), is_listed ? mode_t{0660} : mode_t{0600});
    const std::string attribute = attributeOf(path, "user.one");
    EXPECT_TRUE(attribute == "kept" || (result.written && attribute.empty())) << attribute;
    EXPECT_EQ(folder.names(), std::set<std::string>{"file"});
  };
  for (const int error : {EIO, ENOSPC, EPERM}) {
    SCOPED_TRACE(error);
    atEachCall(
        {.error = error}, prepare, [&] { result = writeWholeFile(path, "new"); }, look);
  }
  EXPECT_EQ(attributeOf(path, kListAttribute), list);
  EXPECT_EQ(attributeOf(path, "user.one"), "kept");
}

TEST_F(FileAccess, KeepsThePermissionsWhereTheFileSystemKnowsNoLists) {
  ASSERT_EQ(::chmod(path.c_str(), 0640), 0);
  for (const char* const call : {"getxattr", "fremovexattr", "listxattr"}) {
    beginFaults({.first = 1, .lasts = true, .error = ENOTSUP, .only = call});
    rewrite();
    EXPECT_GT(endFaults(), 0) << call;
    EXPECT_EQ(modeOf(path), mode_t{0640}) << call;
  }
}

TEST_F(FileAccess, IsItsOwnersAloneWhereTheListOfTheFolderStaysOnIt) {
  ASSERT_EQ(::chmod(path.c_str(), 0660), 0);
  if (!setList("-d -m u:1234:rw", folder.path().string())) GTEST_SKIP() << kNoLists;
  beginFaults({.first = 1, .error = EIO, .only = "fremovexattr"});
  rewrite();
  endFaults();
  EXPECT_EQ(modeOf(path), mode_t{0600});
}

/// The bytes of a list: its version, and tag and permissions of each entry, which names nobody.
std::string listOfEntries(const std::vector<std::pair<char, char>>& entries) {
  std::string bytes("\2\0\0\0", 4);
  for (const auto& [tag, permissions] : entries)
    bytes.append({tag, '\0', permissions, '\0', '\xFF', '\xFF', '\xFF', '\xFF'});
  return bytes;
}

constexpr char kOwner = 0x01;
constexpr char kGroup = 0x04;
constexpr char kOthers = 0x20;

/// Linux gives such a list as permissions only, other file systems as it is.
TEST_F(FileAccess, FollowsAListWithoutAMaskIntoAnotherGroup) {
  if (::geteuid() != 0) GTEST_SKIP() << kNoRoot;
  if (!setList("-m o::r", path)) GTEST_SKIP() << kNoLists;
  ASSERT_EQ(::chmod(path.c_str(), 0666), 0);
  const std::string list = listOfEntries({{kOwner, 6}, {kGroup, 6}, {kOthers, 4}});
  beginFaults({.only = "getxattr", .answer = list});
  rewriteAsNobody();
  endFaults();
  EXPECT_EQ(modeOf(path), mode_t{0644});
}

TEST_F(FileAccess, IsItsOwnersAloneUnderAListThatSaysTooLittle) {
  if (::geteuid() != 0) GTEST_SKIP() << kNoRoot;
  for (const std::string& list :
       {listOfEntries({}), listOfEntries({{kOwner, 6}, {kGroup, 6}}),
        listOfEntries({{kOwner, 6}, {kOthers, 6}}), std::string("\2\0\0", 3)}) {
    putBytes(path, "old");
    ASSERT_EQ(::chmod(path.c_str(), 0666), 0);
    beginFaults({.only = "getxattr", .answer = list});
    rewriteAsNobody();
    endFaults();
    EXPECT_EQ(bytesOf(path), "new") << list.size();
    EXPECT_EQ(modeOf(path), mode_t{0600}) << list.size();
  }
}

}  // namespace
}  // namespace zel::test
