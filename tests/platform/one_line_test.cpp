#include "platform/qt/one_line.h"

#include <gtest/gtest.h>

namespace zel::test {
namespace {

TEST(OneLine, TakesOutControlCharactersAndKeepsTheCaretInItsPlace) {
  QString text = QStringLiteral("a\r\nb\tc");
  int cursor = 4;  // before the tab
  EXPECT_EQ(OneLine().validate(text, cursor), QValidator::Acceptable);
  EXPECT_EQ(text, "abc");
  EXPECT_EQ(cursor, 2);
}

TEST(OneLine, LeavesEveryOtherCharacter) {
  const QString plain = QStringLiteral(" x^2 ñ €\u00A0\u00AD\u200B");
  QString text = plain;
  int cursor = 0;
  EXPECT_EQ(OneLine().validate(text, cursor), QValidator::Acceptable);
  EXPECT_EQ(text, plain);
}

}  // namespace
}  // namespace zel::test
