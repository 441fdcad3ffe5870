#include <gtest/gtest.h>

#include "platform/desktop_services.h"
#include "support/environment_guard.h"

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

}  // namespace
}  // namespace zel::test
