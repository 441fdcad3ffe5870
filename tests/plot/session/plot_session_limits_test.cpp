#include <limits>

#include <gmock/gmock.h>

#include "plot/session/session_tools_fixture.h"

/// Views at the end of the numbers, and what a session says of itself meanwhile.
namespace zel::test {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;

TEST_F(SessionTools, APanBeyondTheLargestNumberFailsLikeADrawing) {
  show(1.797e308, std::numeric_limits<double>::max(), -5, 5);
  openAndDraw();
  ASSERT_EQ(listener.returns, 0);
  session.execute(PlotCommand::derecha);
  EXPECT_THAT(listener.messages, ElementsAre(kFailed));
  EXPECT_EQ(listener.returns, 1);
  EXPECT_TRUE(isFinite(session.view()));
}

TEST_F(SessionTools, IsDrawingWhileEventsRunInADrawingAndNotBehindIt) {
  std::vector<bool> meanwhile;
  screen.on_events = [&](std::size_t) { meanwhile.push_back(session.isDrawing()); };
  session.redraw();
  EXPECT_FALSE(meanwhile.empty());
  EXPECT_THAT(meanwhile, Each(true));
  EXPECT_FALSE(session.isDrawing());
}

TEST_F(SessionTools, EachArrowPansTheView) {
  for (const PlotCommand arrow :
       {PlotCommand::arriba, PlotCommand::abajo, PlotCommand::izquierda, PlotCommand::derecha}) {
    const ViewSettings expected = zel::panned(session.view(), arrow);
    session.execute(arrow);
    EXPECT_EQ(session.view(), expected);
  }
}

TEST_F(SessionTools, NoGraphIsChosenWithoutAPictureOrOutsideOfTheLetters) {
  session.choose('{');
  EXPECT_FALSE(session.activate('{'));
  EXPECT_FALSE(session.activate('b'));
  EXPECT_EQ(session.activeGraph(), 'a');
  session.close();
  session.choose('c');
  EXPECT_EQ(session.activeGraph(), 'a');
}

}  // namespace
}  // namespace zel::test
