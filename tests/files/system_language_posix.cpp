#include <gtest/gtest.h>

#include "files/system_language.h"
#include "support/environment_guard.h"

namespace zel::test {
namespace {

TEST(SystemLanguageOnPosix, IsNotEnglishWhereNoVariableSaysSo) {
  const EnvironmentGuard first("LC_ALL", nullptr);
  const EnvironmentGuard second("LC_MESSAGES", nullptr);
  const EnvironmentGuard third("LANG", nullptr);
  EXPECT_FALSE(systemSpeaksEnglish());
}

}  // namespace
}  // namespace zel::test
