#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "files/whole_file.h"
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

TEST_F(WholeFileOfWindows, ReachesPathsLongerThanTheSystemsOldBound) {
  std::string deep = utf8Of(folder.path());
  for (int i = 0; i < 12; ++i) deep += "/" + std::string(30, static_cast<char>('a' + i));
  ASSERT_TRUE(std::filesystem::create_directories(pathOf("\\\\?\\" + [&] {
    std::string native = deep;
    for (char& c : native) c = c == '/' ? '\\' : c;
    return native;
  }())));
  const std::string document = deep + "/é Ω.zel";
  ASSERT_GT(document.size(), 300u);
  EXPECT_EQ(writeWholeFile(document, "one"), (WriteResult{false, true}));
  EXPECT_EQ(writeWholeFile(document, "two"), (WriteResult{true, true}));
  EXPECT_EQ(readWholeFile(document), "two");
}

}  // namespace
}  // namespace zel::test
