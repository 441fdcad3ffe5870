#include "platform/icons/icons.h"

#include <QFile>
#include <QIcon>
#include <QImage>

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

TEST(Icons, MakeTheProgramsIcon) {
  application();
  EXPECT_EQ(programIcon().availableSizes(), (QList<QSize>{{48, 48}, {256, 256}}));
}

}  // namespace
}  // namespace zel::test
