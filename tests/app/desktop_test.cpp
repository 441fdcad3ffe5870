#include "app/desktop.h"

#include "program_fixture.h"

namespace zel::test {
namespace {

using Entries = std::vector<std::pair<std::string, std::string>>;

class Desktop : public ProgramTest {};

TEST_F(Desktop, NamesTheHelpFileOfTheLanguage) {
  EXPECT_EQ(HelpFileName(), "ayuda_es.hlp");
  SetCurrentLanguage("EN");
  EXPECT_EQ(HelpFileName(), "ayuda_en.hlp");
  SetCurrentLanguage("fr");
  EXPECT_EQ(HelpFileName(), "");
}

TEST_F(Desktop, ShowsAndClosesHelpWithTheViewersCommands) {
  ShowHelpTopics(services.help);
  SetCurrentLanguage("EN");
  CloseHelp(services.help);
  EXPECT_EQ(services.help.shown,
            (std::vector<std::pair<std::string, int>>{{"ayuda_es.hlp", 15}, {"ayuda_en.hlp", 2}}));
}

TEST_F(Desktop, RegistersTheDocumentTypeInOrderAndWithoutQuotes) {
  EXPECT_TRUE(registerZelDocuments(services.registry, {"C:\\My Programs\\zel", "zel"}));
  EXPECT_EQ(services.registry.keys, (std::vector<std::string>{"zel", ".zel"}));
  EXPECT_EQ(services.registry.values,
            (Entries{{"zel", "Gráfico de funciones"},
                     {".zel", "zel"},
                     {"zel\\shell\\open\\command", "C:\\My Programs\\zel\\zel.exe %1"},
                     {"zel\\DefaultIcon", "C:\\My Programs\\zel\\doc.ico"}}));
}

TEST_F(Desktop, RegistersTheEnglishDescriptionInEnglish) {
  SetCurrentLanguage("EN");
  registerZelDocuments(services.registry, {"C:\\zel", "zel"});
  EXPECT_EQ(services.registry.values[0].second, "Function graphic");
}

TEST_F(Desktop, TakesEveryPointOutOfTheTypesNameAndKeepsTheLiteralType) {
  RegisterDocumentType(services.registry, {"C:\\zel", "zel"}, ".a.b", "x", "icon");
  EXPECT_EQ(services.registry.values[0].first, "ab");
  EXPECT_EQ(services.registry.values[1], (Entries::value_type{".a.b", "zel"}));
}

TEST_F(Desktop, ReportsSuccessWhenTheRegistryRefuses) {
  services.registry.creates_keys = false;
  EXPECT_TRUE(registerZelDocuments(services.registry, {"C:\\zel", "zel"}));
}

TEST_F(Desktop, OpensTheHomePageOfTheLanguage) {
  OpenWebPage(services.browser);
  SetCurrentLanguage("EN");
  OpenWebPage(services.browser);
  EXPECT_EQ(services.browser.calls,
            (std::vector<std::string>{"start", "visible", "navigate https://zel.example/es/",
                                      "start", "visible", "navigate https://zel.example/en/"}));
}

TEST_F(Desktop, GivesABusyBrowserUpAfterOneHundredAndOneReads) {
  services.browser.busy_for = 1000;
  OpenWebPage(services.browser);
  EXPECT_EQ(services.browser.busy_reads, 101);
}

TEST_F(Desktop, StopsAskingABrowserThatIsNotBusy) {
  services.browser.busy_for = 3;
  OpenWebPage(services.browser);
  EXPECT_EQ(services.browser.busy_reads, 4);
}

TEST_F(Desktop, EndsQuietlyWhenTheBrowserFails) {
  for (const char* call : {"start", "visible", "navigate"}) {
    services.browser.fails_at = call;
    OpenWebPage(services.browser);
  }
  EXPECT_EQ(services.browser.busy_reads, 0);
  EXPECT_TRUE(services.boxes.shown.empty());
}

TEST_F(Desktop, SendsAMailWithItsSubjectToTheMaker) {
  SendMailToMaker(services.mail);
  EXPECT_EQ(services.mail.calls,
            (std::vector<std::string>{"start", "create", "recipient zel@zel.example", "subject ZEL",
                                      "send"}));
}

TEST_F(Desktop, SendsNothingWhenTheMailClientFails) {
  for (const char* call : {"start", "create", "recipient", "subject"}) {
    services.mail.calls.clear();
    services.mail.fails_at = call;
    SendMailToMaker(services.mail);
    EXPECT_NE(services.mail.calls.back(), "send") << call;
  }
}

}  // namespace
}  // namespace zel::test
