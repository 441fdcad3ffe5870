#include "plot/plot_fixture.h"

namespace zel::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

GraphDef parametric(const char* x, const char* y, const char* inicio, const char* fin,
                    const char* variacion) {
  return graphOf('T', {{"inicio", inicio},
                       {"fin", fin},
                       {"variacion", variacion},
                       {"codigo_xt", x},
                       {"codigo_yt", y}});
}

/// A family of lines at the height of their parameter, unless it has another code.
GraphDef family(const char* inicio, const char* fin, const char* variacion,
                const char* codigo = "p") {
  return graphOf('Z', {{"inicio", inicio}, {"fin", fin}, {"variacion", variacion}}, codigo);
}

/// 150 twips to a unit, (0, 0) at 750,750.
class Parametric : public CurveTest {};

TEST_F(Parametric, JoinsItsSamplesAndMarksEachWithADot) {
  EXPECT_TRUE(drawParametric(parametric("t", "t^2", "-1", "2", "1")));
  EXPECT_THAT(picture.texts(), ElementsAre("start 600,600", "dot 600,600 radius 20",   //
                                           "extend 750,750", "dot 750,750 radius 20",  //
                                           "extend 900,600", "dot 900,600 radius 20",  //
                                           "extend 1050,150", "dot 1050,150 radius 20"));
}

TEST_F(Parametric, IsJoinedAcrossSamplesOutsideTheView) {
  EXPECT_TRUE(drawParametric(parametric("t", "7-t^2", "-5", "5", "1")));
  // 7 - t^2 is more than 5 from -1 to 1, and less than -5 beyond 3.
  EXPECT_THAT(picture.pieces(), ElementsAre("300,1050 450,300 1050,300 1200,1050"));
  EXPECT_THAT(picture.dots(), ElementsAre("300,1050", "450,300", "1050,300", "1200,1050"));
}

TEST_F(Parametric, IsJoinedAcrossSamplesThatFail) {
  EXPECT_TRUE(drawParametric(parametric("t", "1/t", "-1", "1", "1")));
  EXPECT_THAT(picture.pieces(), ElementsAre("600,900 900,600"));
  EXPECT_TRUE(drawParametric(parametric("1/t", "t", "-1", "1", "1")));
  EXPECT_THAT(picture.pieces(), ElementsAre("600,900 900,600"));
}

TEST_F(Parametric, LosesNoFurtherSampleAfterAFault) {
  // Its two codes take turns in the parse cache.
  EXPECT_TRUE(drawParametric(parametric("t", "9@t", "-2", "2", "1")));
  EXPECT_THAT(picture.pieces(), ElementsAre("450,825 600,900 900,600 1050,675"));
}

TEST_F(Parametric, DrawsOverItselfBeyondOneTurn) {
  EXPECT_TRUE(drawParametric(parametric("2*11@t", "2*10@t", "0", "450", "90")));
  // The cosine of 90 degrees is a little more than 0, that of 270 a little less.
  EXPECT_THAT(picture.pieces(), ElementsAre("1050,750 750,450 450,749 749,1050 1050,750 750,450"));
}

TEST_F(Parametric, LetsEventsRunAfterEachSample) {
  std::vector<std::size_t> calls;
  screen.on_events = [&](std::size_t) {
    EXPECT_TRUE(inProgress());
    calls.push_back(picture.calls.size());
  };
  EXPECT_TRUE(drawParametric(parametric("t", "1/t", "-7", "2", "1")));
  // Outside at -7 and -6, undefined at 0.
  EXPECT_THAT(calls, ElementsAre(0u, 0u, 2u, 4u, 6u, 8u, 10u, 10u, 12u, 14u));
  EXPECT_FALSE(inProgress());
}

TEST_F(Parametric, StaysDrawnAsFarAsItGotWhenItIsStopped) {
  screen.on_events = [&](std::size_t run) {
    if (run == 2) stop();
  };
  EXPECT_TRUE(drawParametric(parametric("t", "0", "-2", "2", "1")));
  EXPECT_THAT(picture.pieces(), ElementsAre("450,750 600,750"));
  EXPECT_EQ(screen.event_runs, 2u);
}

TEST_F(Parametric, WithAStepOf0GoesOnUntilItIsStopped) {
  screen.on_events = [&](std::size_t run) {
    if (run == 1000) stop();
  };
  EXPECT_TRUE(drawParametric(parametric("t", "0", "1", "2", "0")));
  EXPECT_THAT(picture.dots(), SizeIs(1000));
  EXPECT_THAT(picture.pieces(), SizeIs(1));
}

TEST_F(Parametric, EndsWhereItsStepNoLongerAdvances) {
  EXPECT_TRUE(drawParametric(parametric("0", "0", "9007199254740992", "9007199254740999", "1")));
  EXPECT_EQ(screen.event_runs, 1u);
}

TEST_F(Parametric, EndsWhereItsStepLeadsBeyondTheLargestNumber) {
  EXPECT_TRUE(drawParametric(parametric("0", "0", "-1e308", "0", "-1e308")));
  EXPECT_EQ(screen.event_runs, 1u);
}

TEST_F(Parametric, DrawsNothingThatStartsAfterItsEnd) {
  EXPECT_TRUE(drawParametric(parametric("t", "t", "1", "0", "1")));
  EXPECT_THAT(picture.calls, IsEmpty());
  EXPECT_EQ(screen.event_runs, 0u);
  EXPECT_FALSE(inProgress());
}

TEST_F(Parametric, FailsWithoutATraceWhenARangeIsNoNumber) {
  for (const auto& def : {parametric("t", "t", "", "1", "1"), parametric("t", "t", "0", "uno", "1"),
                          parametric("t", "t", "0", "1", "-")}) {
    EXPECT_FALSE(drawParametric(def));
    EXPECT_THAT(picture.calls, IsEmpty());
    EXPECT_FALSE(inProgress());
  }
}

TEST_F(Parametric, LeavesTheLastValueOfTInTheEngine) {
  EXPECT_TRUE(drawParametric(parametric("t", "t", "0", "2", "1")));
  double value = 0;
  std::string message;
  EXPECT_TRUE(engine.Evaluate(0, value, "t", message));
  EXPECT_EQ(value, 2);
}

/// A member has two samples, at both edges.
class Family : public CurveTest {
 protected:
  Family() { viewport.view.definicion = 1; }
};

TEST_F(Family, DrawsItsMembersFromTheFirstToTheLast) {
  EXPECT_TRUE(drawFamily(family("-1", "1", "1")));
  EXPECT_THAT(picture.pieces(), ElementsAre("0,900 1500,900", "0,750 1500,750", "0,600 1500,600"));
  EXPECT_THAT(picture.dots(), IsEmpty());
}

TEST_F(Family, SweepsTheGraphsOwnCodeForEachMember) {
  GraphDef def = family("0,5", "1", "0,5", "p*x");
  def.parameters->set("codigo1", "x");
  EXPECT_TRUE(drawFamily(def));
  EXPECT_THAT(picture.pieces(), ElementsAre("0,1125 1500,375", "0,1500 1500,0"));
}

TEST_F(Family, DrawsOneMemberWhenItsStepIsLargerThanItsRange) {
  EXPECT_TRUE(drawFamily(family("2", "4", "2,5")));
  EXPECT_THAT(picture.pieces(), ElementsAre("0,450 1500,450"));
}

TEST_F(Family, LeavesItsLastMemberInTheEngine) {
  EXPECT_TRUE(drawFamily(family("-1", "1,5", "1")));
  EXPECT_EQ(engine.GetP(), 1);
}

TEST_F(Family, LetsEventsRunAfterEachMember) {
  std::vector<std::size_t> calls;
  screen.on_events = [&](std::size_t) {
    EXPECT_TRUE(inProgress());
    calls.push_back(picture.calls.size());
  };
  EXPECT_TRUE(drawFamily(family("4", "6", "1")));
  EXPECT_THAT(calls, ElementsAre(2u, 4u, 4u));  // 6 lies above the view
  EXPECT_FALSE(inProgress());
}

TEST_F(Family, EndsAfterTheMemberInWhichItIsStopped) {
  screen.on_events = [&](std::size_t run) {
    if (run == 2) stop();
  };
  EXPECT_TRUE(drawFamily(family("-1", "4", "1")));
  EXPECT_THAT(picture.pieces(), ElementsAre("0,900 1500,900", "0,750 1500,750"));
  EXPECT_EQ(engine.GetP(), 0);
}

TEST_F(Family, WithAStepOf0GoesOnUntilItIsStopped) {
  screen.on_events = [&](std::size_t run) {
    if (run == 100) stop();
  };
  EXPECT_TRUE(drawFamily(family("1", "4", "0")));
  EXPECT_EQ(picture.pieces(), Texts(100, "0,600 1500,600"));
  EXPECT_EQ(screen.event_runs, 100u);
}

TEST_F(Family, EndsWhereItsStepNoLongerAdvances) {
  EXPECT_TRUE(drawFamily(family("9007199254740992", "9007199254740999", "1")));
  EXPECT_EQ(screen.event_runs, 1u);
}

TEST_F(Family, DrawsNothingThatStartsAfterItsEnd) {
  engine.SetP(7);
  EXPECT_TRUE(drawFamily(family("1", "0", "1")));
  EXPECT_THAT(picture.calls, IsEmpty());
  EXPECT_EQ(engine.GetP(), 7);
  EXPECT_FALSE(inProgress());
}

TEST_F(Family, FailsWithoutATraceWhenARangeIsNoNumber) {
  for (const auto& def :
       {family("", "1", "1"), family("0", "1a", "1"), family("0", "1", "1e999")}) {
    EXPECT_FALSE(drawFamily(def));
    EXPECT_THAT(picture.calls, IsEmpty());
    EXPECT_FALSE(inProgress());
  }
}

}  // namespace
}  // namespace zel::test
