#include "platform/xdg/xdg_recent_documents.h"

#include <filesystem>

#include <gmock/gmock.h>
#include <sys/stat.h>

#include "support/temporary_folder.h"

namespace zel::test {
namespace {

namespace fs = std::filesystem;

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class DesktopsRecentDocuments : public ::testing::Test {
 protected:
  /// A document that is there.
  std::string document(const std::string& name) {
    putBytes(folder / name, "");
    return folder / name;
  }

  TemporaryFolder folder;
  std::string data = folder / "data";
  std::string file = data + "/recently-used.xbel";
  XdgRecentDocuments recent{data};
};

TEST_F(DesktopsRecentDocuments, AreNoneAtFirstAndThatMakesNoFile) {
  EXPECT_THAT(recent.list(), IsEmpty());
  EXPECT_FALSE(fs::exists(data));
}

TEST_F(DesktopsRecentDocuments, AreThoseThatWereAdded) {
  const std::string name = document("a ñ.zel");
  recent.add(name);
  EXPECT_THAT(recent.list(), ElementsAre(name));
  EXPECT_THAT(XdgRecentDocuments(data).list(), ElementsAre(name));
}

TEST_F(DesktopsRecentDocuments, AreForTheUserAlone) {
  recent.add(document("a.zel"));
  EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(DesktopsRecentDocuments, AreReplacedWholeAndLeaveNothingBehind) {
  recent.add(document("a.zel"));
  recent.add(document("b.zel"));
  EXPECT_THAT(recent.list(), SizeIs(2));
  EXPECT_EQ(std::distance(fs::directory_iterator(data), {}), 1);
}

TEST_F(DesktopsRecentDocuments, KeepWhatAnotherProgramHasAddedMeanwhile) {
  recent.add(document("a.zel"));
  EXPECT_THAT(recent.list(), SizeIs(1));
  XdgRecentDocuments(data).add(document("b.zel"));
  recent.add(document("c.zel"));
  EXPECT_THAT(recent.list(), SizeIs(3));
}

TEST_F(DesktopsRecentDocuments, AreNotOfferedWhenTheyAreGone) {
  recent.add(document("a.zel"));
  recent.add(document("b.zel"));
  fs::remove(folder / "a.zel");
  fs::remove(folder / "b.zel");
  fs::create_directory(folder / "b.zel");
  EXPECT_THAT(recent.list(), IsEmpty());
}

TEST_F(DesktopsRecentDocuments, AreTenAtTheMost) {
  for (int i = 0; i < 12; ++i) recent.add(document(std::to_string(i) + ".zel"));
  EXPECT_THAT(recent.list(), SizeIs(RecentDocuments::kMostRecent));
}

TEST_F(DesktopsRecentDocuments, AreNotLookedForWithoutEnd) {
  for (std::size_t i = 0; i < XdgRecentDocuments::kMostLooks; ++i)
    recent.add(folder / (std::to_string(i) + ".zel"));
  EXPECT_THAT(recent.list(), IsEmpty());
  putBytes(folder / "0.zel", "");
  EXPECT_THAT(recent.list(), SizeIs(1));
}

TEST_F(DesktopsRecentDocuments, LeaveABrokenListAsItIs) {
  fs::create_directories(data);
  for (const char* broken : {"<xbel><bookmark>", "\xFF\xFE<", "no list"}) {
    putBytes(file, broken);
    recent.add(document("a.zel"));
    EXPECT_EQ(bytesOf(file), broken);
    EXPECT_THAT(recent.list(), IsEmpty());
  }
}

TEST_F(DesktopsRecentDocuments, LeaveAListThatIsTooLongAsItIs) {
  fs::create_directories(data);
  const std::string start = "<xbel><!--", end = "--></xbel>";
  const std::size_t filling = XdgRecentDocuments::kLongestList - start.size() - end.size();
  const std::string longest = start + std::string(filling, ' ') + end;
  putBytes(file, longest + " ");
  recent.add(document("a.zel"));
  EXPECT_EQ(fs::file_size(file), longest.size() + 1);
  putBytes(file, longest);  // and would be too long with another entry
  recent.add(document("a.zel"));
  EXPECT_EQ(fs::file_size(file), longest.size());
}

TEST_F(DesktopsRecentDocuments, DoNotWaitForWhatIsNoFile) {
  fs::create_directories(data);
  ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0);
  EXPECT_THAT(recent.list(), IsEmpty());
  recent.add(document("a.zel"));
  EXPECT_TRUE(fs::is_fifo(file));
}

TEST_F(DesktopsRecentDocuments, ArePassedOverWhereTheyCannotBeWritten) {
  putBytes(data, "a file in the place of the folder");
  recent.add(document("a.zel"));
  EXPECT_THAT(recent.list(), IsEmpty());
  EXPECT_TRUE(fs::is_regular_file(data));
}

}  // namespace
}  // namespace zel::test
