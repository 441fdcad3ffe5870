#include <gmock/gmock.h>

#include "plot/session/session_tools_fixture.h"

/// Where the picture of the slope stands beside the cursor, and who is told of the active graph.
namespace zel::test {
namespace {

/// A unit is a twip, and a graph rises through the view, with a sample at every 150 twips.
class SessionSlopes : public SessionTools {
 protected:
  SessionSlopes() {
    graphs.clearGraphs();
    addFunction('a', "x/1000");
    show(0, 1500, -5, 5);
    openAndDraw();
  }

  /// That of a step, "recorrer_atras" or "recorrer_adelante", to a place.
  Slope slopeAt(double place, PlotCommand step) {
    const bool is_back = step == PlotCommand::recorrer_atras;
    session.mouseDown(MouseButton::left, {place - session.viewport().xStep(), 700});
    session.execute(is_back ? PlotCommand::recorrer_adelante : PlotCommand::recorrer_atras);
    session.execute(step);
    EXPECT_EQ(session.cursor().value_or(TraceCursor()).place.x, place);
    return session.cursor().value_or(TraceCursor()).slope;
  }
};

TEST_F(SessionSlopes, StandAheadOfTheCursorUpToWhereTheyWouldBeCutOff) {
  EXPECT_EQ(slopeAt(555, PlotCommand::recorrer_atras), Slope::decreciente_izq);
  EXPECT_EQ(slopeAt(554, PlotCommand::recorrer_atras), Slope::decreciente_der);
  EXPECT_EQ(slopeAt(1500 - 555, PlotCommand::recorrer_adelante), Slope::creciente_der);
  EXPECT_EQ(slopeAt(1500 - 554, PlotCommand::recorrer_adelante), Slope::creciente_izq);
}

TEST_F(SessionSlopes, StandAheadOfTheCursorWhereBothSidesAreTooNarrow) {
  session.resize({1100, 1500, 1100, 1500, 100});
  show(0, 1100, -5, 5);
  openAndDraw();
  EXPECT_EQ(slopeAt(550, PlotCommand::recorrer_atras), Slope::decreciente_izq);
  EXPECT_EQ(slopeAt(550, PlotCommand::recorrer_adelante), Slope::creciente_der);
}

TEST_F(SessionSlopes, OfAGraphThatHasBecomeAnotherOneStandToTheRight) {
  slopeAt(750, PlotCommand::recorrer_atras);
  addFunction('a', "x/1000+1");
  session.redraw();
  EXPECT_EQ(session.cursor()->slope, Slope::creciente_der);
  addFunction('a', "x/1000");
  session.redraw();
  EXPECT_EQ(session.cursor()->slope, Slope::decreciente_der);
}

TEST_F(SessionTools, TheWindowIsToldOfTheOpeningTheModeAndTheCursor) {
  const auto changesIn = [&](const auto& task) {
    const int before = listener.tools_changes;
    task();
    return listener.tools_changes - before;
  };
  EXPECT_EQ(changesIn([&] { session.open(viewport.view, marks); }), 1);
  session.drawFirst();
  EXPECT_EQ(changesIn([&] { session.setMode(PlotMode::zoom); }), 1);
  EXPECT_EQ(changesIn([&] { session.execute(PlotCommand::recorrer); }), 2);  // mode and cursor
  EXPECT_EQ(changesIn([&] { session.redraw(); }), 1);                        // the cursor again
  // A click tells of the mode, of the graph that was picked, and of the cursor when it is there.
  EXPECT_EQ(changesIn([&] { session.mouseDown(MouseButton::left, {750, 1300}); }), 3);
}

TEST_F(SessionTools, TheWindowIsToldOfEachGraphThatBecomesTheActiveOne) {
  const int changes = listener.tools_changes;
  EXPECT_TRUE(session.activate('c'));
  EXPECT_EQ(listener.tools_changes, changes + 1);
  EXPECT_FALSE(session.activate('b'));
  EXPECT_EQ(listener.tools_changes, changes + 1);
}

}  // namespace
}  // namespace zel::test
