#include "pictures/svg_picture.h"

#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/well_formed.h"

namespace zel::test {
namespace {

using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

/// The document between the background and its end.
std::string body(SvgPicture& picture) {
  const std::string text = picture.text();
  EXPECT_TRUE(isWellFormed(text)) << text;
  constexpr std::string_view kBackground =
      "<rect width=\"100%\" height=\"100%\" fill=\"#ffffff\"/>\n";
  constexpr std::string_view kEnd = "</svg>\n";
  const std::size_t begin = text.find(kBackground);
  EXPECT_NE(begin, std::string::npos);
  EXPECT_THAT(text, EndsWith(std::string(kEnd)));
  const std::size_t from = begin + kBackground.size();
  return text.substr(from, text.size() - kEnd.size() - from);
}

TEST(SvgPicture, MeasuresInTwips) {
  SvgPicture picture(200, 150);
  EXPECT_THAT(picture.text(),
              StartsWith("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                         "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"200\" height=\"150\" "
                         "viewBox=\"0 0 3000 2250\">\n"));
  EXPECT_EQ(body(picture), "");
}

TEST(SvgPicture, HasAxesAndMarksAsLinesInDrawingOrder) {
  SvgPicture picture(100, 100);
  picture.beginAxes();
  picture.line({750, 0}, {750, 1500});
  picture.line({-40, 3}, {40, 3});
  EXPECT_EQ(body(picture),
            "<g id=\"axes\">\n"
            "<line x1=\"750\" y1=\"0\" x2=\"750\" y2=\"1500\"/>\n"
            "<line x1=\"-40\" y1=\"3\" x2=\"40\" y2=\"3\"/>\n"
            "</g>\n");
}

TEST(SvgPicture, HasAGroupForEachGraphAndAPolylineForEachPiece) {
  SvgPicture picture(100, 100);
  picture.beginGraph('a', 0x0000FF);
  picture.startPiece({1, 2});
  picture.extendPiece({3, 4});
  picture.extendPiece({5, 6});
  picture.startPiece({7, 8});
  picture.extendPiece({9, 10});
  picture.beginGraph('z', 0xFF8000);
  picture.startPiece({11, 12});
  picture.extendPiece({13, 14});
  EXPECT_EQ(body(picture),
            "<g id=\"graph-a\" stroke=\"#ff0000\">\n"
            "<polyline points=\"1,2 3,4 5,6\"/>\n"
            "<polyline points=\"7,8 9,10\"/>\n"
            "</g>\n"
            "<g id=\"graph-z\" stroke=\"#0080ff\">\n"
            "<polyline points=\"11,12 13,14\"/>\n"
            "</g>\n");
}

TEST(SvgPicture, RepeatsThePointOfAPieceOfOneSample) {
  SvgPicture picture(100, 100);
  picture.beginGraph('a', 0);
  picture.startPiece({1, 2});
  picture.startPiece({3, 4});
  EXPECT_EQ(body(picture),
            "<g id=\"graph-a\" stroke=\"#000000\">\n"
            "<polyline points=\"1,2 1,2\"/>\n"
            "<polyline points=\"3,4 3,4\"/>\n"
            "</g>\n");
}

TEST(SvgPicture, HasACircleForEachDotInTheColourOfItsGraph) {
  SvgPicture picture(100, 100);
  picture.beginGraph('b', 0x0000FF);
  picture.startPiece({1, 2});
  picture.dot({1, 2}, 20);
  picture.extendPiece({3, 4});
  picture.dot({3, 4}, 20);
  EXPECT_EQ(body(picture),
            "<g id=\"graph-b\" stroke=\"#ff0000\">\n"
            "<polyline points=\"1,2 3,4\"/>\n"
            "<circle cx=\"1\" cy=\"2\" r=\"20\"/>\n"
            "<circle cx=\"3\" cy=\"4\" r=\"20\"/>\n"
            "</g>\n");
  EXPECT_THAT(picture.text(), HasSubstr("#graph-b circle{fill:#ff0000}\n"));
}

TEST(SvgPicture, KeepsTheGroupOfAGraphOfWhichNothingIsDrawn) {
  SvgPicture picture(100, 100);
  picture.beginAxes();
  picture.beginGraph('a', 0);
  EXPECT_EQ(body(picture), "<g id=\"axes\">\n</g>\n<g id=\"graph-a\" stroke=\"#000000\">\n</g>\n");
  EXPECT_THAT(picture.text(), Not(HasSubstr("#graph-a circle")));
}

TEST(SvgPicture, WritesNumbersWithoutAPointOrAMinusBefore0) {
  SvgPicture picture(100, 100);
  picture.beginGraph('a', 0);
  picture.startPiece({-0.0, -7});
  picture.extendPiece({491505, 999999999999999});
  picture.extendPiece({-1e15, 1.5e300});
  EXPECT_THAT(body(picture), HasSubstr("\"0,-7 491505,999999999999999 -1e+15,1.5e+300\""));
}

TEST(SvgPicture, IsTheSameWhenItIsAskedTwice) {
  SvgPicture picture(100, 100);
  picture.beginGraph('a', 0);
  picture.startPiece({1, 2});
  picture.dot({1, 2}, 20);
  const std::string first = picture.text();
  EXPECT_EQ(picture.text(), first);
}

TEST(SvgPicture, IsEmptyAgainWhenItIsCleared) {
  SvgPicture picture(100, 100);
  const std::string empty = picture.text();
  picture.beginAxes();
  picture.line({1, 2}, {3, 4});
  picture.beginGraph('a', 0);
  picture.startPiece({1, 2});
  picture.dot({1, 2}, 20);
  picture.clear();
  EXPECT_EQ(picture.text(), empty);
  picture.beginGraph('b', 0);
  picture.startPiece({5, 6});
  EXPECT_EQ(body(picture),
            "<g id=\"graph-b\" stroke=\"#000000\">\n<polyline points=\"5,6 5,6\"/>\n</g>\n");
}

TEST(SvgPicture, HasALimitWhereNoneIsGiven) {
  SvgPicture picture(100, 100);
  EXPECT_EQ(picture.limit(), SvgPicture::kMaxText);
  picture.clear();
  EXPECT_EQ(picture.limit(), SvgPicture::kMaxText);
}

TEST(SvgPicture, TakesNothingMoreBeyondItsLimit) {
  // One piece, pieces, dots or lines: whatever goes on forever.
  const std::vector<void (*)(SvgPicture&)> curves = {
      [](SvgPicture& picture) {
        picture.extendPiece({123456789012, 123456789012});
      },
      [](SvgPicture& picture) {
        picture.startPiece({123456789012, 123456789012});
      },
      [](SvgPicture& picture) {
        picture.dot({123456789012, 123456789012}, 123456789012);
      },
      [](SvgPicture& picture) {
        picture.line({1e11, 1e11}, {1e11, 1e11});
      },
  };
  for (const auto& drawOn : curves) {
    SvgPicture picture(100, 100, 10000);
    ASSERT_EQ(picture.limit(), 10000u);
    picture.beginGraph('a', 0);
    picture.startPiece({1, 2});
    for (int i = 0; i < 100; ++i) drawOn(picture);
    EXPECT_FALSE(picture.isFull());
    EXPECT_NE(picture.text(), "");
    picture.beginGraph('b', 0);
    picture.startPiece({1, 2});
    for (int i = 0; i < 1000; ++i) drawOn(picture);
    EXPECT_TRUE(picture.isFull());
    EXPECT_EQ(picture.text(), "");
    picture.clear();
    EXPECT_FALSE(picture.isFull());
    EXPECT_NE(picture.text(), "");
  }
}

TEST(SvgPicture, IsCheckedByATestThatKnowsBadDocuments) {
  const std::string declaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>";
  EXPECT_TRUE(isWellFormed(declaration + "<svg><g id=\"a\"><line/></g></svg>"));
  for (const char* bad : {"", "<svg>", "<svg></g>", "<svg><g></svg></g>", "<svg/><svg/>",
                          "<svg><g id=\"a></g></svg>", "<svg>&</svg>", "<svg><<g/></svg>"})
    EXPECT_FALSE(isWellFormed(declaration + bad)) << bad;
}

TEST(SvgPicture, HasAGridBelowTheGraphsAndNumbersAboveThemWhereALayerIsLaidOverIt) {
  SvgPicture picture(100, 50);
  picture.beginGraph('a', 0xFF);
  picture.startPiece({0, 0});
  picture.extendPiece({15, 15});
  const std::string plain = picture.text();
  EXPECT_EQ(plain.find("grid"), std::string::npos);
  EXPECT_EQ(plain.find("<text"), std::string::npos);
  const NumberLayer layer = {150, {{{300, 0}, {300, 750}}}, {{"-2,5", {100, 200}, 360, 180}}};
  const std::string text = picture.text(layer);
  const std::string grid =
      "<g id=\"grid\" stroke=\"#d9e1ea\" stroke-width=\"15\">\n"
      "<line x1=\"300\" y1=\"0\" x2=\"300\" y2=\"750\"/>\n</g>\n";
  const std::string numbers =
      "<g id=\"numbers\" font-family=\"sans-serif\" font-size=\"150\" fill=\"#3a424c\">\n"
      "<rect x=\"100\" y=\"200\" width=\"360\" height=\"180\" fill=\"#ffffff\" "
      "fill-opacity=\"0.8\"/>\n"
      "<text x=\"100\" y=\"340.4\" textLength=\"360\">-2,5</text>\n</g>\n";
  ASSERT_NE(text.find(grid), std::string::npos) << text;
  ASSERT_NE(text.find(numbers), std::string::npos) << text;
  EXPECT_LT(text.find(grid), text.find("graph-a\" stroke"));
  EXPECT_GT(text.find(numbers), text.find("<polyline"));
}

}  // namespace
}  // namespace zel::test
