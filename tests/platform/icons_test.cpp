#include "platform/icons/icons.h"

#include <QFile>
#include <QIcon>
#include <QImage>
#include <QImageReader>

#include <gtest/gtest.h>

#include "platform/icons/program_icon.h"
#include "support/qt_application.h"

namespace zel::test {
namespace {

TEST(Icons, AreAmongTheResources) {
  initIcons();
  for (const IconPaths& icon : {kProgramIcon, kDocumentIcon}) {
    QFile svg(icon.svg);
    ASSERT_TRUE(svg.open(QIODevice::ReadOnly)) << icon.svg;
    EXPECT_TRUE(svg.readAll().startsWith("<svg")) << icon.svg;
    EXPECT_EQ(QImage(icon.png48).size(), QSize(48, 48)) << icon.png48;
    EXPECT_EQ(QImage(icon.png256).size(), QSize(256, 256)) << icon.png256;
  }
}

TEST(Icons, OfDocumentsOnWindowsAreTheSameInSixSizes) {
  application();
  QImageReader reader(ZEL_SOURCE_DIR "/packaging/doc.ico");
  QList<int> sizes;
  for (QImage picture; reader.read(&picture);) {
    EXPECT_EQ(picture.width(), picture.height());
    sizes << picture.width();
    if (picture.width() == 48 || picture.width() == 256) {
      const QImage expected(picture.width() == 48 ? kDocumentIcon.png48 : kDocumentIcon.png256);
      EXPECT_EQ(picture.convertToFormat(QImage::Format_ARGB32_Premultiplied),
                expected.convertToFormat(QImage::Format_ARGB32_Premultiplied));
    }
    if (!reader.jumpToNextImage()) break;
  }
  EXPECT_EQ(sizes, (QList<int>{16, 24, 32, 48, 64, 256}));
}

TEST(Icons, MakeTheProgramsIcon) {
  application();
  EXPECT_EQ(programIcon().availableSizes(), (QList<QSize>{{48, 48}, {256, 256}}));
}

}  // namespace
}  // namespace zel::test
