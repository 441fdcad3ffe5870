#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/desktop.h"
#include "platform/desktop_services.h"
#include "platform/xdg/recorder_launcher.h"
#include "platform/xdg/xdg_browser.h"
#include "platform/xdg/xdg_mail_client.h"
#include "support/environment_guard.h"
#include "support/language_guard.h"
#include "support/patience.h"
#include "support/temporary_folder.h"

namespace zel::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// A PATH that leads to an opener, which writes down what it is to open, and to nothing else.
class Openers : public ::testing::Test {
 protected:
  void installOpener() {
    putBytes(opener_,
             "#!/bin/sh\nprintf '%s\\n' \"$*\" >\"$0.part\"\n"
             "/bin/mv \"$0.part\" \"$0.said\"\n");
    std::filesystem::permissions(opener_, std::filesystem::perms::owner_all);
  }

  std::string opened() const {
    EXPECT_TRUE(waitUntil([this] { return std::filesystem::exists(opener_ + ".said"); }));
    return bytesOf(opener_ + ".said");
  }

  TemporaryFolder folder_;
  std::string opener_ = folder_ / "xdg-open";
  EnvironmentGuard path_{"PATH", folder_.path().c_str()};
  LanguageGuard language_{"EN"};
  RecorderLauncher launched;
};

TEST_F(Openers, OpenThePageInTheUsersBrowser) {
  installOpener();
  XdgBrowser browser(launched.launcher());
  OpenWebPage(browser);
  EXPECT_THAT(launched.lines, ElementsAre("xdg-open https://zel.example/en/"));
  EXPECT_FALSE(browser.isBusy());
}

TEST_F(Openers, OpenTheMailForTheUserToSend) {
  installOpener();
  XdgMailClient mail(launched.launcher());
  SendMailToMaker(mail);
  SendMailToMaker(mail);
  const std::string line = "xdg-open mailto:zel@zel.example?subject=ZEL";
  EXPECT_THAT(launched.lines, ElementsAre(line, line));
}

TEST_F(Openers, EncodeWhatAnAddressCannotHold) {
  XdgMailClient mail(launched.launcher());
  EXPECT_TRUE(mail.createItem());
  EXPECT_TRUE(mail.addRecipient("a&b@c"));
  EXPECT_TRUE(mail.addRecipient("ñ?@d"));
  EXPECT_TRUE(mail.setSubject("¿2+2=4 & 50%?"));
  EXPECT_TRUE(mail.send());
  EXPECT_THAT(launched.lines, ElementsAre("xdg-open mailto:a%26b@c,%C3%B1%3F@d?subject="
                                          "%C2%BF2%2B2%3D4%20%26%2050%25%3F"));
}

TEST_F(Openers, FailQuietlyWithoutAnOpener) {
  XdgBrowser browser(launched.launcher());
  XdgMailClient mail(launched.launcher());
  EXPECT_FALSE(browser.start());
  EXPECT_FALSE(mail.start());
  OpenWebPage(browser);
  SendMailToMaker(mail);
  EXPECT_THAT(launched.lines, IsEmpty());
}

TEST_F(Openers, PassOnThatTheOpenerCannotBeStarted) {
  launched.succeeds = false;
  EXPECT_FALSE(XdgBrowser(launched.launcher()).navigate("x"));
  EXPECT_FALSE(XdgMailClient(launched.launcher()).send());
  EXPECT_FALSE(launch("xdg-open", {"x"}));
}

TEST_F(Openers, AreNotStartedWithArgumentsThatTheyWouldNotGet) {
  installOpener();
  EXPECT_TRUE(launch("xdg-open", {"x"}));
  EXPECT_FALSE(launch("xdg-open", {"x", "/home/\xFF"}));
}

TEST_F(Openers, AreReallyStarted) {
  installOpener();
  const DesktopServices services = makeDesktopServices("/opt/zel/zel");
  OpenWebPage(*services.browser);
  EXPECT_EQ(opened(), "https://zel.example/en/\n");
  std::filesystem::remove(opener_ + ".said");
  SendMailToMaker(*services.mail);
  EXPECT_EQ(opened(), "mailto:zel@zel.example?subject=ZEL\n");
}

}  // namespace
}  // namespace zel::test
