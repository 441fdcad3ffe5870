#include "plot/session/walk.h"

#include <new>

#include "plot/session/plot_session_fixture.h"

namespace zel::test {
namespace {

TEST(AWalk, LooksAfterSoMuchWork) {
  Engine engine;
  int looks = 0;
  Walk walk(engine, [&] { return ++looks < 2; });
  double value = 0;
  std::string message;
  engine.Evaluate(1, value, "x+1", message);
  std::size_t evaluations = 0;
  while (walk.goesOn()) ++evaluations;
  EXPECT_TRUE(walk.isEnded());
  EXPECT_EQ(looks, 2);
  EXPECT_EQ(evaluations, 2 * (Engine::kMostWork / 4) - 1);
}

TEST(AWalk, CountsItsWorkFromNothing) {
  Engine engine;
  std::size_t looks = 0;
  Walk walk(engine, [&] { return ++looks < 3; });
  double value = 0;
  std::string message;
  engine.Evaluate(1, value, "10", message);  // of three, which is no divisor of the most work
  std::size_t evaluations = 1;
  while (walk.goesOn()) ++evaluations;
  EXPECT_EQ(evaluations, 3 * (Engine::kMostWork / 3 + 1));
}

TEST(AWalk, LooksAfterFewEvaluationsOfALongCode) {
  Engine engine;
  int looks = 0;
  Walk walk(engine, [&] { return ++looks == 0; });
  double value = 0;
  std::string message;
  engine.Evaluate(1, value, longFormula("x"), message);
  std::size_t evaluations = 1;
  while (walk.goesOn()) ++evaluations;
  EXPECT_LE(evaluations, 17u);
}

/// A graph that is above the view, and whose samples take long.
class LongWalks : public PlotSessionTest {
 protected:
  LongWalks() {
    viewport.view.definicion = 500;
    addFunction('a', longFormula("9"));
    addFunction('b', "x");
    openAndDraw();
    screen = {};
    listener = {};
  }

  /// Starts something once for each moment at which events run, with something happening then.
  template <class Task, class Happening>
  std::size_t during(const Task& task, const Happening& happening) {
    screen = {};
    screen.on_events = [&](std::size_t run) {
      if (run == 2) happening();
    };
    task();
    const std::size_t runs = screen.event_runs;
    screen.on_events = nullptr;
    return runs;
  }
};

TEST_F(LongWalks, OfATraceLetEventsRun) {
  session.execute(PlotCommand::recorrer);
  EXPECT_GE(screen.event_runs, 500 / 20u);
  EXPECT_EQ(session.mode(), PlotMode::normal);
}

TEST_F(LongWalks, OfASearchLetEventsRun) {
  session.execute(PlotCommand::buscar_max_min);
  EXPECT_GE(screen.event_runs, 500 / 20u);
  EXPECT_EQ(screen.texts().back(), "No se encuentran MÁXIMOS ni Mínimos.|||");
}

TEST_F(LongWalks, OfAPickLetEventsRun) {
  graphs.freeGraph('a');
  addGraph('a', FamilyFields{field(longFormula("P")), field("0"), field("500"), field("1")});
  session.open(viewport.view, marks);
  session.drawFirst();
  screen = {};
  session.mouseDown(MouseButton::left, {750, 750});
  EXPECT_GE(screen.event_runs, 500 / 20u);
}

TEST_F(LongWalks, EndWithWhateverChangesModeViewOrGraph) {
  const auto trace = [&] { session.execute(PlotCommand::recorrer); };
  const auto search = [&] { session.execute(PlotCommand::buscar_max_min); };
  for (const std::function<void()>& task : {std::function<void()>(trace), {search}}) {
    EXPECT_EQ(during(task, [&] { session.execute(PlotCommand::parar); }), 2u);
    EXPECT_EQ(session.mode(), PlotMode::normal);
    EXPECT_EQ(during(task, [&] { session.activate('b'); }), 2u);
    EXPECT_EQ(session.activeGraph(), 'b');
    session.activate('a');
    EXPECT_EQ(during(task, [&] { session.close(); }), 2u);
    openAndDraw();
  }
}

TEST_F(LongWalks, EndWithARedraw) {
  const auto pan = [&] { session.execute(PlotCommand::derecha); };
  const std::size_t drawing = during(pan, [] {});
  EXPECT_LE(during([&] { session.execute(PlotCommand::recorrer); }, pan), 2 + drawing);
  EXPECT_EQ(session.mode(), PlotMode::normal);
}

TEST_F(LongWalks, EndWithARedrawOfTheSameView) {
  const auto redraw = [&] { session.redraw(); };
  const std::size_t drawing = during(redraw, [] {});
  EXPECT_LE(during([&] { session.execute(PlotCommand::recorrer); }, redraw), 2 + drawing);
}

TEST_F(LongWalks, EndWithWhateverChangesModeAndViewOrGraphAtOnce) {
  const auto trace = [&] { session.execute(PlotCommand::recorrer); };
  const auto zoom = [&] { session.execute(PlotCommand::acercar); };
  EXPECT_EQ(during(trace, [&] { session.activateNext(); }), 2u);
  session.activateNext();
  const std::size_t drawing = during(zoom, [] {});
  EXPECT_LE(during(trace, zoom), 2 + drawing);
}

TEST_F(LongWalks, MayBeginAgainAfterOneInWhichMemoryRanOut) {
  const auto trace = [&] { session.execute(PlotCommand::recorrer); };
  const std::size_t alone = during(trace, [] {});
  EXPECT_THROW(during(trace, [] { throw std::bad_alloc(); }), std::bad_alloc);
  EXPECT_EQ(during(trace, [] {}), alone);
}

TEST_F(LongWalks, TakeNoOtherWalkIn) {
  const auto trace = [&] { session.execute(PlotCommand::recorrer); };
  const std::size_t alone = during(trace, [] {});
  EXPECT_EQ(during(trace, trace), alone);
  EXPECT_EQ(during(trace, [&] { session.execute(PlotCommand::buscar_max_min); }), alone);
  EXPECT_EQ(during(trace, [&] { session.mouseDown(MouseButton::left, {750, 750}); }), alone);
  EXPECT_EQ(session.mode(), PlotMode::normal);
}

}  // namespace
}  // namespace zel::test
