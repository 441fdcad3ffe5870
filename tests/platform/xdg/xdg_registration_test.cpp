// The registration with the desktop's real tools, in a home of its own.

#include <QProcess>
#include <QStandardPaths>
#include <filesystem>
#include <vector>

#include <gmock/gmock.h>
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

using ::testing::HasSubstr;

/// What a program writes, without the line's end.
std::string outputOf(const QString& program, const QStringList& arguments) {
  QProcess process;
  process.setProcessChannelMode(QProcess::MergedChannels);
  process.start(program, arguments);
  process.waitForFinished(kPatience);
  return QString::fromUtf8(process.readAll()).trimmed().toStdString();
}

std::vector<std::string> missingPrograms(const std::vector<std::string>& programs) {
  std::vector<std::string> missing;
  for (const std::string& program : programs)
    if (!isInstalled(program)) missing.push_back(program);
  return missing;
}

class Registration : public ::testing::Test {
 protected:
  Registration() { std::filesystem::create_directories(home_ / "folder with blanks"); }

  /// Registers as the first start does, and waits for the tools, the last of which writes the
  /// default program.
  void registerDocuments() {
    const DesktopServices services = makeDesktopServices(program);
    registerZelDocuments(*services.registry, {"C:\\zel", "zel"});
    EXPECT_TRUE(waitUntil([this] { return isDefault(); }));
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
};

TEST_F(Registration, MakesTheProgramTheOneThatOpensDocuments) {
  const auto missing = missingPrograms({"xdg-mime", "update-mime-database", "gio"});
  if (!missing.empty()) GTEST_SKIP() << missing.front() << " is not installed";
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
  const auto missing = missingPrograms({"desktop-file-validate", "xdg-mime"});
  if (!missing.empty()) GTEST_SKIP() << missing.front() << " is not installed";
  registerDocuments();
  const QString entry = QString::fromStdString(home_ / "share/applications/zel.desktop");
  EXPECT_EQ(outputOf("desktop-file-validate", {entry}), "");
}

// The desktop reads the command as it was meant, blanks included, and starts it in its folder.
TEST_F(Registration, LetsTheDesktopOpenADocumentWithTheProgram) {
  const auto missing = missingPrograms({"xdg-mime", "gio"});
  if (!missing.empty()) GTEST_SKIP() << missing.front() << " is not installed";
  putBytes(program,
           "#!/bin/sh\nprintf '%s|%s|%s' \"$#\" \"$1\" \"$PWD\" >\"$0.part\"\n"
           "mv \"$0.part\" \"$0.said\"\n");
  std::filesystem::permissions(program, std::filesystem::perms::owner_all);
  const CurrentFolderGuard current(home_.path());
  registerDocuments();
  const std::string document = home_ / "a document.zel";
  putBytes(document, "x");
  outputOf("gio", {"launch", QString::fromStdString(home_ / "share/applications/zel.desktop"),
                   QString::fromStdString(document)});
  EXPECT_TRUE(waitUntil([&] { return std::filesystem::exists(program + ".said"); }));
  EXPECT_EQ(bytesOf(program + ".said"), "1|" + document + "|" + home_.path().string());
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
