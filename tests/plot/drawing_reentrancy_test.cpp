#include <algorithm>

#include "plot/plot_fixture.h"

/// What may happen inside of a redraw while pending events run.
namespace zel::test {
namespace {

using ::testing::IsEmpty;

class Reentrancy : public PlotTest {
 protected:
  Reentrancy() {
    addGraph('a', FamilyFields{field("P*x"), field("0"), field("2"), field("1")});
    addGraph('b', CircumferenceFields{field("0"), field("0"), field("2,5")});
    addGraph('c',
             ParametricFields{field("t"), field("t^2/4"), field("-3"), field("3"), field("1")});
    addFunction('d', "x^2/2-3");
    fresh = redrawnFrom(panned());
    moments = screen.event_runs;
    screen = {};
  }

  RedrawOutcome redraw() { return drawing.redraw(viewport, marks); }

  ViewSettings panned() const {
    ViewSettings view = viewport.view;
    view.xi += 1;
    view.xf += 1;
    return view;
  }

  /// What an undisturbed redraw of a view draws.
  Texts redrawnFrom(const ViewSettings& view) {
    Viewport other = viewport;
    other.view = view;
    EXPECT_EQ(drawing.redraw(other, marks), RedrawOutcome::drawn);
    return picture.texts();
  }

  Drawing drawing{engine, graphs, picture, screen};
  Texts fresh;              // the picture of the panned view
  std::size_t moments = 0;  // how often events run inside of one redraw
};

TEST_F(Reentrancy, HasManyMoments) { EXPECT_EQ(moments, 1u + (3 + 1) + 1 + (7 + 1) + 1); }

TEST_F(Reentrancy, ARedrawInsideAnotherLeavesThePictureOfTheLaterOne) {
  const ViewSettings before = viewport.view;
  for (std::size_t moment = 1; moment <= moments; ++moment) {
    viewport.view = before;
    screen = {};
    screen.on_events = [&](std::size_t run) {
      if (run != moment) return;
      viewport.view = panned();
      EXPECT_EQ(redraw(), RedrawOutcome::drawn);
    };
    EXPECT_EQ(redraw(), RedrawOutcome::abandoned) << moment;
    EXPECT_EQ(picture.texts(), fresh) << moment;
    EXPECT_EQ(screen.statuses.back(), rangeStatus(viewport.view)) << moment;
    EXPECT_EQ(screen.event_runs, moment + moments) << moment;
    EXPECT_FALSE(drawing.inProgress()) << moment;
  }
}

TEST_F(Reentrancy, ARedrawInsideARedrawInsideAnotherWinsToo) {
  const ViewSettings before = viewport.view;
  for (std::size_t outer = 1; outer <= moments; ++outer) {
    for (std::size_t inner = 1; inner <= moments; ++inner) {
      viewport.view = before;
      screen = {};
      screen.on_events = [&](std::size_t run) {
        if (run == outer) {
          EXPECT_EQ(redraw(), RedrawOutcome::abandoned);
        } else if (run == outer + inner) {
          viewport.view = panned();
          EXPECT_EQ(redraw(), RedrawOutcome::drawn);
        }
      };
      EXPECT_EQ(redraw(), RedrawOutcome::abandoned);
      EXPECT_EQ(picture.texts(), fresh) << outer << " " << inner;
    }
  }
}

TEST_F(Reentrancy, ARefusedRedrawInsideAnotherEndsTheOuterOneWithoutATrace) {
  const ViewSettings before = viewport.view;
  for (std::size_t moment = 1; moment <= moments; ++moment) {
    viewport.view = before;
    screen = {};
    screen.on_events = [&](std::size_t run) {
      if (run != moment) return;
      viewport.view.xf = viewport.view.xi;
      EXPECT_EQ(redraw(), RedrawOutcome::too_close);
    };
    EXPECT_EQ(redraw(), RedrawOutcome::abandoned) << moment;
    EXPECT_EQ(picture.texts(), Texts{"clear"}) << moment;
    EXPECT_EQ(screen.event_runs, moment);
    EXPECT_FALSE(drawing.inProgress());
  }
}

TEST_F(Reentrancy, ACurveOfTheOuterRedrawIsNotInProgressInsideTheInnerOne) {
  std::string seen;
  screen.on_events = [&](std::size_t run) {
    if (run == 2) {  // inside the family
      EXPECT_TRUE(drawing.inProgress());
      graphs.clearGraphs();
      addFunction('a', "x");
      redraw();
    } else if (run > 2) {
      seen += drawing.inProgress() ? '1' : '0';
    }
  };
  EXPECT_EQ(redraw(), RedrawOutcome::abandoned);
  EXPECT_EQ(seen, "00");
}

TEST_F(Reentrancy, AGivenUpRedrawDrawsNothingMore) {
  for (std::size_t moment = 1; moment <= moments; ++moment) {
    screen = {};
    Texts drawn;
    screen.on_events = [&](std::size_t run) {
      if (run != moment) return;
      drawing.giveUp();
      drawn = picture.texts();
    };
    EXPECT_EQ(redraw(), RedrawOutcome::abandoned) << moment;
    EXPECT_EQ(picture.texts(), drawn) << moment;
    EXPECT_EQ(screen.event_runs, moment);
    EXPECT_FALSE(drawing.inProgress());
  }
  screen = {};
  EXPECT_EQ(redraw(), RedrawOutcome::drawn);
}

TEST_F(Reentrancy, ARedrawInsideOneThatIsGivenUpWins) {
  const ViewSettings before = viewport.view;
  for (std::size_t moment = 1; moment <= moments; ++moment) {
    viewport.view = before;
    screen = {};
    screen.on_events = [&](std::size_t run) {
      if (run != moment) return;
      drawing.giveUp();
      viewport.view = panned();
      EXPECT_EQ(redraw(), RedrawOutcome::drawn);
    };
    EXPECT_EQ(redraw(), RedrawOutcome::abandoned) << moment;
    EXPECT_EQ(picture.texts(), fresh) << moment;
  }
}

TEST_F(Reentrancy, AStopAtAnyMomentLeavesAWholeRedraw) {
  for (std::size_t moment = 1; moment <= moments; ++moment) {
    screen = {};
    screen.on_events = [&](std::size_t run) {
      if (run == moment) drawing.stop();
    };
    EXPECT_EQ(redraw(), RedrawOutcome::drawn) << moment;
    EXPECT_EQ(screen.statuses.back(), rangeStatus(viewport.view));
    EXPECT_FALSE(drawing.inProgress());
  }
}

TEST_F(Reentrancy, GraphsMayGoWhileTheyAreDrawn) {
  for (std::size_t moment = 1; moment <= moments; ++moment) {
    screen = {};
    screen.on_events = [&](std::size_t run) {
      if (run == moment) graphs.clearGraphs();
    };
    EXPECT_EQ(redraw(), RedrawOutcome::drawn);
    addGraph('a', FamilyFields{field("P*x"), field("0"), field("2"), field("1")});
    addGraph('c', ParametricFields{field("t"), field("t"), field("-3"), field("3"), field("1")});
  }
}

TEST_F(Reentrancy, RedrawsDoNotNestWithoutBound) {
  // Events that come without end: a redraw for each of the first thousand.
  std::size_t redraws = 0;
  std::size_t drawn = 0;
  int depth = 0;
  int deepest = 0;
  screen.on_events = [&](std::size_t) {
    if (redraws == 1000) return;
    ++redraws;
    viewport.view = panned();
    deepest = std::max(deepest, ++depth);
    if (redraw() == RedrawOutcome::drawn) ++drawn;
    --depth;
  };
  EXPECT_EQ(redraw(), RedrawOutcome::abandoned);
  EXPECT_EQ(redraws, 1000u);
  EXPECT_EQ(drawn, 1u);
  EXPECT_EQ(deepest, Drawing::kMostNested);
  EXPECT_EQ(viewport.view.xi, -5 + 1000);
  EXPECT_EQ(screen.statuses.back(), rangeStatus(viewport.view));
  const Texts last = picture.texts();
  screen.on_events = nullptr;
  EXPECT_EQ(redraw(), RedrawOutcome::drawn);
  EXPECT_EQ(picture.texts(), last);
}

TEST_F(Reentrancy, AGivenUpRedrawDoesNotBeginAnew) {
  int depth = 0;
  screen.on_events = [&](std::size_t) {
    if (depth == Drawing::kMostNested) return;
    ++depth;
    EXPECT_EQ(redraw(), RedrawOutcome::abandoned);
    drawing.giveUp();
    picture.calls.clear();
  };
  EXPECT_EQ(redraw(), RedrawOutcome::abandoned);
  EXPECT_THAT(picture.calls, IsEmpty());
}

}  // namespace
}  // namespace zel::test
