#include <cstdlib>
#include <string>

#include <gtest/gtest.h>
#include <pwd.h>
#include <unistd.h>

#include "app/last_session.h"
#include "files/whole_file.h"
#include "platform/desktop_services.h"
#include "support/environment_guard.h"
#include "support/temporary_folder.h"

namespace zel::test {
namespace {

TEST(StateFolder, LiesInTheFolderThatTheDesktopNames) {
  const EnvironmentGuard state("XDG_STATE_HOME", "/home/ana/states");
  EXPECT_EQ(stateFolder(), "/home/ana/states/zel");
}

TEST(StateFolder, LiesInTheUsersHomeWhereTheDesktopNamesNone) {
  const EnvironmentGuard home("HOME", "/home/ana");
  for (const char* name : {"", "states"}) {
    const EnvironmentGuard state("XDG_STATE_HOME", name);
    EXPECT_EQ(stateFolder(), "/home/ana/.local/state/zel");
  }
}

TEST(StateFolder, LiesInTheHomeOfTheUsersEntryWhereTheEnvironmentNamesNone) {
  const passwd* const entry = ::getpwuid(::getuid());
  if (entry == nullptr || entry->pw_dir == std::string("/")) GTEST_SKIP() << "the user has no home";
  const std::string of_entry = entry->pw_dir;
  const EnvironmentGuard state("XDG_STATE_HOME", nullptr);
  for (const char* const name : {static_cast<const char*>(nullptr), "", "ana"}) {
    const EnvironmentGuard home("HOME", name);
    EXPECT_EQ(stateFolder(), of_entry + "/.local/state/zel");
  }
}

TEST(HomeOfTheToolkit, IsNamedWhereTheEnvironmentNamesNone) {
  const passwd* const entry = ::getpwuid(::getuid());
  if (entry == nullptr) GTEST_SKIP() << "the user has no entry";
  const std::string of_entry = entry->pw_dir;
  for (const char* const name : {static_cast<const char*>(nullptr), "", "ana"}) {
    const EnvironmentGuard home("HOME", name);
    nameHome();
    EXPECT_EQ(std::getenv("HOME"), of_entry);
  }
  const EnvironmentGuard home("HOME", "/home/ana");
  nameHome();
  EXPECT_EQ(std::getenv("HOME"), std::string("/home/ana"));
}

TEST(StateFolder, LiesInTheRootForAUserWhoseHomeThatIs) {
  const EnvironmentGuard home("HOME", "/");
  const EnvironmentGuard state("XDG_STATE_HOME", nullptr);
  EXPECT_EQ(stateFolder(), "/.local/state/zel");
}

TEST(StateFolder, HasTheBytesOfTheEnvironmentWhateverTheyAre) {
  const EnvironmentGuard home("HOME", "/home/\xFF");
  const EnvironmentGuard state("XDG_STATE_HOME", nullptr);
  const EnvironmentGuard configurations("XDG_CONFIG_HOME", "/c/n\xC3/");
  EXPECT_EQ(stateFolder(), "/home/\xFF/.local/state/zel");
  EXPECT_EQ(userFolder(), "/c/n\xC3/zel");
}

TEST(StateFolder, IsMadeInAHomeThatIsNoUtf8) {
  const TemporaryFolder folder;
  const EnvironmentGuard home("HOME", (folder / "h\xFF").c_str());
  const EnvironmentGuard state("XDG_STATE_HOME", nullptr);
  GraphTable graphs;
  graphs.rebuildGraph('a', "x", "", 0, 'F', nullptr);
  LastSession(stateFolder()).keep({}, graphs);
  EXPECT_EQ(folder.names(), std::set<std::string>{"h\xFF"});
  EXPECT_TRUE(LastSession(stateFolder()).isThere());
}

TEST(FolderOfData, IsThatOfTheDesktopsListInAHomeThatIsNoUtf8) {
  const TemporaryFolder folder;
  const std::string home_path = folder / "h\xFF";
  const std::string document = folder / "a.zel";
  putBytes(document, "");
  const EnvironmentGuard home("HOME", home_path.c_str());
  const EnvironmentGuard data("XDG_DATA_HOME", nullptr);
  const DesktopServices services = makeDesktopServices("/opt/zel/zel");
  services.recent->add(document);
  EXPECT_EQ(services.recent->list(), std::vector<std::string>{document});
  EXPECT_TRUE(fileExists(home_path + "/.local/share/recently-used.xbel"));
  EXPECT_EQ(folder.names(), (std::set<std::string>{"a.zel", "h\xFF"}));
}

}  // namespace
}  // namespace zel::test
