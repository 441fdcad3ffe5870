#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "files/whole_file.h"
#include "support/access_list_win32.h"
#include "support/temporary_folder.h"

namespace zel::test {
namespace {

class WholeFileOfWindows : public ::testing::Test {
 protected:
  WholeFileOfWindows() { putBytes(path, "older"); }
  ~WholeFileOfWindows() override { SetFileAttributesW(wide().c_str(), FILE_ATTRIBUTE_NORMAL); }

  std::wstring wide() const { return pathOf(path).wstring(); }
  bool writes() const { return writeWholeFile(path, "newer").written; }

  /// That the document and nothing else is in the folder, with these bytes.
  void expectOnly(const std::string& bytes) const {
    EXPECT_EQ(bytesOf(path), bytes);
    EXPECT_EQ(folder.names().size(), 1u);
  }

  TemporaryFolder folder;
  const std::string path = folder / "gráfico Ω.zel";
};

TEST_F(WholeFileOfWindows, LeavesAReadOnlyFileAsItWas) {
  ASSERT_TRUE(SetFileAttributesW(wide().c_str(), FILE_ATTRIBUTE_READONLY));
  EXPECT_FALSE(writes());
  expectOnly("older");
}

TEST_F(WholeFileOfWindows, LeavesAFileThatAnotherProgramKeepsForItself) {
  const HANDLE other =
      CreateFileW(wide().c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  ASSERT_NE(other, INVALID_HANDLE_VALUE);
  EXPECT_FALSE(writes());
  EXPECT_FALSE(readWholeFile(path));
  CloseHandle(other);
  expectOnly("older");
  EXPECT_TRUE(writes());
  expectOnly("newer");
}

TEST_F(WholeFileOfWindows, KeepsTheAccessListOfTheOlderFile) {
  const std::vector<char> any = accessListOf(wide());
  ASSERT_TRUE(keepForItsOwner(wide()));
  const std::vector<char> own = accessListOf(wide());
  ASSERT_FALSE(own.empty());
  ASSERT_NE(own, any);
  EXPECT_TRUE(writes());
  expectOnly("newer");
  EXPECT_EQ(accessListOf(wide()), own);
}

TEST_F(WholeFileOfWindows, KeepsTheAttributesOfTheOlderFile) {
  constexpr DWORD kHidden = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
  ASSERT_TRUE(SetFileAttributesW(wide().c_str(), kHidden));
  ASSERT_EQ(GetFileAttributesW(wide().c_str()) & kHidden, kHidden);
  EXPECT_TRUE(writes());
  expectOnly("newer");
  EXPECT_EQ(GetFileAttributesW(wide().c_str()) & kHidden, kHidden);
}

/// The form of a whole path that no bound holds for.
std::wstring unbounded(const std::string& path) {
  return L"\\\\?\\" + pathOf(path).make_preferred().wstring();
}

/// A new folder, levels below another one, whose path has this many letters or one less.
std::string deepFolder(const TemporaryFolder& folder, std::size_t size) {
  constexpr std::size_t kLevel = 30;
  std::string deep = utf8Of(folder.path());
  while (deep.size() + 1 < size) {
    deep += "/" + std::string(std::min(kLevel, size - deep.size() - 1), 'a');
    EXPECT_TRUE(CreateDirectoryW(unbounded(deep).c_str(), nullptr)) << deep;
  }
  return deep;
}

TEST_F(WholeFileOfWindows, ReachesPathsLongerThanTheSystemsOldBound) {
  for (const std::size_t size : {228u, 240u, 250u, 257u, 400u, 2000u}) {
    const TemporaryFolder around;
    const std::string deep = deepFolder(around, size);
    const std::string document = deep + "/é Ω.zel";
    EXPECT_FALSE(fileExists(document));
    EXPECT_EQ(writeWholeFile(document, "one"), (WriteResult{false, true})) << size;
    EXPECT_EQ(writeWholeFile(document, "two"), (WriteResult{true, true})) << size;
    EXPECT_TRUE(fileExists(document));
    EXPECT_EQ(readWholeFile(document), "two");
    const std::string empty = deep + "/empty";
    EXPECT_TRUE(createMissingFile(empty));
    removeEmptyFile(empty);
    EXPECT_FALSE(fileExists(empty));
    const std::string left = deep + "/.zel-0123456789abcdef.tmp";
    EXPECT_TRUE(createMissingFile(left));
    EXPECT_TRUE(writeWholeFile(document, "three").written);
    EXPECT_FALSE(fileExists(left));
  }
}

TEST_F(WholeFileOfWindows, IsTriedWhereTheOldBoundHolds) {
  const std::string deep = deepFolder(folder, 300);
  EXPECT_EQ(GetFileAttributesW(pathOf(deep).c_str()), INVALID_FILE_ATTRIBUTES);
  EXPECT_NE(GetFileAttributesW(unbounded(deep).c_str()), INVALID_FILE_ATTRIBUTES);
}

}  // namespace
}  // namespace zel::test
