// Where files are printed into, and what becomes of an older one.
#include <filesystem>

#include "platform/widgets/print_to_file_fixture.h"

namespace zel::test {
namespace {

TEST_F(PrintToFile, MakesAFileWithNothingBesideIt) {
  EXPECT_EQ(print(), PrintOutcome::printed);
  EXPECT_TRUE(isWholePdf(bytesOf(file)));
  EXPECT_EQ(folder.names(), std::set<std::string>{"page.pdf"});
}

TEST_F(PrintToFile, ReplacesALongerOlderFileWhole) {
  putBytes(file, std::string(100000, 'o'));
  EXPECT_EQ(print(), PrintOutcome::printed);
  EXPECT_TRUE(isWholePdf(bytesOf(file)));
  EXPECT_EQ(folder.names(), std::set<std::string>{"page.pdf"});
}

TEST_F(PrintToFile, TakesANameOfAnyLettersAndEnding) {
  for (const char* const name : {"página ∑.pdf", "page", "page.PDF", "page.txt"}) {
    file = folder / name;
    EXPECT_EQ(print(), PrintOutcome::printed) << name;
    EXPECT_TRUE(isWholePdf(bytesOf(file))) << name;
  }
}

TEST_F(PrintToFile, ProposesTheSameFileTheNextTime) {
  EXPECT_EQ(print(), PrintOutcome::printed);
  EXPECT_EQ(proposed, "");
  EXPECT_EQ(print(), PrintOutcome::printed);
  EXPECT_EQ(proposed, file);
}

TEST_F(PrintToFile, PrintsNothingWhenTheUserCancels) {
  is_accepted = false;
  EXPECT_EQ(print(), PrintOutcome::cancelled);
  EXPECT_EQ(folder.names(), std::set<std::string>{});
}

TEST_F(PrintToFile, IsNotStartedWhereThereIsNoFolder) {
  file = folder / "missing/page.pdf";
  EXPECT_EQ(print(), PrintOutcome::not_started);
  EXPECT_EQ(folder.names(), std::set<std::string>{});
}

TEST_F(PrintToFile, IsNotStartedWhereAFolderHasTheName) {
  std::filesystem::create_directory(pathOf(file));
  EXPECT_EQ(print(), PrintOutcome::not_started);
  EXPECT_EQ(folder.names(), std::set<std::string>{"page.pdf"});
}

}  // namespace
}  // namespace zel::test
