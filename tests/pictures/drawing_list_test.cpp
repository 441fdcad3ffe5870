#include "pictures/drawing_list.h"

#include <cmath>
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
  picture.extendPiece({9, 30});
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

TEST(DrawingListOfAPlot, TakesHalfAMillionPointsWhereNothingElseIsSaid) {
  DrawingList list;
  list.startPiece({0, 0});
  constexpr int kMost = static_cast<int>(DrawingList::kMostPoints);
  for (int i = 1; i < kMost; ++i) list.extendPiece({i * 1.0, i % 2 * 100.0});
  EXPECT_FALSE(list.isFull());
  list.startPiece({0, 0});
  EXPECT_TRUE(list.isFull());
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
    for (int i = 1; i < 1920; ++i) list.extendPiece({i * 15.0, i % 2 * 100.0});
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

/// Some 1.9 million samples, floored as a plot floors them.
TEST(DrawingListOfAPlot, TakesAThousandWavesOfAWideScreen) {
  DrawingList list;
  for (int wave = 1; wave <= 1000; ++wave) {
    list.startPiece({0, 8000});
    for (int i = 1; i < 1920; ++i)
      list.extendPiece({i * 15.0, 8000 + std::floor(wave * 8 * std::sin(i * 0.0065))});
  }
  EXPECT_FALSE(list.isFull());
}

TEST(DrawingListOfAPlot, KeepsTheEndsOfWhatOneLinePasses) {
  DrawingList list(5);
  list.startPiece({0, 0});
  for (int i = 1; i <= 1000; ++i) list.extendPiece({i * 15.0, i % 2 * 1.0});
  for (int i = 1; i <= 1000; ++i) list.extendPiece({15000, i * 15.0});
  list.startPiece({7, 7});
  list.extendPiece({7, 7});
  EXPECT_THAT(replayed(list).texts(), ElementsAre("start 0,0", "extend 15000,0",
                                                  "extend 15000,15000", "start 7,7", "extend 7,7"));
}

TEST(DrawingListOfAPlot, JoinsNoPointsAcrossDotsOrGraphs) {
  DrawingList list;
  list.beginGraph('a', 0);
  list.startPiece({0, 0});
  list.extendPiece({10, 10});
  list.dot({10, 10}, 5);
  list.extendPiece({20, 20});
  list.beginGraph('b', 0);
  list.extendPiece({30, 30});
  list.extendPiece({40, 40});
  list.extendPiece({50, 50});
  std::vector<std::string> places;
  for (const std::string& text : replayed(list).texts())
    if (text.starts_with("extend")) places.push_back(text);
  EXPECT_THAT(places, ElementsAre("extend 10,10", "extend 20,20", "extend 30,30", "extend 50,50"));
}

}  // namespace
}  // namespace zel::test
