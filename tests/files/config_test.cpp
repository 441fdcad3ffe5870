#include "files/config.h"

#include <gtest/gtest.h>

#include "files/environment_language.h"
#include "files/system_language.h"
#include "support/environment_guard.h"
#include "support/language_guard.h"
#include "support/temporary_folder.h"

namespace zel::test {
namespace {

class Config : public ::testing::Test {
 protected:
  ConfigRead read(std::string_view bytes) {
    putBytes(path, bytes);
    return readConfig(path, configuration);
  }

  std::string written() {
    writeConfig(path, configuration);
    return bytesOf(path);
  }

  Configuration configuration;
  TemporaryFolder folder;
  std::string path = folder / kConfigFile;

 private:
  LanguageGuard language_{"ES"};

 protected:
  EnvironmentGuard all{"LC_ALL", "es_ES.UTF-8"};
};

TEST_F(Config, CreatesTheFileEmptyAtTheFirstStart) {
  configuration.confirm_deletion = true;
  SetCurrentLanguage("EN");
  EXPECT_EQ(readConfig(path, configuration), ConfigRead::missing);
  EXPECT_EQ(CurrentLanguage(), "EN");
  EXPECT_TRUE(configuration.confirm_deletion);
  EXPECT_EQ(folder.names(), std::set<std::string>{"config.ini"});
  EXPECT_EQ(bytesOf(folder / "config.ini"), "");
}

TEST_F(Config, AsksForNoConfirmationUntilItIsSet) {
  EXPECT_EQ(readConfig(path, configuration), ConfigRead::missing);
  EXPECT_FALSE(configuration.confirm_deletion);
}

TEST_F(Config, IsDamagedAtTheStartAfterAFirstOneThatWasBrokenOff) {
  EXPECT_EQ(readConfig(path, configuration), ConfigRead::missing);
  EXPECT_EQ(readConfig(path, configuration), ConfigRead::damaged);
}

TEST_F(Config, IsDamagedWhenWhatIsThereCannotBeRead) {
  std::filesystem::create_directory(path);
  SetCurrentLanguage("EN");
  configuration.confirm_deletion = true;
  EXPECT_EQ(readConfig(path, configuration), ConfigRead::damaged);
  EXPECT_EQ(CurrentLanguage(), "EN");
  EXPECT_TRUE(configuration.confirm_deletion);
}

TEST_F(Config, IsMissingWhereNoneCanBeMade) {
  EXPECT_EQ(readConfig(folder / "missing/config.ini", configuration), ConfigRead::missing);
}

TEST_F(Config, ReadsLanguageAndSetting) {
  EXPECT_EQ(read("EN\r\nTrue"), ConfigRead::read);
  EXPECT_EQ(CurrentLanguage(), "EN");
  EXPECT_TRUE(configuration.confirm_deletion);
  EXPECT_EQ(read("ES\r\nFalso"), ConfigRead::read);
  EXPECT_EQ(CurrentLanguage(), "ES");
  EXPECT_FALSE(configuration.confirm_deletion);
}

TEST_F(Config, IsDamagedWhenALineIsMissing) {
  configuration.confirm_deletion = true;
  EXPECT_EQ(read(""), ConfigRead::damaged);
  EXPECT_EQ(CurrentLanguage(), "ES");
  EXPECT_EQ(read("EN"), ConfigRead::damaged);
  EXPECT_EQ(CurrentLanguage(), "EN");
  EXPECT_EQ(read("EN\nTrue"), ConfigRead::damaged);
  EXPECT_TRUE(configuration.confirm_deletion);
}

TEST_F(Config, CutsTheLanguageToTwoCharacters) {
  EXPECT_EQ(read("ENGLISH\r\nTrue"), ConfigRead::read);
  EXPECT_EQ(CurrentLanguage(), "EN");
  read("es\r\n");
  EXPECT_EQ(CurrentLanguage(), "es");
  read("\xF1\xE9x\r\n");
  EXPECT_EQ(CurrentLanguage(), "ñé");
  read("\r\n");
  EXPECT_EQ(CurrentLanguage(), "");
}

TEST_F(Config, TakesTheTwoWordsInAnyCaseAndWithBlanksAround) {
  for (const char* const line : {"Verdadero", "VERDADERO", "  verdadero ", "True", "tRUE  "}) {
    configuration.confirm_deletion = false;
    EXPECT_EQ(read(std::string("ES\r\n") + line), ConfigRead::read);
    EXPECT_TRUE(configuration.confirm_deletion) << line;
  }
}

TEST_F(Config, TakesAnythingElseAsNo) {
  for (const char* const line :
       {"", "Falso", "False", "1", "-1", "Si", "Verdad", "Verdaderos", "\tTrue", "True."}) {
    configuration.confirm_deletion = true;
    EXPECT_EQ(read(std::string("ES\r\n") + line), ConfigRead::read);
    EXPECT_FALSE(configuration.confirm_deletion) << line;
  }
}

TEST_F(Config, PassesOverFurtherLines) {
  EXPECT_EQ(read("ES\r\nTrue\r\nmore\r\n"), ConfigRead::read);
  EXPECT_TRUE(configuration.confirm_deletion);
}

TEST_F(Config, WritesTheSettingInTheSystemsLanguage) {
  EXPECT_EQ(written(), "ES\r\nFalso");
  configuration.confirm_deletion = true;
  EXPECT_EQ(written(), "ES\r\nVerdadero");
  const EnvironmentGuard english("LC_ALL", "en_US.UTF-8");
  EXPECT_EQ(written(), "ES\r\nTrue");
  SetCurrentLanguage("EN");
  configuration.confirm_deletion = false;
  EXPECT_EQ(written(), "EN\r\nFalse");
}

TEST_F(Config, ReturnsWhetherTheFileWasThere) {
  EXPECT_FALSE(writeConfig(path, configuration));
  EXPECT_TRUE(writeConfig(path, configuration));
}

TEST_F(Config, ReadsWhatItWroteInEitherLanguage) {
  for (const char* const system : {"es_AR.UTF-8", "en_GB"}) {
    const EnvironmentGuard guard("LC_ALL", system);
    for (const bool confirm : {true, false}) {
      SetCurrentLanguage("EN");
      writeConfig(path, {confirm});
      SetCurrentLanguage("ES");
      EXPECT_EQ(readConfig(path, configuration), ConfigRead::read);
      EXPECT_EQ(configuration, Configuration{confirm});
      EXPECT_EQ(CurrentLanguage(), "EN");
    }
  }
}

struct LanguageCase {
  const char* lc_all;
  const char* lc_messages;
  const char* lang;
  std::optional<bool> english;
};

TEST(SystemLanguage, IsThatOfTheFirstVariableThatHoldsAText) {
  const LanguageCase cases[] = {
      {"en_US.UTF-8", "es_ES", "es_ES", true},
      {"es_ES", "en_US", "en_US", false},
      {"", "en_US", "es_ES", true},
      {nullptr, "es_ES", "en_US", false},
      {"", "", "en", true},
      {nullptr, nullptr, "en_GB.UTF-8", true},
      {nullptr, nullptr, "C.UTF-8", false},
      {"C", "en", "en", false},
      {"EN", "", "", false},
      {nullptr, "", nullptr, std::nullopt},
  };
  for (const auto& [lc_all, lc_messages, lang, english] : cases) {
    const EnvironmentGuard first("LC_ALL", lc_all);
    const EnvironmentGuard second("LC_MESSAGES", lc_messages);
    const EnvironmentGuard third("LANG", lang);
    EXPECT_EQ(environmentSpeaksEnglish(), english);
    if (english) {
      EXPECT_EQ(systemSpeaksEnglish(), *english);
    }
  }
}

}  // namespace
}  // namespace zel::test
