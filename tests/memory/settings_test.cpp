// Every allocation of a read and of a write of config.ini fails once, and from then on: the
// settings are read or told to be damaged, and the file is the older or the newer one.

#include <iostream>

#include <gtest/gtest.h>

#include "failing_new.h"
#include "files/config.h"
#include "files/text_file.h"
#include "support/language_guard.h"
#include "support/temporary_folder.h"

namespace zel::test {
namespace {

class SettingsInWantOfMemory : public ::testing::Test {
 protected:
  LanguageGuard language{"ES"};
  TemporaryFolder folder;
  std::string path = folder / kConfigFile;
};

/// Lines that are longer than any text that needs no memory.
TEST_F(SettingsInWantOfMemory, AreReadOrToldToBeDamaged) {
  const std::string bytes = "EN" + std::string(100, '\xF1') + "\r\n" + std::string(100, ' ') +
                            "True" + std::string(100, ' ');
  putBytes(path, bytes);
  for (const bool lasts : {false, true}) {
    Configuration configuration;
    ConfigRead outcome = ConfigRead::missing;
    const long failures = failEachAllocation(
        lasts, [&] { outcome = readConfig(path, configuration); },
        [&] {
          const bool is_read = outcome == ConfigRead::read;
          EXPECT_TRUE(is_read || outcome == ConfigRead::damaged);
          EXPECT_EQ(CurrentLanguage(), is_read ? "EN" : "ES");
          EXPECT_EQ(configuration.confirm_deletion, is_read);
          EXPECT_EQ(bytesOf(path), bytes);
          configuration = {};
          SetCurrentLanguage("ES");
        });
    std::cout << failures << " failures\n";
    EXPECT_GT(failures, 2);
    EXPECT_EQ(outcome, ConfigRead::read);
  }
}

TEST_F(SettingsInWantOfMemory, StayAsTheyWereOrAreWrittenWhole) {
  const std::string newer = "EN\r\n" + std::string(100, 'x');
  putBytes(path, "older");
  for (const bool lasts : {false, true}) {
    bool written = false;
    const long failures = failEachAllocation(
        lasts, [&] { written = writeTextFile(path, newer); },
        [&] {
          EXPECT_EQ(bytesOf(path), written ? newer : "older");
          EXPECT_EQ(folder.names(), std::set<std::string>{kConfigFile});
          putBytes(path, "older");
        });
    std::cout << failures << " failures\n";
    EXPECT_GT(failures, 2);
    EXPECT_TRUE(written);
  }
}

}  // namespace
}  // namespace zel::test
