#include "pictures/line_joiner.h"

#include <cmath>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zel {

// For GoogleTest's messages.
inline void PrintTo(Point point, std::ostream* out) { *out << point.x << "," << point.y; }

}  // namespace zel

namespace zel::test {
namespace {

using ::testing::ElementsAre;
using Points = std::vector<Point>;

/// The corners of a piece, both its ends among them.
Points corners(const Points& points) {
  LineJoiner joiner(points.front());
  Points found = {points.front()};
  for (std::size_t i = 1; i < points.size(); ++i)
    if (const auto turn = joiner.extendTo(points[i])) found.push_back(*turn);
  found.push_back(joiner.last());
  return found;
}

double distance(Point point, Point from, Point to) {
  const double x = to.x - from.x;
  const double y = to.y - from.y;
  return std::fabs((point.x - from.x) * y - (point.y - from.y) * x) / std::hypot(x, y);
}

TEST(LineJoiner, JoinsPointsThatLieOnALine) {
  EXPECT_THAT(corners({{0, 0}, {15, 30}, {30, 60}, {45, 90}}),
              ElementsAre(Point{0, 0}, Point{45, 90}));
  EXPECT_THAT(corners({{90, 45}, {60, 30}, {30, 15}, {0, 0}}),
              ElementsAre(Point{90, 45}, Point{0, 0}));
}

TEST(LineJoiner, JoinsALineThatWasFlooredToTwips) {
  Points points;
  for (int x = 0; x <= 1500; x += 15) points.push_back({1.0 * x, std::floor(x * 0.3717)});
  EXPECT_EQ(corners(points).size(), 2u);
}

TEST(LineJoiner, KeepsATurnOfATwipInAPixel) {
  EXPECT_THAT(corners({{0, 0}, {15, 0}, {30, 0}, {45, 3}}),
              ElementsAre(Point{0, 0}, Point{30, 0}, Point{45, 3}));
}

TEST(LineJoiner, KeepsTheFarthestPointOfAPieceThatTurnsBack) {
  EXPECT_THAT(corners({{0, 0}, {60, 0}, {120, 0}, {30, 0}}),
              ElementsAre(Point{0, 0}, Point{120, 0}, Point{30, 0}));
  EXPECT_THAT(corners({{0, 0}, {0, 60}, {0, 30}}),
              ElementsAre(Point{0, 0}, Point{0, 60}, Point{0, 30}));
}

TEST(LineJoiner, LeavesOutPointsThatRepeatTheLastOne) {
  EXPECT_THAT(corners({{0, 0}, {0, 0}, {15, 15}, {15, 15}, {30, 0}, {30, 0}}),
              ElementsAre(Point{0, 0}, Point{15, 15}, Point{30, 0}));
}

TEST(LineJoiner, KeepsWithinATwipOfEveryPoint) {
  Points points;
  for (int x = 0; x <= 3000; x += 7)
    points.push_back({1.0 * x, std::floor(700 + 600 * std::sin(x * 0.01))});
  const Points kept = corners(points);
  EXPECT_LT(kept.size(), points.size() / 2);
  std::size_t line = 1;
  for (const Point point : points) {
    if (point.x > kept[line].x) ++line;
    EXPECT_LE(distance(point, kept[line - 1], kept[line]), 1 + 1e-9) << point.x;
  }
}

TEST(LineJoiner, JoinsNothingThatIsTooFarAwayToBeReckonedWith) {
  EXPECT_THAT(corners({{0, 0}, {1e300, 1e300}, {-1e300, 1e300}, {1, 1}}),
              ElementsAre(Point{0, 0}, Point{1e300, 1e300}, Point{-1e300, 1e300}, Point{1, 1}));
}

}  // namespace
}  // namespace zel::test
