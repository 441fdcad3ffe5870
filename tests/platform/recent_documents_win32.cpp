#define WIN32_LEAN_AND_MEAN
#include <windows.h>
// After <windows.h>, which they need.
#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <objbase.h>
#include <shlobj.h>

#include "platform/win32/com_dispatch.h"
#include "platform/win32/win32_recent_documents.h"
#include "support/temporary_folder.h"

namespace zel::test {
namespace {

namespace fs = std::filesystem;

/// Links in the shell's folder of recent documents, which go away with the test.
class RecentDocumentsOfWindows : public ::testing::Test {
 protected:
  ~RecentDocumentsOfWindows() override {
    std::error_code ignored;
    for (const fs::path& link : made_) fs::remove(link, ignored);
  }

  /// A document of this name, whose link has a name of its own; a larger age is an older link.
  void addDocument(const std::string& name, const std::string& link_name,
                   std::chrono::minutes age) {
    putBytes(folder_ / name, "x");
    addLink(folder_ / name, link_name, age);
  }

  void addLink(const std::string& target, const std::string& link_name, std::chrono::minutes age) {
    wchar_t recent[MAX_PATH] = L"";
    ASSERT_EQ(SHGetFolderPathW(nullptr, CSIDL_RECENT, nullptr, SHGFP_TYPE_CURRENT, recent), S_OK);
    fs::create_directories(recent);
    const fs::path link = fs::path(recent) / pathOf(link_name);
    made_.push_back(link);
    void* made = nullptr;
    ASSERT_TRUE(SUCCEEDED(
        CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW, &made)));
    auto* const shell_link = static_cast<IShellLinkW*>(made);
    shell_link->SetPath(pathOf(target).make_preferred().c_str());
    ASSERT_TRUE(SUCCEEDED(shell_link->QueryInterface(IID_IPersistFile, &made)));
    auto* const file = static_cast<IPersistFile*>(made);
    EXPECT_TRUE(SUCCEEDED(file->Save(link.c_str(), TRUE)));
    file->Release();
    shell_link->Release();
    // After all that are there.
    fs::last_write_time(link, fs::file_time_type::clock::now() + std::chrono::days(1) - age);
  }

  /// The names of what is listed from this test's folder.
  std::vector<std::string> listed() {
    std::vector<std::string> names;
    for (const std::string& path : recent_.list())
      if (fs::equivalent(pathOf(path).parent_path(), folder_.path()))
        names.push_back(utf8Of(pathOf(path).filename()));
    return names;
  }

  using Names = std::vector<std::string>;
  using Minutes = std::chrono::minutes;

  const ComSession session_;
  Win32RecentDocuments recent_;
  TemporaryFolder folder_;
  std::vector<fs::path> made_;
};

TEST_F(RecentDocumentsOfWindows, AreTheOnesThatTheLinksLeadToTheLastOneFirst) {
  addDocument("older.zel", "zel-test older.zel.lnk", Minutes(2));
  addDocument("newer.zel", "zel-test newer.zel.lnk", Minutes(1));
  EXPECT_EQ(listed(), (Names{"newer.zel", "older.zel"}));
}

/// Where endings are hidden, the shell leaves them out of the links' names.
TEST_F(RecentDocumentsOfWindows, AreFoundByLinksWhoseNamesHaveNoEndings) {
  addDocument("waves.zel", "zel-test waves.lnk", Minutes(1));
  EXPECT_EQ(listed(), Names{"waves.zel"});
}

TEST_F(RecentDocumentsOfWindows, AreDocumentsThatAreThere) {
  addDocument("notes.txt", "zel-test notes.txt.lnk", Minutes(1));
  addLink(folder_ / "gone.zel", "zel-test gone.zel.lnk", Minutes(1));
  EXPECT_EQ(listed(), Names{});
}

TEST_F(RecentDocumentsOfWindows, AreLookedForAmongTheLinksThatWereWrittenLast) {
  addDocument("waves.zel", "zel-test waves.zel.lnk", Minutes(500));
  const auto addNewer = [this](std::size_t i) {
    addLink(folder_ / "notes.txt", "zel-test " + std::to_string(i) + ".lnk", Minutes(i));
  };
  for (std::size_t i = 1; i < Win32RecentDocuments::kMostLinks; ++i) addNewer(i);
  EXPECT_EQ(listed(), Names{"waves.zel"});
  addNewer(Win32RecentDocuments::kMostLinks);
  EXPECT_EQ(listed(), Names{});
}

}  // namespace
}  // namespace zel::test
