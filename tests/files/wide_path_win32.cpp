#include <string>

#include <gtest/gtest.h>

#include "files/wide_path.h"

namespace zel::test {
namespace {

/// A path of this many letters, in folders below `start`.
std::string deepPath(std::string start, std::size_t size) {
  while (start.size() + 31 < size) start += "\\" + std::string(30, 'a');
  return start + "\\" + std::string(size - start.size() - 1, 'b');
}

std::wstring wide(const std::string& path) { return WidePath(path).c_str(); }
std::wstring letters(const std::string& ascii) { return {ascii.begin(), ascii.end()}; }

TEST(WidePathOfWindows, IsAShortPathAsItIs) {
  for (const char* const path :
       {"C:\\a.zel", "a.zel", "../b/./c.zel", "\\\\server\\share\\a.zel", "NUL"})
    EXPECT_EQ(wide(path), letters(path));
  EXPECT_EQ(wide("é Ω.zel"), L"\u00E9 \u03A9.zel");
}

TEST(WidePathOfWindows, BeginsSoThatNoBoundHoldsForItWhereATemporaryFileBesideItWouldPassIt) {
  EXPECT_EQ(wide(deepPath("C:", 234)), letters(deepPath("C:", 234)));
  EXPECT_EQ(wide(deepPath("C:", 235)), L"\\\\?\\" + letters(deepPath("C:", 235)));
  EXPECT_EQ(wide(deepPath("C:", 30000)), L"\\\\?\\" + letters(deepPath("C:", 30000)));
}

TEST(WidePathOfWindows, IsWholeWhereItIsLong) {
  std::string path = deepPath("C:", 300);
  const std::wstring expected = L"\\\\?\\" + letters(path);
  for (char& c : path) c = c == '\\' ? '/' : c;
  EXPECT_EQ(wide("C:/x/.././." + path.substr(2)), expected);
}

TEST(WidePathOfWindows, NamesAServerInTheFormThatNoBoundHoldsFor) {
  const std::string path = deepPath("\\\\server\\share", 300);
  EXPECT_EQ(wide(path), L"\\\\?\\UNC" + letters(path.substr(1)));
}

TEST(WidePathOfWindows, KeepsALongPathThatBeginsSoAlready) {
  const std::string path = deepPath("\\\\?\\C:", 300);
  EXPECT_EQ(wide(path), letters(path));
}

TEST(WidePathOfWindows, HasRoomForTheLongestPath) {
  EXPECT_EQ(wide(std::string(32767, 'a')).size(), 32767u);
  EXPECT_TRUE(WidePath(std::string(32768, 'a')).isEmpty());
}

TEST(WidePathOfWindows, IsEmptyForATextThatIsNoPath) {
  for (const std::string& text :
       {std::string(), std::string("a\0b", 3), std::string("a\xFF"), std::string(100000, 'a')})
    EXPECT_TRUE(WidePath(text).isEmpty());
}

}  // namespace
}  // namespace zel::test
