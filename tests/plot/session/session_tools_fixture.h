#pragma once

#include <string>

#include "plot/session/plot_session_fixture.h"

namespace zel::test {

/// 150 twips to a unit, the origin at (750, 750), a sample at every integer; "a" is the diagonal.
class SessionTools : public PlotSessionTest {
 protected:
  SessionTools() {
    addFunction('a', "x");
    addFunction('c', "x^2-4");
    openAndDraw();
  }

  std::string shown() const {
    const StatusPanels& panels = screen.statuses.back();
    return panels.first + "|" + panels.second + "|" + panels.third + "|" + panels.fourth;
  }
  std::string range() const {
    const StatusPanels panels = rangeStatus(session.view());
    return panels.first + "|" + panels.second + "|" + panels.third + "|" + panels.fourth;
  }
  void expectCursor(Point place) const {
    ASSERT_TRUE(session.cursor());
    EXPECT_EQ(session.cursor()->place, place);
  }
  void drag(Point from, Point to) {
    session.mouseDown(MouseButton::left, from);
    session.mouseMove(MouseButton::left, to);
    session.mouseUp(MouseButton::left, to);
  }
};

}  // namespace zel::test
