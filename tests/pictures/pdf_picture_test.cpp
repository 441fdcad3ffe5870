#include "pictures/pdf_picture.h"

#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/png_reader.h"

namespace zel::test {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

/// What lies between two texts of a document.
std::string between(const std::string& document, const std::string& before,
                    const std::string& after) {
  const std::size_t begin = document.find(before) + before.size();
  return document.substr(begin, document.find(after, begin) - begin);
}

/// The content of the page without what every content begins with.
std::string body(PdfPicture& picture) {
  const std::string content = inflated(between(picture.bytes(), "stream\n", "\nendstream"));
  EXPECT_NE(content, "") << "no zlib stream";
  return content.substr(content.find("1 j\n") + 4);
}

TEST(PdfPicture, IsOnePageOfThreeQuartersOfAPointToAPixel) {
  const std::string document = PdfPicture(800, 601).bytes();
  EXPECT_THAT(document, StartsWith("%PDF-1.4\n"));
  EXPECT_THAT(document, HasSubstr("/MediaBox[0 0 600 450.75]"));
  EXPECT_THAT(document, HasSubstr("/Count 1"));
  EXPECT_TRUE(document.ends_with("%%EOF\n"));
}

TEST(PdfPicture, KnowsWhereEachObjectBegins) {
  PdfPicture picture(80, 60);
  picture.beginGraph('a', 0);
  picture.startPiece({1, 2});
  const std::string document = picture.bytes();
  const std::size_t table = std::stoul(between(document, "startxref\n", "\n"));
  EXPECT_EQ(document.compare(table, 8, "xref\n0 6"), 0);
  for (std::size_t number = 1; number <= 5; ++number) {
    const std::size_t begin = std::stoul(document.substr(table + 9 + 20 * number, 10));
    EXPECT_EQ(document.compare(begin, 8, std::to_string(number) + " 0 obj\n"), 0) << number;
  }
  const std::size_t length = std::stoul(between(document, "/Length ", "/"));
  EXPECT_EQ(between(document, "stream\n", "\nendstream").size(), length);
}

TEST(PdfPicture, DrawsAxesAsLinesInBlack) {
  PdfPicture picture(80, 60);
  picture.beginAxes();
  picture.line({0, 450}, {1200, 450});
  EXPECT_EQ(body(picture), "0 J 15 w 0 G\n0 450 m\n1200 450 l\nS\n");
}

TEST(PdfPicture, DrawsPiecesAsPathsAndTheirDotsOverThem) {
  PdfPicture picture(80, 60);
  picture.beginGraph('a', 0x0080FF);
  picture.startPiece({1, 2});
  picture.dot({1, 2}, 20);
  picture.extendPiece({3, 4});
  picture.extendPiece({5, 6});
  picture.startPiece({7, 8});
  picture.beginGraph('b', 0);
  EXPECT_EQ(body(picture),
            "1 J 22.5 w 1 0.502 0 RG\n1 2 m\n3 4 l\n5 6 l\nS\n7 8 m\n7 8 l\nS\n"
            "40 w 1 2 m\n1 2 l\nS\n1 J 22.5 w 0 0 0 RG\n");
}

TEST(PdfPicture, CutsOffWhatLiesFarAway) {
  PdfPicture picture(80, 60);
  picture.beginGraph('a', 0);
  picture.startPiece({0, 0});
  picture.extendPiece({1e300, 0});
  picture.extendPiece({1e300, 1e300});
  picture.extendPiece({0, 30});
  picture.startPiece({2e9, 2e9});
  picture.dot({1e9, 0}, 20);
  picture.line({5e6, 0}, {5e6, 30});
  EXPECT_EQ(body(picture), "1 J 22.5 w 0 0 0 RG\n0 0 m\n1000000 0 l\n0 30 m\n0 30 l\nS\n");
}

TEST(PdfPicture, CutsOffALineThatIsAlmostUpright) {
  PdfPicture picture(80, 60);
  picture.beginGraph('a', 0);
  picture.startPiece({0, 0});
  picture.extendPiece({8, 1e308});
  EXPECT_EQ(body(picture), "1 J 22.5 w 0 0 0 RG\n0 0 m\n0 1000000 l\nS\n");
}

TEST(PdfPicture, IsTheSameToTheByteForTheSamePicture) {
  const auto draw = [] {
    PdfPicture picture(80, 60);
    picture.beginGraph('a', 0);
    picture.startPiece({0, 0});
    picture.extendPiece({300, 400});
    return picture.bytes();
  };
  EXPECT_EQ(draw(), draw());
}

TEST(PdfPicture, IsEmptyAgainWhenItIsCleared) {
  const std::string empty = PdfPicture(80, 60).bytes();
  PdfPicture picture(80, 60);
  picture.beginGraph('a', 0);
  picture.startPiece({1, 2});
  picture.dot({1, 2}, 20);
  picture.clear();
  EXPECT_EQ(picture.bytes(), empty);
}

TEST(PdfPicture, HasALimitWhereNoneIsGiven) {
  PdfPicture picture(100, 100);
  EXPECT_EQ(picture.limit(), PdfPicture::kMaxContent);
  picture.clear();
  EXPECT_EQ(picture.limit(), PdfPicture::kMaxContent);
}

TEST(PdfPicture, TakesNothingMoreBeyondItsLimit) {
  const std::vector<void (*)(PdfPicture&)> curves = {
      [](PdfPicture& picture) {
        picture.extendPiece({12345, 12345});
      },
      [](PdfPicture& picture) {
        picture.startPiece({12345, 12345});
      },
      [](PdfPicture& picture) {
        picture.dot({12345, 12345}, 20);
      },
      [](PdfPicture& picture) {
        picture.line({12345, 12345}, {54321, 54321});
      },
  };
  for (const auto& draw_on : curves) {
    PdfPicture picture(100, 100, 10000);
    ASSERT_EQ(picture.limit(), 10000u);
    picture.beginGraph('a', 0);
    picture.startPiece({1, 2});
    for (int i = 0; i < 100; ++i) draw_on(picture);
    EXPECT_FALSE(picture.isFull());
    for (int i = 0; i < 1000; ++i) draw_on(picture);
    EXPECT_TRUE(picture.isFull());
    EXPECT_EQ(picture.bytes(), "");
    picture.clear();
    EXPECT_FALSE(picture.isFull());
    EXPECT_NE(picture.bytes(), "");
  }
}

}  // namespace
}  // namespace zel::test
