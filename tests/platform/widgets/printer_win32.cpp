#include <filesystem>

#include "platform/widgets/print_to_file_fixture.h"

namespace zel::test {
namespace {

TEST(PrinterOfWidgets, OffersNoFileInItsDialog) {
  EXPECT_FALSE(printDialogOptions().testFlag(QAbstractPrintDialog::PrintToFile));
}

using PrintToReadOnlyFile = PrintToFile;

TEST_F(PrintToReadOnlyFile, IsNotStartedAndKeepsIt) {
  constexpr auto kWrites = std::filesystem::perms::owner_write |
                           std::filesystem::perms::group_write |
                           std::filesystem::perms::others_write;
  putBytes(file, "older");
  std::filesystem::permissions(pathOf(file), kWrites, std::filesystem::perm_options::remove);
  EXPECT_EQ(print(), PrintOutcome::not_started);
  EXPECT_EQ(bytesOf(file), "older");
  EXPECT_EQ(folder.names(), std::set<std::string>{"page.pdf"});
  std::filesystem::permissions(pathOf(file), kWrites, std::filesystem::perm_options::add);
}

}  // namespace
}  // namespace zel::test
