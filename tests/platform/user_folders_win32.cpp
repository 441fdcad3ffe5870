#include <string>

#include <gtest/gtest.h>

#include "platform/desktop_services.h"
#include "support/environment_guard.h"

namespace zel::test {
namespace {

TEST(FoldersOfWindows, LieInThoseThatTheSystemNames) {
  for (const std::string& name : {std::string("C:\\ana"), "C:\\" + std::string(300, 'a')}) {
    const EnvironmentGuard roaming("APPDATA", (name + "\\Roaming").c_str());
    const EnvironmentGuard local("LOCALAPPDATA", (name + "\\Local").c_str());
    EXPECT_EQ(userFolder(), name + "\\Roaming\\zel");
    EXPECT_EQ(stateFolder(), name + "\\Local\\zel");
  }
}

TEST(FoldersOfWindows, AreNoneWhereTheSystemNamesNone) {
  const EnvironmentGuard roaming("APPDATA", nullptr);
  const EnvironmentGuard local("LOCALAPPDATA", nullptr);
  EXPECT_EQ(userFolder(), "");
  EXPECT_EQ(stateFolder(), "");
}

}  // namespace
}  // namespace zel::test
