// The registration with the desktop's real tools, in a home of its own.

#include <QProcess>
#include <filesystem>

#include <gtest/gtest.h>

#include "app/desktop.h"
#include "platform/desktop_services.h"
#include "platform/xdg/launcher.h"
#include "support/environment_guard.h"
#include "support/language_guard.h"
#include "support/patience.h"
#include "support/temporary_folder.h"

namespace zel::test {
namespace {

/// What a program writes, without the line's end.
std::string outputOf(const QString& program, const QStringList& arguments) {
  QProcess process;
  process.setProcessChannelMode(QProcess::MergedChannels);
  process.start(program, arguments);
  process.waitForFinished(kPatience);
  return QString::fromUtf8(process.readAll()).trimmed().toStdString();
}

/// Says what it was called with, and where, once it has all been said.
constexpr const char* kProgram =
    "#!/bin/sh\nprintf '%s|%s|%s' \"$#\" \"$1\" \"$PWD\" >\"$0.part\"\n"
    "mv \"$0.part\" \"$0.said\"\n";

class Registration : public ::testing::Test {
 protected:
  Registration() { std::filesystem::create_directories(home_ / "folder with blanks"); }

  /// scripts/setup.sh installs them: without them nothing would be shown.
  void SetUp() override {
    for (const char* const tool :
         {"desktop-file-validate", "gio", "update-mime-database", "xdg-mime"})
      ASSERT_TRUE(isInstalled(tool)) << tool << " is not installed";
  }

  void tellDesktop() {
    const DesktopServices services = makeDesktopServices(program);
    registerZelDocuments(*services.registry, {"C:\\zel", "zel"});
  }

  /// Registers as the first start does, and waits for the tools, the last of which writes the
  /// default program.
  void registerDocuments() {
    std::filesystem::remove(home_ / "config/mimeapps.list");
    tellDesktop();
    EXPECT_TRUE(waitUntil([this] { return isDefault(); }));
  }

  /// Registers a program in a folder of this name from another one, and has the desktop open a
  /// document with it.
  void expectToOpen(const std::string& program_folder, const std::string& working_folder) {
    const std::string folder = home_ / working_folder;
    const std::string document = home_ / "a document.zel";
    std::filesystem::create_directories(home_ / program_folder);
    std::filesystem::create_directories(folder);
    const CurrentFolderGuard current(folder);
    program = home_ / (program_folder + "/zel");
    putBytes(program, kProgram);
    std::filesystem::permissions(program, std::filesystem::perms::owner_all);
    putBytes(document, "x");
    registerDocuments();
    ASSERT_EQ(outputOf("gio", {"launch", entry, QString::fromStdString(document)}), "");
    EXPECT_TRUE(waitUntil([this] { return std::filesystem::exists(program + ".said"); }));
    EXPECT_EQ(bytesOf(program + ".said"), "1|" + document + "|" + folder);
  }

  bool isDefault() const {
    return bytesOf(home_ / "config/mimeapps.list").find("zel.desktop") != std::string::npos;
  }

  TemporaryFolder home_;
  EnvironmentGuard data_{"XDG_DATA_HOME", (home_ / "share").c_str()};
  EnvironmentGuard config_{"XDG_CONFIG_HOME", (home_ / "config").c_str()};
  EnvironmentGuard cache_{"XDG_CACHE_HOME", (home_ / "cache").c_str()};
  EnvironmentGuard home_variable_{"HOME", home_.path().c_str()};
  EnvironmentGuard desktop_{"XDG_CURRENT_DESKTOP", "GNOME"};
  LanguageGuard language_{"ES"};
  std::string program = home_ / "folder with blanks/zel";
  const QString entry = QString::fromStdString(home_ / "share/applications/zel.desktop");
};

TEST_F(Registration, MakesTheProgramTheOneThatOpensDocuments) {
  registerDocuments();
  putBytes(home_ / "picture.zel", "x");
  putBytes(home_ / "picture.other", "x");
  const auto typeOf = [&](const char* name) {
    return outputOf("xdg-mime", {"query", "filetype", QString::fromStdString(home_ / name)});
  };
  EXPECT_EQ(typeOf("picture.zel"), "application/x-zel");
  EXPECT_NE(typeOf("picture.other"), "application/x-zel");
  EXPECT_EQ(outputOf("xdg-mime", {"query", "default", "application/x-zel"}), "zel.desktop");
}

TEST_F(Registration, WritesADesktopEntryWithoutFaults) {
  registerDocuments();
  EXPECT_EQ(outputOf("desktop-file-validate", {entry}), "");
}

// The desktop reads the command as it was meant, and starts it in its folder.
TEST_F(Registration, LetsTheDesktopOpenADocumentWithTheProgramAtAnOddPath) {
  for (const char* const name :
       {"folder with  blanks", " blanks ", "it's", "a\"b\"c", "a$HOME$1", "$(id)", "a`id`b", "a\\b",
        "a\\sb\\nc", "a\\", "a;b;", "~", "~root", "añejo Ñandú 日本", "#a&b|c>d<e", "(a)*?[b]!"}) {
    SCOPED_TRACE(name);
    expectToOpen(name, name);
    if (HasFailure()) return;
  }
}

TEST_F(Registration, LetsTheDesktopStartTheProgramInAFolderThatItCouldNotBeIn) {
  for (const char* const name : {"100%", "100%f", "a=b"}) {
    SCOPED_TRACE(name);
    expectToOpen("program", name);
    std::filesystem::remove(program + ".said");
    if (HasFailure()) return;
  }
}

TEST_F(Registration, MakesNoEntryForAProgramThatTheDesktopWouldNotStart) {
  for (const char* const name :
       {"100%", "100%f", "100%%", "a=b", "new\nline", "tab\t", "bytes\xFF", "bytes\xC3"}) {
    SCOPED_TRACE(name);
    std::filesystem::create_directories(home_ / name);
    program = home_ / (std::string(name) + "/zel");
    putBytes(program, kProgram);
    tellDesktop();
    EXPECT_FALSE(std::filesystem::exists(home_ / "share/applications"));
    EXPECT_FALSE(std::filesystem::exists(home_ / "share/mime"));
  }
}

TEST_F(Registration, LeavesToAPackageWhatAPackageHasDone) {
  putBytes(home_ / "folder with blanks/zel.installed", "");
  const DesktopServices services = makeDesktopServices(program);
  registerZelDocuments(*services.registry, {"C:\\zel", "zel"});
  EXPECT_TRUE(std::filesystem::exists(home_ / "share/zel/classes"));
  EXPECT_FALSE(std::filesystem::exists(home_ / "share/applications"));
}

TEST_F(Registration, KnowsTheUsersOwnFolder) { EXPECT_EQ(userFolder(), home_ / "config/zel"); }

}  // namespace
}  // namespace zel::test
