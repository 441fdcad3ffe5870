#include "forms/tool_tip.h"

#include <gtest/gtest.h>

#include "forms/shown_tip.h"

namespace zel::test {
namespace {

TEST(ToolTip, FoldsATextAfterEightyCharacters) {
  EXPECT_EQ(toolTipOf(QString(80, u'x')).count(u'\n'), 0);
  EXPECT_EQ(toolTipOf(QString(81, u'x')).count(u'\n'), 1);
  EXPECT_EQ(shownTip(toolTipOf(QString(81, u'x'))), std::string(81, 'x'));
}

TEST(ToolTip, ShowsTwentyLinesOfEightyCharactersAtMost) {
  EXPECT_EQ(shownTip(toolTipOf(QString(1600, u'x'))), std::string(1600, 'x'));
  EXPECT_EQ(shownTip(toolTipOf(QString(1601, u'x'))), std::string(1600, 'x') + "…");
  EXPECT_EQ(toolTipOf(QString(100'000, u'x')).count(u'\n'), 20);
}

TEST(ToolTip, OfAnEmptyTextIsNone) { EXPECT_TRUE(toolTipOf(QString()).isEmpty()); }

}  // namespace
}  // namespace zel::test
