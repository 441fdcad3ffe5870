#include "app/installation.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "files/absolute_path.h"
#include "support/temporary_folder.h"

namespace zel::test {
namespace {

namespace fs = std::filesystem;

class Installation : public ::testing::Test {
 protected:
  Installation() { fs::create_directories(folder_ / "usr/bin"); }

  /// Names in the file system may reach the temporary folder by another way.
  static bool isCurrent(const std::string& folder) {
    return fs::equivalent(fs::current_path(), pathOf(folder));
  }

  TemporaryFolder folder_;
  CurrentFolderGuard current_{folder_.path()};
  std::string bin = folder_ / "usr/bin";
};

TEST_F(Installation, IsNoneWithoutAMarker) { EXPECT_FALSE(isInstalledProgram(bin)); }

TEST_F(Installation, IsToldByAMarkerBesideTheProgram) {
  putBytes(bin + "/zel.installed", "");
  EXPECT_TRUE(isInstalledProgram(bin));
}

TEST_F(Installation, IsToldByAMarkerInTheSharedFolder) {
  fs::create_directories(folder_ / "usr/share/zel");
  EXPECT_FALSE(isInstalledProgram(bin));
  putBytes(folder_ / "usr/share/zel/zel.installed", "");
  EXPECT_TRUE(isInstalledProgram(bin));
}

TEST_F(Installation, EntersAFolderThatItMakes) {
  const std::string own = folder_ / "home/.config/año/zel";
  EXPECT_TRUE(enterFolder(own));
  EXPECT_TRUE(isCurrent(own));
}

TEST_F(Installation, EntersAFolderThatIsThere) {
  EXPECT_TRUE(enterFolder(bin));
  EXPECT_TRUE(isCurrent(bin));
  EXPECT_TRUE(enterFolder(bin));
}

TEST_F(Installation, StaysWhereItIsWhenAFolderCannotBeMade) {
  putBytes(folder_ / "file", "");
  EXPECT_FALSE(enterFolder(folder_ / "file/zel"));
  EXPECT_FALSE(enterFolder(folder_ / "file"));
  EXPECT_TRUE(isCurrent(utf8Of(folder_.path())));
}

TEST_F(Installation, StaysWhereItIsForAUserWithoutAFolder) {
  EXPECT_FALSE(enterFolder(""));
  EXPECT_TRUE(isCurrent(utf8Of(folder_.path())));
}

TEST_F(Installation, TakesARelativePathFromWhereItWasSaid) {
  putBytes(folder_ / "año.zel", "text");
  const std::string path = absolutePath("año.zel");
  ASSERT_TRUE(enterFolder(bin));
  EXPECT_EQ(bytesOf(path), "text");
  EXPECT_EQ(absolutePath(path), path);
}

TEST_F(Installation, KeepsAnEmptyPathEmpty) { EXPECT_EQ(absolutePath(""), ""); }

}  // namespace
}  // namespace zel::test
