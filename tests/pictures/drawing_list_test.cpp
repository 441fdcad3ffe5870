#include "pictures/drawing_list.h"

#include <limits>

#include <gmock/gmock.h>

#include "support/recorder_picture.h"

namespace zel::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

void drawEverything(Picture& picture) {
  picture.beginAxes();
  picture.line({0, 5}, {9, 5});
  picture.line({4, 0}, {4, 9});
  picture.beginGraph('c', 0x123456);
  picture.startPiece({1, 2});
  picture.extendPiece({3, 4});
  picture.startPiece({7, 7});
  picture.dot({3, 4}, 20);
  picture.dot({4, 4}, 20);
  picture.dot({5, 5}, 30);
  picture.extendPiece({8, 8});
  picture.extendPiece({9, 9});
  picture.beginGraph('d', 0xFF);
  picture.extendPiece({1, 1});
}

RecorderPicture replayed(const DrawingList& list) {
  RecorderPicture recorder;
  list.replay(recorder);
  return recorder;
}

TEST(DrawingListOfAPlot, DrawsEverythingAgainInItsOrder) {
  DrawingList list;
  drawEverything(list);
  RecorderPicture direct;
  drawEverything(direct);
  EXPECT_EQ(replayed(list).calls, direct.calls);
}

TEST(DrawingListOfAPlot, CanBeDrawnMoreThanOnceAndOnACopy) {
  DrawingList list;
  drawEverything(list);
  const DrawingList copy = list;
  EXPECT_EQ(replayed(list).calls, replayed(list).calls);
  list.clear();
  RecorderPicture direct;
  drawEverything(direct);
  EXPECT_EQ(replayed(copy).calls, direct.calls);
}

TEST(DrawingListOfAPlot, KeepsPointsFarAwayAsTheyAre) {
  constexpr double kFar = std::numeric_limits<double>::max();
  DrawingList list;
  list.startPiece({-kFar, 0.5});
  list.extendPiece({kFar, -0.5});
  const RecorderPicture recorder = replayed(list);
  EXPECT_EQ(recorder.calls[0].point, (Point{-kFar, 0.5}));
  EXPECT_EQ(recorder.calls[1].point, (Point{kFar, -0.5}));
}

TEST(DrawingListOfAPlot, ForgetsWhatWasDrawnWhenItIsCleared) {
  DrawingList list;
  drawEverything(list);
  list.clear();
  EXPECT_THAT(replayed(list).calls, IsEmpty());
  list.startPiece({1, 1});
  EXPECT_THAT(replayed(list).texts(), ElementsAre("start 1,1"));
}

TEST(DrawingListOfAPlot, TakesAsManyPointsAsItMayAndIsFullAtTheNext) {
  DrawingList list(3);
  list.startPiece({0, 0});
  list.extendPiece({1, 1});
  list.dot({2, 2}, 5);
  EXPECT_FALSE(list.isFull());
  EXPECT_EQ(replayed(list).calls.size(), 3u);
  list.extendPiece({3, 3});
  EXPECT_TRUE(list.isFull());
  EXPECT_THAT(replayed(list).calls, IsEmpty());
}

TEST(DrawingListOfAPlot, KeepsNothingOfAFullDrawing) {
  DrawingList list(1);
  list.line({0, 0}, {1, 1});
  EXPECT_TRUE(list.isFull());
  drawEverything(list);
  EXPECT_TRUE(list.isFull());
  EXPECT_THAT(replayed(list).calls, IsEmpty());
  list.clear();
  EXPECT_FALSE(list.isFull());
}

TEST(DrawingListOfAPlot, TakesTwentySixCurvesOfAWideScreen) {
  DrawingList list;
  for (char letter = 'a'; letter <= 'z'; ++letter) {
    list.beginGraph(letter, 0);
    list.startPiece({0, 0});
    for (int i = 1; i < 1920; ++i) list.extendPiece({i * 15.0, 0});
  }
  EXPECT_FALSE(list.isFull());
  EXPECT_EQ(replayed(list).calls.size(), 26u * 1921);
}

TEST(DrawingListLayer, IsKeptUntilTheListIsCleared) {
  DrawingList list;
  EXPECT_EQ(list.layer(), NumberLayer());
  const NumberLayer layer = {150, {}, {{"7", {0, 0}, 90, 180}}};
  list.layOver(layer);
  EXPECT_EQ(list.layer(), layer);
  EXPECT_EQ(DrawingList(list).layer(), layer);
  list.clear();
  EXPECT_EQ(list.layer(), NumberLayer());
}

}  // namespace
}  // namespace zel::test
