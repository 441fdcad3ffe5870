#include <QClipboard>
#include <QMimeData>

#include <gtest/gtest.h>

#include "platform/qt/bitmap_image.h"
#include "platform/widgets/widget_clipboard.h"
#include "support/qt_application.h"

namespace zel::test {
namespace {

class ClipboardOfTheDesktop : public ::testing::Test {
 protected:
  ClipboardOfTheDesktop() { application(); }

  WidgetClipboard clipboard;
};

TEST_F(ClipboardOfTheDesktop, TakesABitmapPixelForPixel) {
  const Bitmap bitmap{2, 2, {0xFF000000, 0xFFFF0000, 0xFF00FF00, 0xFF0000FF}};
  clipboard.putPicture(bitmap, "<svg/>");
  EXPECT_TRUE(QGuiApplication::clipboard()->mimeData()->hasImage());
  EXPECT_EQ(toBitmap(QGuiApplication::clipboard()->image()), bitmap);
}

TEST_F(ClipboardOfTheDesktop, TakesAnSvgDocumentBesideTheBitmap) {
  const Bitmap bitmap{1, 1, {0xFFFF0000}};
  clipboard.putPicture(bitmap, "<svg/>");
  EXPECT_EQ(QGuiApplication::clipboard()->mimeData()->data("image/svg+xml"), "<svg/>");
  clipboard.putPicture(bitmap, "");
  EXPECT_FALSE(QGuiApplication::clipboard()->mimeData()->hasFormat("image/svg+xml"));
  EXPECT_TRUE(QGuiApplication::clipboard()->mimeData()->hasImage());
}

TEST_F(ClipboardOfTheDesktop, IsEmptyOnceItIsCleared) {
  QGuiApplication::clipboard()->setText("before");
  clipboard.clear();
  EXPECT_EQ(QGuiApplication::clipboard()->text(), QString());
  const QMimeData* const data = QGuiApplication::clipboard()->mimeData();
  EXPECT_TRUE(!data || data->formats().isEmpty());
}

}  // namespace
}  // namespace zel::test
