#include "forms/graph_swatch.h"

#include <QImage>
#include <QPainter>
#include <QPixmapCache>
#include <algorithm>

#include <gtest/gtest.h>

#include "support/qt_application.h"

namespace zel::test {
namespace {

constexpr int kSide = 16;
constexpr std::int32_t kColour = 0x332211;

QImage painted(const QIcon& icon, QIcon::Mode mode) {
  QImage image(kSide, kSide, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  icon.paint(&painter, image.rect(), Qt::AlignCenter, mode);
  return image;
}

class GraphSwatches : public ::testing::TestWithParam<SwatchLook> {
 protected:
  GraphSwatches() { application(); }
  ~GraphSwatches() override { QPixmapCache::setCacheLimit(limit_); }

 private:
  int limit_ = QPixmapCache::cacheLimit();
};

TEST_P(GraphSwatches, HaveTheSameColourInASelectedRow) {
  const QIcon icon = graphSwatch(kColour, GetParam());
  for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Selected}) {
    const QImage image = painted(icon, mode);
    EXPECT_EQ(image.pixelColor(kSide / 2, kSide / 2), QColor(0x11, 0x22, 0x33));
    EXPECT_NE(image.pixelColor(kSide / 2, 0), QColor(0x11, 0x22, 0x33)) << "the edge";
  }
}

// The colour of a graph may be that of selections.
TEST_P(GraphSwatches, HaveAWhiteEdgeInASelectedRow) {
  const QImage image = painted(graphSwatch(kColour, GetParam()), QIcon::Selected);
  int lightest = 0;
  for (int y = 0; y < kSide / 2; ++y)
    lightest = std::max(lightest, image.pixelColor(kSide / 2, y).lightness());
  EXPECT_GT(lightest, 0xF0);
}

TEST_P(GraphSwatches, PaintOnNothingWhereTheyAreAskedForAsAPicture) {
  const QIcon icon = graphSwatch(kColour, GetParam());
  EXPECT_EQ(icon.pixmap(kSide).toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied),
            painted(icon, QIcon::Normal));
}

// Rows are made anew whenever a list is shown; a picture of each would stay in the cache.
TEST_P(GraphSwatches, LeaveTheToolkitsCacheOfPicturesAlone) {
  constexpr int kLimitInKilobytes = 8;
  QPixmapCache::clear();
  QPixmapCache::setCacheLimit(kLimitInKilobytes);
  QPixmap other(32, 32);
  other.fill(Qt::red);
  ASSERT_TRUE(QPixmapCache::insert("other", other));
  for (int i = 0; i < 20; ++i) painted(graphSwatch(kColour, GetParam()), QIcon::Normal);
  EXPECT_TRUE(QPixmapCache::find("other", &other)) << "pushed out by pictures of swatches";
}

INSTANTIATE_TEST_SUITE_P(OfEveryLook, GraphSwatches,
                         ::testing::Values(SwatchLook::rounded, SwatchLook::square));

}  // namespace
}  // namespace zel::test
