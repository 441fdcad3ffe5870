#include "files/text_file.h"

#include <gtest/gtest.h>

#include "files/whole_file.h"
#include "support/temporary_folder.h"

namespace zel::test {
namespace {

class TextFile : public ::testing::Test {
 protected:
  TemporaryFolder folder;
  std::string path = folder / "file.txt";
  std::optional<std::string> text = "before";
};

TEST_F(TextFile, ReadsTheWholeTextInItsCodePage) {
  putBytes(path,
           "gr\xE1"
           "fico \x80\r\n\r\nfin");
  EXPECT_TRUE(readTextFile(path, text));
  EXPECT_EQ(text, "gráfico €\r\n\r\nfin");
}

TEST_F(TextFile, ReadsAnEmptyFileAsAnEmptyText) {
  putBytes(path, "");
  EXPECT_TRUE(readTextFile(path, text));
  EXPECT_EQ(text, "");
}

TEST_F(TextFile, CreatesAMissingFileByReadingIt) {
  EXPECT_FALSE(readTextFile(path, text));
  EXPECT_EQ(text, "before");
  EXPECT_TRUE(fileExists(path));
  EXPECT_EQ(bytesOf(path), "");
  EXPECT_TRUE(readTextFile(path, text));
}

TEST_F(TextFile, CannotReadBelowAFileNorInAMissingFolder) {
  putBytes(path, "x");
  for (const std::string& bad : {path + "/below", folder / "missing/file", std::string()}) {
    EXPECT_FALSE(readTextFile(bad, text)) << bad;
    EXPECT_EQ(text, "before");
  }
  EXPECT_EQ(folder.names(), std::set<std::string>{"file.txt"});
}

TEST_F(TextFile, ThatIsAFolderIsThereAndCannotBeRead) {
  EXPECT_TRUE(readTextFile(folder.path().string(), text));
  EXPECT_EQ(text, "before");
}

TEST_F(TextFile, WritesTheTextInItsCodePage) {
  putBytes(path, "a longer text that was here before");
  EXPECT_TRUE(writeTextFile(path, "gráfico €\r\n→"));
  EXPECT_EQ(bytesOf(path),
            "gr\xE1"
            "fico \x80\r\n?");
}

TEST_F(TextFile, ReturnsWhetherTheFileWasThereBeforeTheWrite) {
  EXPECT_FALSE(writeTextFile(path, "one"));
  EXPECT_EQ(bytesOf(path), "one");
  EXPECT_TRUE(writeTextFile(path, "two"));
  EXPECT_EQ(bytesOf(path), "two");
}

TEST_F(TextFile, ReturnsFalseWhenNothingCouldBeWritten) {
  putBytes(path, "x");
  for (const std::string& bad :
       {folder.path().string(), path + "/below", folder / "missing/file", std::string()})
    EXPECT_FALSE(writeTextFile(bad, "text")) << bad;
  EXPECT_EQ(folder.names(), std::set<std::string>{"file.txt"});
  EXPECT_EQ(bytesOf(path), "x");
}

}  // namespace
}  // namespace zel::test
