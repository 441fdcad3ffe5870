#include <gmock/gmock.h>

#include "plot/session/session_tools_fixture.h"

/// The numbers over the picture: who switches them, and when they are there.
namespace zel::test {
namespace {

class SessionNumbers : public SessionTools {
 protected:
  NumberLayer numbers() const { return session.numbers(measure); }
  std::string coordinates() const {
    const auto label = session.coordinates(measure);
    return label ? label->text : "";
  }

  TextMeasure measure{100, 120,
                      [](std::string_view text) { return static_cast<double>(text.size()) * 60; }};
};

TEST_F(SessionNumbers, AreHiddenAtFirstAndSwitchedByTheButtonAndTheKey) {
  EXPECT_FALSE(session.showsNumbers());
  session.toggleNumbers();
  EXPECT_TRUE(session.showsNumbers());
  session.keyPressed(U'n');
  EXPECT_FALSE(session.showsNumbers());
  session.keyPressed(U'N');
  EXPECT_TRUE(session.showsNumbers());
  const int changes = listener.tools_changes;
  session.keyPressed(U'N');
  EXPECT_EQ(listener.tools_changes, changes + 1);
}

TEST_F(SessionNumbers, ChangeNeitherTheModeNorThePicture) {
  session.execute(PlotCommand::recorrer);
  const auto cursor = session.cursor();
  session.toggleNumbers();
  EXPECT_EQ(session.mode(), PlotMode::recorrido);
  EXPECT_EQ(session.cursor(), cursor);
  EXPECT_EQ(listener.drawn, 1);
}

TEST_F(SessionNumbers, StayAsTheyAreFromOneOpeningToTheNext) {
  session.toggleNumbers();
  session.close();
  openAndDraw();
  EXPECT_TRUE(session.showsNumbers());
}

TEST_F(SessionNumbers, AreThoseOfTheViewThatIsDrawn) {
  EXPECT_FALSE(numbers().labels.empty());  // shown or not: they can be copied
  EXPECT_EQ(numbers(), markNumbers(session.viewport(), marks, measure));
  const NumberLayer before = numbers();
  session.execute(PlotCommand::acercar);
  EXPECT_NE(numbers(), before);
}

TEST_F(SessionNumbers, AreNoneWhileThereIsNoPicture) {
  session.toggleNumbers();
  session.mouseMove(MouseButton::none, {750, 750});
  EXPECT_NE(coordinates(), "");
  session.close();
  EXPECT_TRUE(numbers().labels.empty());
  EXPECT_EQ(coordinates(), "");
  session.open(viewport.view, marks);
  EXPECT_TRUE(numbers().grid.empty());
}

TEST_F(SessionNumbers, TheCoordinatesFollowThePointerWhileTheyAreShown) {
  session.mouseMove(MouseButton::none, {900, 600});
  EXPECT_EQ(coordinates(), "");
  session.toggleNumbers();
  EXPECT_EQ(coordinates(), "X=1  Y=1");
  const int changes = listener.tools_changes;
  session.mouseMove(MouseButton::none, {750, 750});
  EXPECT_EQ(coordinates(), "X=0  Y=0");
  EXPECT_EQ(listener.tools_changes, changes + 1);
  session.mouseLeft();
  EXPECT_EQ(coordinates(), "");
  EXPECT_EQ(listener.tools_changes, changes + 2);
}

TEST_F(SessionNumbers, TheCoordinatesAreShownInTheCustomZoomToo) {
  session.toggleNumbers();
  session.setMode(PlotMode::zoom);
  session.mouseMove(MouseButton::none, {900, 600});
  EXPECT_EQ(coordinates(), "X=1  Y=1");
  EXPECT_EQ(shown(), "X=1|Y=1||");
}

TEST_F(SessionNumbers, AreCopiedWhereThatIsAskedForAndOnlyThen) {
  session.toggleNumbers();
  session.execute(PlotCommand::copiar_grafico);
  EXPECT_EQ(listener.copies, "p");
  session.toggleNumbers();
  session.copyWithNumbers();
  EXPECT_EQ(listener.copies, "pn");
  EXPECT_EQ(listener.informations.size(), 2u);
  EXPECT_EQ(listener.informations.front(), listener.informations.back());
  session.close();
  session.copyWithNumbers();
  EXPECT_EQ(listener.copies, "pn");
}

}  // namespace
}  // namespace zel::test
