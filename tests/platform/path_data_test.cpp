#include "platform/icons/path_data.h"

#include <QString>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace zel::test {
namespace {

/// The elements as "M1,2 L3,4 C5,6;7,8;9,10", rounded to hundredths.
std::string described(std::string_view data) {
  const auto path = readPathData(data);
  if (!path) return "refused";
  QString text;
  for (int i = 0; i < path->elementCount(); ++i) {
    const QPainterPath::Element element = path->elementAt(i);
    const bool goes_on = element.type == QPainterPath::CurveToDataElement;
    if (!goes_on && i > 0) text += ' ';
    text += goes_on                                       ? ';'
            : element.type == QPainterPath::MoveToElement ? 'M'
            : element.type == QPainterPath::LineToElement ? 'L'
                                                          : 'C';
    const auto rounded = [](double value) {
      return QString::number(static_cast<double>(qRound(value * 100)) / 100);
    };
    text += rounded(element.x) + ',' + rounded(element.y);
  }
  return text.toStdString();
}

TEST(PathData, AreReadCommandByCommand) {
  struct Case {
    const char* data;
    const char* path;
  };
  for (const Case& row : std::vector<Case>{
           {"", ""},
           {"M12 3V20", "M12,3 L12,20"},
           {"M1 2 3 4 5,6", "M1,2 L3,4 L5,6"},
           {"m1 2 3 4", "M1,2 L4,6"},
           {"M1 2h.5-.5", "M1,2 L1.5,2 L1,2"},
           {"M1 2H7V-1h-1v1", "M1,2 L7,2 L7,-1 L6,-1 L6,0"},
           {"M1 2L3 4l1 1", "M1,2 L3,4 L4,5"},
           {"M0 0C1 1 2 1 3 0", "M0,0 C1,1;2,1;3,0"},
           {"M1 1c1 1 2 1 3 0", "M1,1 C2,2;3,2;4,1"},
           {"M0 0C1 1 2 1 3 0S5 1 6 0", "M0,0 C1,1;2,1;3,0 C4,-1;5,1;6,0"},
           {"M0 0S5 1 6 0", "M0,0 C0,0;5,1;6,0"},
           {"M0 0H2V2Z", "M0,0 L2,0 L2,2 L0,0"},
           {" M\n0,0\tL 1 , 1 ", "M0,0 L1,1"},
       })
    EXPECT_EQ(described(row.data), row.path) << row.data;
}

TEST(PathData, OfAnArcTakeTheWayThatItsFlagsName) {
  struct Case {
    const char* data;
    QPointF middle;  // a point that the arc passes
  };
  constexpr double kDiagonal = 0.70710678;
  for (const Case& row : std::vector<Case>{
           {"M1 0A1 1 0 0 1 0 1", {kDiagonal, kDiagonal}},
           {"M1 0A1 1 0 0 0 0 1", {1 - kDiagonal, 1 - kDiagonal}},
           {"M1 0A1 1 0 1 0 0 1", {-kDiagonal, -kDiagonal}},
           {"M1 0A1 1 0 1 1 0 1", {1 + kDiagonal, 1 + kDiagonal}},
           {"M2 0A2 1 0 0 1 0 1", {2 * kDiagonal, kDiagonal}},
           {"M2 0A.5 .5 0 0 1 -2 0", {0, 2}},
           {"M1 1a1 1 0 0 1 2 0", {2, 0}},
       }) {
    const auto path = readPathData(row.data);
    ASSERT_TRUE(path) << row.data;
    const QPointF middle = path->pointAtPercent(0.5);
    EXPECT_NEAR(middle.x(), row.middle.x(), 0.01) << row.data;
    EXPECT_NEAR(middle.y(), row.middle.y(), 0.01) << row.data;
  }
}

TEST(PathData, AreRefusedWhereTheyAreNotUnderstood) {
  for (const char* const data : {"1 2", "M1", "M1 2X", "M1 2Q1 1 2 2", "M1 2L1 nan", "M1 2L1 1e999",
                                 "M0 0H1Z 3 4", "M0 0A0 1 0 0 1 2 2", "M0 0A1 1 45 0 1 2 2", "M-"})
    EXPECT_EQ(described(data), "refused") << data;
}

}  // namespace
}  // namespace zel::test
