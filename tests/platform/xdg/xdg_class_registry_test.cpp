#include "platform/xdg/xdg_class_registry.h"

#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/desktop.h"
#include "platform/xdg/recorder_launcher.h"
#include "support/language_guard.h"
#include "support/temporary_folder.h"

namespace zel::test {
namespace {

using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class ClassesOfAUser : public ::testing::Test {
 protected:
  void registerDocuments() {
    XdgClassRegistry registry(data, "/opt/zel/zel", launched.launcher());
    EXPECT_TRUE(registerZelDocuments(registry, {"C:\\zel", "zel"}));
  }

  std::string bytes(const std::string& name) const { return bytesOf(data + "/" + name); }
  bool exists(const std::string& name) const { return std::filesystem::exists(data + "/" + name); }

  LanguageGuard language_{"ES"};
  TemporaryFolder folder_;
  CurrentFolderGuard current_{folder_.path()};
  std::string data = folder_ / "share";
  RecorderLauncher launched;
};

TEST_F(ClassesOfAUser, TellTheDesktopNothingWithoutALauncher) {
  XdgClassRegistry registry(data, "/opt/zel/zel", Launcher());
  registerZelDocuments(registry, {"C:\\zel", "zel"});
  EXPECT_TRUE(exists("zel/classes"));
  EXPECT_FALSE(exists("applications"));
  EXPECT_FALSE(exists("mime"));
}

TEST_F(ClassesOfAUser, KeepsTheFourEntriesAsGiven) {
  registerDocuments();
  EXPECT_EQ(bytes("zel/classes"),
            "zel=Gráfico de funciones\n"
            ".zel=zel\n"
            "zel\\shell\\open\\command=C:\\zel\\zel.exe %1\n"
            "zel\\DefaultIcon=C:\\zel\\doc.ico\n");
}

TEST_F(ClassesOfAUser, MakesNoDesktopEntryForAPathThatItWouldNameWrongly) {
  for (const char* const path : {"/a\nb/zel", "/a\xFF/zel", "/a=b/zel", "/100%/zel"}) {
    XdgClassRegistry registry(data, path, launched.launcher());
    EXPECT_TRUE(registerZelDocuments(registry, {"C:\\zel", "zel"}));
    EXPECT_FALSE(exists("applications"));
    EXPECT_FALSE(exists("mime"));
    EXPECT_THAT(launched.lines, IsEmpty());
  }
}

TEST_F(ClassesOfAUser, TakesNoValueThatWouldEndItsLine) {
  XdgClassRegistry registry(data, "/opt/zel/zel", launched.launcher());
  EXPECT_TRUE(registerZelDocuments(registry, {"C:\\a\n.zel=evil", "zel"}));
  EXPECT_EQ(bytes("zel/classes"), "zel=Gráfico de funciones\n.zel=zel\n");
  EXPECT_FALSE(exists("applications"));
}

TEST_F(ClassesOfAUser, DescribesTheTypeInTheLanguageOfTheRegistration) {
  registerDocuments();
  SetCurrentLanguage("EN");
  registerDocuments();
  EXPECT_THAT(bytes("zel/classes"), HasSubstr("zel=Function graphic\n.zel=zel\n"));
  EXPECT_THAT(bytes("mime/packages/zel.xml"), HasSubstr("<comment>Function graphic</comment>"));
}

TEST_F(ClassesOfAUser, KeepsWhatItDoesNotSet) {
  std::filesystem::create_directories(data + "/zel");
  putBytes(data + "/zel/classes", "other=a=b\nno entry\nzel=old\n");
  registerDocuments();
  EXPECT_THAT(bytes("zel/classes"), HasSubstr("other=a=b\nzel=Gráfico de funciones\n"));
}

TEST_F(ClassesOfAUser, TellsTheDesktopOfTheProgramsRealPlace) {
  registerDocuments();
  const std::string entry = bytes("applications/zel.desktop");
  EXPECT_THAT(entry, HasSubstr("\nExec=\"/opt/zel/zel\" %f\n"));
  EXPECT_THAT(entry, HasSubstr("\nPath=" + folder_.path().string() + "\n"));
  EXPECT_THAT(bytes("mime/packages/zel.xml"), HasSubstr("<glob pattern=\"*.zel\"/>"));
}

TEST_F(ClassesOfAUser, InstallsBothIcons) {
  registerDocuments();
  const std::string png = "\x89PNG";
  for (const std::string size : {"48x48", "256x256"}) {
    EXPECT_EQ(bytes("icons/hicolor/" + size + "/apps/zel.png").substr(0, 4), png);
    EXPECT_EQ(bytes("icons/hicolor/" + size + "/mimetypes/application-x-zel.png").substr(0, 4),
              png);
  }
  EXPECT_THAT(bytes("icons/hicolor/scalable/apps/zel.svg"), HasSubstr("</svg>"));
  EXPECT_THAT(bytes("icons/hicolor/scalable/mimetypes/application-x-zel.svg"), HasSubstr("</svg>"));
}

TEST_F(ClassesOfAUser, CallsTheToolsOnceForARegistration) {
  registerDocuments();
  ASSERT_EQ(launched.lines.size(), 1U);
  for (const char* const tool :
       {"update-mime-database \"$1\"\n", "update-desktop-database \"$2\"\n",
        "xdg-mime default \"$3\" \"$4\" sh "})
    EXPECT_THAT(launched.lines.front(), HasSubstr(tool));
  EXPECT_THAT(launched.lines.front(), EndsWith(" sh " + data + "/mime " + data +
                                               "/applications zel.desktop application/x-zel"));
  registerDocuments();
  EXPECT_EQ(launched.lines.size(), 2U);
}

TEST_F(ClassesOfAUser, TellsTheDesktopOfNothingUnfinished) {
  XdgClassRegistry registry(data, "/opt/zel/zel", launched.launcher());
  const auto type = registry.createKey("zel");
  registry.setValue(type, "", "x");
  registry.setValue(registry.createKey(".zel"), "", "zel");
  registry.setValue(type, "shell\\open\\command", "x");
  registry.setValue(registry.createKey(".other"), "", "");
  EXPECT_THAT(launched.lines, IsEmpty());
  EXPECT_FALSE(exists("applications"));
}

TEST_F(ClassesOfAUser, PassesOverAKeyThatIsNone) {
  XdgClassRegistry registry(data, "/opt/zel/zel", launched.launcher());
  registry.setValue(0, "", "x");
  registry.setValue(7, "a", "x");
  EXPECT_FALSE(exists("zel"));
}

// A file stands where the folder should be.
TEST_F(ClassesOfAUser, PassesOverAFolderThatCannotBeMade) {
  putBytes(data, "in the way");
  launched.succeeds = false;
  registerDocuments();
  EXPECT_EQ(bytesOf(data), "in the way");
  EXPECT_EQ(launched.lines.size(), 1U);
}

}  // namespace
}  // namespace zel::test
