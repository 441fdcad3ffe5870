#include <random>

#include "plot/session/session_tools_fixture.h"

/// What may arrive inside of a drawing, at each of its moments.
namespace zel::test {
namespace {

using ::testing::IsEmpty;

class SessionEvents : public PlotSessionTest {
 protected:
  SessionEvents() {
    addFamilyAndFunction();
    addGraph('b',
             ParametricFields{field("t"), field("t^2/4"), field("-3"), field("3"), field("1")});
    openAndDraw();
    moments = screen.event_runs;
  }

  /// Redraws once for each moment, with something happening at that moment.
  template <class Happening, class Check>
  void atEachMoment(const Happening& happening, const Check& check) {
    for (std::size_t moment = 1; moment <= moments; ++moment) {
      SCOPED_TRACE(moment);
      session.resize(viewport.size);
      openAndDraw();
      screen = {};
      listener = {};
      screen.on_events = [&](std::size_t run) {
        if (run == moment) happening();
      };
      session.redraw();
      screen.on_events = nullptr;
      check();
    }
  }

  std::size_t moments = 0;  // how often events run inside of one redraw
};

TEST_F(SessionEvents, AreManyMoments) { EXPECT_GT(moments, 10u); }

TEST_F(SessionEvents, AnotherRedrawIsTheOneThatIsShown) {
  const Texts fresh = drawnFresh(viewport.view, viewport.size);
  atEachMoment([&] { session.redraw(); },
               [&] {
                 EXPECT_EQ(picture.texts(), fresh);
                 EXPECT_EQ(listener.drawn, 1);
               });
}

TEST_F(SessionEvents, AResizeIsTheOneThatIsShown) {
  const PictureSize larger = PictureSize::ofPixels(200, 150);
  const Texts fresh = drawnFresh(viewport.view, larger);
  atEachMoment([&] { session.resize(larger); },
               [&] {
                 EXPECT_EQ(picture.texts(), fresh);
                 EXPECT_EQ(listener.drawn, 1);
                 EXPECT_EQ(screen.statuses.back(), rangeStatus(viewport.view));
               });
}

TEST_F(SessionEvents, ACloseEndsTheDrawing) {
  Texts drawn;
  atEachMoment(
      [&] {
        session.close();
        drawn = picture.texts();
      },
      [&] {
        EXPECT_EQ(picture.texts(), drawn);
        EXPECT_EQ(listener.drawn, 0);
        EXPECT_EQ(listener.returns, 0);
        EXPECT_THAT(listener.messages, IsEmpty());
      });
}

TEST_F(SessionEvents, AnotherViewThatIsOpenedIsDrawnInItsTurn) {
  const Texts fresh = drawnFresh(panned(), viewport.size);
  atEachMoment([&] { session.open(panned(), marks); },
               [&] {
                 EXPECT_EQ(listener.drawn, 0);
                 session.drawFirst();
                 EXPECT_EQ(picture.texts(), fresh);
               });
}

TEST_F(SessionEvents, ACloseAndAnotherViewAtOnceLeaveItsPicture) {
  const Texts fresh = drawnFresh(panned(), viewport.size);
  atEachMoment(
      [&] {
        session.close();
        session.open(panned(), marks);
        session.drawFirst();
      },
      [&] {
        EXPECT_EQ(picture.texts(), fresh);
        EXPECT_EQ(listener.drawn, 1);
      });
}

TEST_F(SessionEvents, ARefusalInsideADrawingReturnsOnce) {
  ViewSettings narrow = viewport.view;
  narrow.xf = narrow.xi;
  atEachMoment(
      [&] {
        session.open(narrow, marks);
        session.drawFirst();
      },
      [&] {
        EXPECT_EQ(listener.messages.size(), 1u);
        EXPECT_EQ(listener.returns, 1);
        EXPECT_EQ(picture.texts(), Texts{"clear"});
      });
}

TEST_F(SessionEvents, AStopLeavesAWholeDrawing) {
  atEachMoment([&] { session.keyPressed(32); },
               [&] {
                 EXPECT_EQ(listener.drawn, 1);
                 EXPECT_EQ(screen.statuses.back(), rangeStatus(viewport.view));
               });
}

TEST_F(SessionEvents, ACloseAfterTheDrawingIsShownIsNoRefusal) {
  viewport.view.xf = viewport.view.xi;
  listener.on_drawn = [&] { session.close(); };
  openAndDraw();
  EXPECT_THAT(listener.messages, IsEmpty());
  EXPECT_EQ(listener.returns, 0);
}

TEST_F(SessionEvents, ARefusalThatIsOvertakenByAnotherIsNotReported) {
  viewport.view.xf = viewport.view.xi;
  listener.on_drawn = [&] {
    listener.on_drawn = nullptr;
    openAndDraw();
  };
  openAndDraw();
  EXPECT_EQ(listener.messages.size(), 1u);
  EXPECT_EQ(listener.returns, 1);
}

TEST_F(SessionTools, APanThatARedrawOvertakesLeavesTheTraceToTheUserSinceThen) {
  session.execute(PlotCommand::recorrer_adelante);
  screen.on_events = [&](std::size_t) {
    screen.on_events = nullptr;
    session.redraw();
    session.execute(PlotCommand::recorrer_adelante);
  };
  session.execute(PlotCommand::derecha);
  EXPECT_EQ(shown(), "X=2|Y=2||");
}

TEST_F(SessionTools, APanThatAnotherOpeningOutlivesLeavesTheTraceOfThatOne) {
  session.execute(PlotCommand::recorrer_adelante);
  const ViewSettings view = viewport.view;
  listener.on_drawn = [&] {
    listener.on_drawn = nullptr;
    session.open(view, marks);
    session.drawFirst();
    session.execute(PlotCommand::recorrer);
  };
  session.execute(PlotCommand::derecha);
  EXPECT_EQ(shown(), "X=-4|Y=-4||");
}

TEST_F(SessionEvents, AtRandomLeaveThePictureOfTheLastView) {
  std::mt19937 random(20080281);
  const ViewSettings views[] = {viewport.view, panned()};
  const PictureSize sizes[] = {viewport.size, PictureSize::ofPixels(200, 150)};
  int left = 3000;
  const auto happening = [&] {
    const auto& view = views[random() % 2];
    switch (random() % 6) {
      case 0: session.redraw(); break;
      case 1: session.resize(sizes[random() % 2]); break;
      case 2: session.keyPressed(random() % 2 ? 27 : 32); break;
      case 3: session.open(view, marks); break;
      case 4: session.close(); break;
      default: session.drawFirst(); break;
    }
  };
  while (left > 0) {
    screen.on_events = [&](std::size_t) {
      if (left > 0 && random() % 3 == 0) {
        --left;
        happening();
      }
    };
    session.open(views[random() % 2], marks);
    session.drawFirst();
    screen.on_events = nullptr;
    if (!session.isOpen()) continue;
    session.redraw();
    EXPECT_EQ(picture.texts(), drawnFresh(session.view(), session.pictureSize()));
    EXPECT_EQ(screen.statuses.back(), rangeStatus(session.view()));
  }
  EXPECT_THAT(listener.messages, IsEmpty());
}

}  // namespace
}  // namespace zel::test
