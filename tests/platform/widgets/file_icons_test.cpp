#include "platform/widgets/file_icons.h"

#include <QFileInfo>
#include <string>

#include <gtest/gtest.h>

#include "support/language_guard.h"
#include "support/qt_application.h"
#include "support/temporary_folder.h"

namespace zel::test {
namespace {

class IconsOfFiles : public ::testing::Test {
 protected:
  IconsOfFiles() { application(); }

  QFileInfo file(const std::string& name, const std::string& bytes) {
    putBytes(folder_ / name, bytes);
    return QFileInfo(QString::fromStdString(folder_ / name));
  }
  QFileInfo folder() const { return QFileInfo(QString::fromStdString(folder_ / "")); }

  const FileIcons icons_;

 private:
  TemporaryFolder folder_;
};

TEST_F(IconsOfFiles, TellTheKindOfAFileByItsNameWithoutALookIntoIt) {
  const QString kind = icons_.type(file("first", "%PDF-1.4"));
  EXPECT_FALSE(kind.isEmpty());
  EXPECT_EQ(icons_.type(file("second", "<!DOCTYPE html><html></html>")), kind);
  EXPECT_EQ(icons_.type(file("third", "")), kind);
  EXPECT_NE(icons_.type(file("page.html", "%PDF-1.4")), kind);
}

TEST_F(IconsOfFiles, ShowFilesAndFoldersDifferently) {
  const auto picture = [&](const QFileInfo& info) {
    return icons_.icon(info).pixmap(16, 16).toImage();
  };
  const QImage of_file = picture(file("a.zel", "x"));
  EXPECT_FALSE(of_file.isNull());
  EXPECT_FALSE(picture(folder()).isNull());
  EXPECT_NE(of_file, picture(folder()));
}

TEST_F(IconsOfFiles, CallAFolderAFolderInEachLanguage) {
  const LanguageGuard language("ES");
  EXPECT_EQ(icons_.type(folder()), "Carpeta");
  SetCurrentLanguage("EN");
  EXPECT_EQ(icons_.type(folder()), "Folder");
}

}  // namespace
}  // namespace zel::test
