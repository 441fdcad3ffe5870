#include "platform/widgets/dialog_filter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zel::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* kZel = "Declaraciones ZEL (*.zel)|*.zel";

TEST(DialogFilter, TakesTheFormOfQt) {
  EXPECT_THAT(dialogFilters(kZel), ElementsAre("Declaraciones ZEL (*.zel)"));
  EXPECT_THAT(dialogFilters("Uno|*.a|Dos (x)|*.b;*.c"), ElementsAre("Uno (*.a)", "Dos (*.b *.c)"));
  EXPECT_THAT(dialogFilters(""), IsEmpty());
  EXPECT_THAT(dialogFilters("Uno (*.a)"), IsEmpty());
}

TEST(DialogFilter, KnowsTheEndingOfItsFiles) {
  EXPECT_EQ(filterEnding(kZel), ".zel");
  EXPECT_EQ(filterEnding("Uno|*.a;*.b|Dos|*.c"), ".a");
  EXPECT_EQ(filterEnding("Todo|*.*"), "");
  EXPECT_EQ(filterEnding("Todo|*"), "");
  EXPECT_EQ(filterEnding(""), "");
}

TEST(DialogFilter, AppendsTheEndingWhereNoneIsTyped) {
  const struct {
    const char* typed;
    const char* path;
  } rows[] = {
      {"/a/b", "/a/b.zel"},         {"/a.c/b", "/a.c/b.zel"}, {"/a/b.zel", "/a/b.zel"},
      {"/a/b.ZEL", "/a/b.ZEL"},     {"/a/b.txt", "/a/b.txt"}, {"/a/b.", "/a/b."},
      {"/a/.hidden", "/a/.hidden"}, {"b", "b.zel"},
  };
  for (const auto& row : rows) EXPECT_EQ(withEnding(row.typed, ".zel"), row.path) << row.typed;
}

}  // namespace
}  // namespace zel::test
