#include "pictures/file_picture.h"

#include <gmock/gmock.h>

#include "pictures/png.h"
#include "pictures/raster_picture.h"
#include "support/png_reader.h"

namespace zel::test {
namespace {

using ::testing::HasSubstr;

void draw(Picture& picture) {
  picture.beginAxes();
  picture.line({0, 750}, {3000, 750});
  picture.beginGraph('a', 0xFF);
  picture.startPiece({0, 0});
  picture.extendPiece({1500, 1500});
}

std::string bytesOf(const char* ending, double scale) {
  const auto file = makeFilePicture(ending, 200, 101, scale);
  draw(file->picture());
  return file->bytes();
}

TEST(FilePictureInAScale, HasSoManyTimesThePixels) {
  RasterPicture twice(400, 202, 2);
  draw(twice);
  EXPECT_EQ(bytesOf("png", 2), writePng(twice.finish()));
  RasterPicture more(250, 126, 1.25);
  draw(more);
  EXPECT_EQ(bytesOf("png", 1.25), writePng(more.finish()));
}

TEST(FilePictureInAScale, HasTheSameLinesOnALargerDrawing) {
  const std::string one = bytesOf("svg", 1);
  const std::string more = bytesOf("svg", 1.5);
  EXPECT_THAT(one, HasSubstr("width=\"200\" height=\"101\" viewBox=\"0 0 3000 1515\""));
  EXPECT_THAT(more, HasSubstr("width=\"300\" height=\"151.5\" viewBox=\"0 0 3000 1515\""));
  EXPECT_EQ(one.substr(one.find("<style>")), more.substr(more.find("<style>")));
}

TEST(FilePictureInAScale, HasALargerPage) {
  EXPECT_THAT(bytesOf("pdf", 1), HasSubstr("/MediaBox[0 0 150 75.75]"));
  EXPECT_THAT(bytesOf("pdf", 2), HasSubstr("/MediaBox[0 0 300 151.5]"));
}

TEST(FilePictureInAScale, IsNoOtherPictureInTheScaleOfOne) {
  for (const char* ending : {"png", "svg", "pdf"}) {
    const auto plain = makeFilePicture(ending, 200, 101);
    draw(plain->picture());
    EXPECT_EQ(bytesOf(ending, 1), plain->bytes());
  }
}

TEST(FilePictureInAScale, StaysOneWhenItIsCleared) {
  for (const char* ending : {"svg", "pdf"}) {
    const auto file = makeFilePicture(ending, 200, 101, 2);
    draw(file->picture());
    file->picture().clear();
    draw(file->picture());
    EXPECT_EQ(file->bytes(), bytesOf(ending, 2));
  }
}

TEST(FilePicture, AsksWhileAPngIsMadeReadyAndMadeWhetherItGoesOn) {
  int asked = 0;
  const auto file = makeFilePicture("png", 2000, 1000, 1, [&] { return ++asked > 0; });
  EXPECT_GT(asked, 0);
  draw(file->picture());
  asked = 0;
  const std::string bytes = file->bytes();
  EXPECT_GT(asked, 0);
  const auto silent = makeFilePicture("png", 2000, 1000);
  draw(silent->picture());
  EXPECT_TRUE(bytes == silent->bytes());
}

TEST(FilePicture, IsNotMadeWhereThatIsGivenUpWhileItsMemoryIsHandedOver) {
  int asked = 0;
  EXPECT_NE(makeFilePicture("png", 2000, 1000, 1, [&] { return ++asked > 0; }), nullptr);
  for (int last = 1; last <= asked; ++last) {
    int looks = 0;
    EXPECT_EQ(makeFilePicture("png", 2000, 1000, 1, [&] { return ++looks < last; }), nullptr);
    EXPECT_EQ(looks, last) << "it ends at once";
  }
}

TEST(FilePicture, HasNoBytesWhereTheyAreGivenUp) {
  bool goes_on = true;
  const auto file = makeFilePicture("png", 2000, 1000, 1, [&] { return goes_on; });
  goes_on = false;
  draw(file->picture());
  EXPECT_EQ(file->bytes(), "");
}

TEST(FilePicture, IsMadeForThreeEndingsInLowerCaseAndForNoOther) {
  for (const char* ending : {"svg", "png", "pdf"}) {
    EXPECT_TRUE(canMakePicture(ending)) << ending;
    EXPECT_NE(makeFilePicture(ending, 20, 10), nullptr) << ending;
  }
  for (const char* ending : {"", "SVG", ".png", "gif", "pdf "}) {
    EXPECT_FALSE(canMakePicture(ending)) << ending;
    EXPECT_EQ(makeFilePicture(ending, 20, 10), nullptr) << ending;
  }
}

}  // namespace
}  // namespace zel::test
