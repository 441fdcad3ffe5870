// Documents and settings that are there and are no files that can be read to their end.

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "document_fixture.h"
#include "faulty_calls_posix.h"
#include "files/config.h"
#include "files/whole_file.h"

namespace zel::test {
namespace {

class Unreadable : public DocumentTest {
 protected:
  void expectThatNothingCanBeRead(const std::string& what) {
    message.clear();
    EXPECT_FALSE(loadDocument(what, view, graphs, header, message)) << what;
    EXPECT_EQ(message, messages::kCannotOpen) << what;
    EXPECT_EQ(letters(), "z") << what;
    Configuration configuration;
    EXPECT_EQ(readConfig(what, configuration), ConfigRead::damaged) << what;
  }
};

TEST_F(Unreadable, AreFifosDevicesAndLinksToThem) {
  putOldGraph();
  ASSERT_EQ(::mkfifo((folder / "fifo").c_str(), 0600), 0);
  std::filesystem::create_symlink("fifo", folder / "link");
  for (const std::string& what : {folder / "fifo", folder / "link", std::string("/dev/zero")})
    expectThatNothingCanBeRead(what);
}

TEST_F(Unreadable, AreNotEvenOpened) {
  putBytes(folder / "file", "");
  for (const auto& [what, opened] :
       {std::pair{folder / "file", 1}, {std::string("/dev/zero"), 0}}) {
    beginFaults({.only = "open"});
    const auto bytes = readWholeFile(what);
    EXPECT_EQ(endFaults(), opened) << what;
    EXPECT_EQ(bytes.has_value(), opened == 1) << what;
  }
}

TEST_F(Unreadable, AreLinksThatLeadNowhereAndTheirTargetsAreNotMade) {
  putOldGraph();
  std::filesystem::create_symlink("target", folder / "link");
  expectThatNothingCanBeRead(folder / "link");
  EXPECT_EQ(folder.names(), std::set<std::string>{"link"});
}

TEST_F(Unreadable, AreNotWrittenOver) {
  ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
  EXPECT_EQ(saveDocument(path, view, graphs), messages::kCannotSave);
  EXPECT_FALSE(writeConfig(path, {}));
  EXPECT_TRUE(std::filesystem::is_fifo(path));
}

}  // namespace
}  // namespace zel::test
