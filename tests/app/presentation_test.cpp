#include "app/presentation.h"

#include <gtest/gtest.h>

#include "support/language_guard.h"

namespace zel::test {
namespace {

class PresentationTest : public ::testing::Test {
 protected:
  PresentationTest() {
    presentation.enableTimer(true);
    presentation.activated();
  }

  LanguageGuard language{"ES"};
  Presentation presentation;
};

TEST_F(PresentationTest, StaysForTwoTicks) {
  EXPECT_FALSE(presentation.tick());
  EXPECT_TRUE(presentation.tick());
}

TEST_F(PresentationTest, WaitsAnewAfterEachActivation) {
  EXPECT_FALSE(presentation.tick());
  presentation.activated();
  EXPECT_FALSE(presentation.tick());
  EXPECT_TRUE(presentation.tick());
}

TEST_F(PresentationTest, IsPausedAndGoesOnWithP) {
  EXPECT_EQ(presentation.statusText(), "2.8.81.02.2008");
  EXPECT_FALSE(presentation.keyPressed('p'));
  EXPECT_FALSE(presentation.timerRuns());
  EXPECT_EQ(presentation.statusText(), "EN PAUSA...");
  SetCurrentLanguage("EN");
  EXPECT_EQ(presentation.statusText(), "PAUSE MODE");
  EXPECT_FALSE(presentation.keyPressed('P'));
  EXPECT_TRUE(presentation.timerRuns());
  EXPECT_EQ(presentation.statusText(), "2.8.81.02.2008");
}

TEST_F(PresentationTest, ClosesAtAnyOtherCharacter) {
  for (const char32_t key : {U'\r', U'\x1b', U' ', U'x', U'\x8', U'ñ'})
    EXPECT_TRUE(presentation.keyPressed(key));
  EXPECT_FALSE(presentation.keyPressed(0));
}

TEST_F(PresentationTest, ShowsItsButtonOnlyWithoutItsTimer) {
  EXPECT_FALSE(presentation.showsCloseButton());
  presentation.keyPressed('p');
  EXPECT_TRUE(presentation.showsCloseButton());
}

TEST_F(PresentationTest, ClosesAtAClickOnTheVersionOnlyWhileItsTimerRuns) {
  EXPECT_TRUE(presentation.versionClicked());
  presentation.keyPressed('p');
  EXPECT_FALSE(presentation.versionClicked());
}

}  // namespace
}  // namespace zel::test
