#include "plot/session/session_tools_fixture.h"

/// The rectangle that is dragged in the mode "ZOOM", and when it becomes the view.
namespace zel::test {
namespace {

using SessionZoom = SessionTools;

TEST_F(SessionZoom, ADragToTheLeftGrowsTheRectangleToTheRight) {
  session.execute(PlotCommand::zoom_a_medida);
  session.mouseDown(MouseButton::left, {1000, 1000});
  EXPECT_EQ(session.zoomRectangle(), (ZoomRectangle{1000, 1000, 1, 1}));
  session.mouseMove(MouseButton::left, {400, 1600});
  EXPECT_EQ(session.zoomRectangle(), (ZoomRectangle{1000, 1000, 600, 600}));
  session.mouseUp(MouseButton::left, {400, 1600});
  EXPECT_EQ(session.zoomRectangle(), std::nullopt);
}

TEST_F(SessionZoom, EachStepOfADragIsTold) {
  session.execute(PlotCommand::zoom_a_medida);
  const int changes = listener.tools_changes;
  session.mouseDown(MouseButton::left, {1000, 1000});
  EXPECT_EQ(listener.tools_changes, changes + 1);
  session.mouseMove(MouseButton::left, {1010, 1010});
  EXPECT_EQ(listener.tools_changes, changes + 2);
  session.mouseUp(MouseButton::left, {1010, 1010});
  EXPECT_EQ(listener.tools_changes, changes + 3);
}

TEST_F(SessionZoom, TheRectangleBecomesTheViewAndTheModeStays) {
  session.execute(PlotCommand::zoom_a_medida);
  drag({600, 450}, {1050, 750});
  EXPECT_EQ(session.mode(), PlotMode::zoom);
  EXPECT_EQ(session.view().xi, -1);
  EXPECT_EQ(session.view().xf, 2);
  EXPECT_EQ(session.view().yi, 0);
  EXPECT_EQ(session.view().yf, 2);
  EXPECT_EQ(shown(), range());
  EXPECT_EQ(listener.drawn, 2);
}

TEST_F(SessionZoom, ARectangleThatIsNotLongerThanFiftyIsIgnored) {
  session.execute(PlotCommand::zoom_a_medida);
  drag({100, 100}, {150, 900});
  drag({100, 100}, {900, 150});
  EXPECT_EQ(listener.drawn, 1);
  drag({100, 100}, {151, 151});
  EXPECT_EQ(listener.drawn, 2);
}

TEST_F(SessionZoom, ARectangleIsDroppedWithItsMode) {
  session.execute(PlotCommand::zoom_a_medida);
  session.mouseDown(MouseButton::left, {100, 100});
  session.mouseMove(MouseButton::left, {900, 900});
  session.execute(PlotCommand::parar);
  EXPECT_EQ(session.zoomRectangle(), std::nullopt);
  session.mouseUp(MouseButton::left, {900, 900});
  EXPECT_EQ(listener.drawn, 1);
}

TEST_F(SessionZoom, ARectangleThatAnotherButtonHidKeepsItsSize) {
  session.execute(PlotCommand::zoom_a_medida);
  session.mouseDown(MouseButton::left, {600, 450});
  session.mouseMove(MouseButton::left, {1050, 750});
  session.mouseUp(MouseButton::right, {1050, 750});
  session.mouseUp(MouseButton::left, {1050, 750});
  EXPECT_EQ(session.view().xi, -1);
  EXPECT_EQ(session.view().xf, 2);
}

TEST_F(SessionZoom, AnOldRectangleIsNotAppliedByADragThatBeganInAnotherMode) {
  session.execute(PlotCommand::zoom_a_medida);
  drag({600, 450}, {1050, 750});
  session.execute(PlotCommand::zoom_a_medida);
  const ViewSettings applied = session.view();
  session.mouseDown(MouseButton::left, {600, 450});   // in NORMAL
  session.mouseDown(MouseButton::right, {600, 450});  // to ZOOM
  session.mouseUp(MouseButton::right, {600, 450});
  session.mouseMove(MouseButton::left, {1050, 750});
  session.mouseUp(MouseButton::left, {1050, 750});
  EXPECT_EQ(session.view(), applied);
  EXPECT_EQ(listener.drawn, 2);
}

TEST_F(SessionZoom, ADragThatLeavesItsModeAndComesBackAppliesNothing) {
  session.execute(PlotCommand::zoom_a_medida);
  session.mouseDown(MouseButton::left, {600, 450});
  session.mouseMove(MouseButton::left, {1050, 750});
  session.execute(PlotCommand::parar);
  session.execute(PlotCommand::zoom_a_medida);
  session.mouseUp(MouseButton::left, {1050, 750});
  EXPECT_EQ(listener.drawn, 1);
}

TEST_F(SessionZoom, AReleaseWithoutAPressAppliesNothing) {
  session.execute(PlotCommand::zoom_a_medida);
  drag({600, 450}, {1050, 750});
  session.mouseUp(MouseButton::left, {1050, 750});
  EXPECT_EQ(listener.drawn, 2);
}

TEST_F(SessionZoom, AnotherButtonThanTheLeftOneHidesTheRectangle) {
  session.execute(PlotCommand::zoom_a_medida);
  session.mouseDown(MouseButton::left, {100, 100});
  session.mouseMove(MouseButton::left, {900, 900});
  session.mouseUp(MouseButton::right, {900, 900});
  EXPECT_EQ(session.zoomRectangle(), std::nullopt);
  EXPECT_EQ(listener.drawn, 1);
}

}  // namespace
}  // namespace zel::test
