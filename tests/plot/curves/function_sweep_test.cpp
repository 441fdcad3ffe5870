#include "plot/curves/function_sweep.h"

#include "plot/plot_fixture.h"

namespace zel::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// 1500 twips for -5 to 5, a sample at every integer, unless a test says otherwise.
class FunctionSweep : public CurveTest {
 protected:
  void setQuality(std::int16_t definicion) { viewport.view.definicion = definicion; }
};

TEST_F(FunctionSweep, JoinsItsSamplesFromEdgeToEdge) {
  EXPECT_THAT(sweep("x"), ElementsAre("0,1500 150,1350 300,1200 450,1050 600,900 750,750 900,600 "
                                      "1050,450 1200,300 1350,150 1500,0"));
}

TEST_F(FunctionSweep, PutsThePenDownAtTheFirstSampleInTheView) {
  EXPECT_THAT(sweep("x^2"), ElementsAre("450,150 600,600 750,750 900,600 1050,150"));
  EXPECT_EQ(picture.texts().front(), "start 450,150");
  EXPECT_EQ(picture.texts()[1], "extend 600,600");
}

TEST_F(FunctionSweep, HasTheEdgesOfTheViewInIt) {
  show(-5, 5, -1, 4);
  setQuality(1);  // samples at both ends only
  EXPECT_THAT(sweep("4+0*x"), ElementsAre("0,0 1500,0"));
  EXPECT_THAT(sweep("-1"), ElementsAre("0,1500 1500,1500"));
  EXPECT_THAT(sweep("4,00000000000001+0*x"), IsEmpty());
}

TEST_F(FunctionSweep, ShowsASingleSampleAsAPieceOfItsOwn) {
  show(-5, 5, -9.5, 0.5);
  EXPECT_THAT(sweep("x^2"), ElementsAre("750,75"));
  EXPECT_THAT(picture.texts(), ElementsAre("start 750,75"));
}

TEST_F(FunctionSweep, BreaksTheCurveWhereItIsUndefined) {
  EXPECT_THAT(sweep("1/x"), ElementsAre("0,780 150,787 300,800 450,825 600,900",
                                        "900,600 1050,675 1200,700 1350,712 1500,720"));
  // An error with a message costs only its own sample.
  EXPECT_THAT(sweep("4@x"), ElementsAre("900,750 1050,646 1200,585 1350,542 1500,508"));
}

TEST_F(FunctionSweep, JoinsTwoSamplesInTheViewAcrossAPole) {
  show(-4.5, 5.5, -5, 5);  // -2 at -0,5 and 2 at 0,5
  EXPECT_THAT(sweep("1/x"), ElementsAre("0,783 150,792 300,810 450,850 600,1050 750,450 900,650 "
                                        "1050,690 1200,707 1350,716 1500,722"));
}

TEST_F(FunctionSweep, BreaksTheCurveWhereItLeavesTheView) {
  show(-4.5, 5.5, -1.5, 1.5);
  EXPECT_THAT(sweep("1/x"), ElementsAre("0,861 150,892 300,950 450,1083",  //
                                        "900,416 1050,550 1200,607 1350,638 1500,659"));
}

TEST_F(FunctionSweep, DrawsNothingOfACurveAboveTheView) {
  EXPECT_THAT(sweep("x+100"), IsEmpty());
  EXPECT_THAT(picture.calls, IsEmpty());
  EXPECT_TRUE(screen.statuses.empty());
}

TEST_F(FunctionSweep, DrawsNothingOfACodeThatCannotBeRead) {
  EXPECT_THAT(sweep(""), IsEmpty());
  EXPECT_THAT(sweep("x)"), IsEmpty());
  EXPECT_THAT(sweep("2*-x"), IsEmpty());
}

TEST_F(FunctionSweep, LosesTheSampleAfterAFaultToo) {
  // The fault at 0 leaves the parse cache in the middle of its record, where the sample at 1 reads
  // on in vain; that failure puts things right for the sample at 2.
  EXPECT_THAT(sweep("9@x"), ElementsAre("0,780 150,787 300,800 450,825 600,900",
                                        "1050,675 1200,700 1350,712 1500,720"));
}

TEST_F(FunctionSweep, LosesNoFurtherSampleAfterAFaultOfItsFirstOne) {
  show(0, 10, -5, 5);
  EXPECT_THAT(sweep("9@x"), ElementsAre("150,600 300,675 450,700 600,712 750,720 900,725 1050,728 "
                                        "1200,731 1350,733 1500,735"));
}

TEST_F(FunctionSweep, AddsItsStepAgainAndAgain) {
  // Ten times 0,1 is a little less than 1, so the last point stays a twip away from the edge; its
  // value has 15 digits and is 1.
  show(0, 1, 0, 1);
  EXPECT_THAT(sweep("x"), ElementsAre("0,1500 150,1350 300,1200 450,1050 600,900 750,750 900,600 "
                                      "1050,450 1200,299 1349,149 1499,0"));
}

TEST_F(FunctionSweep, MissesItsLastSampleWhenTheSumComesOutTooLarge) {
  show(0, 1, 0, 1);
  setQuality(9);  // nine times 1/9 is more than 1
  EXPECT_THAT(sweep("0*x"), ElementsAre("0,1500 166,1500 333,1500 500,1500 666,1500 833,1500 "
                                        "1000,1500 1166,1500 1333,1500"));
}

TEST_F(FunctionSweep, ComparesTheValueOf15DigitsWithTheView) {
  // The value at 2/3 is 0,666666666666667, which is more than 2/3.
  show(0, 2.0 / 3, 0, 2.0 / 3);
  setQuality(1);
  EXPECT_THAT(sweep("x"), ElementsAre("0,1500"));
}

TEST_F(FunctionSweep, EndsWhereItsStepNoLongerAdvances) {
  // Above 2^53 there are only even numbers: a step of 0,8 leads there from one number to the next,
  // and then nowhere.
  constexpr double k2To53 = 9007199254740992;
  show(k2To53 - 4, k2To53 + 4, -5, 5);
  EXPECT_THAT(sweep("0"), ElementsAre("0,750 187,750 375,750 562,750 750,750"));
}

TEST_F(FunctionSweep, EndsWhereItsStepLeadsBeyondTheLargestNumber) {
  show(1e308, 1.79e308, -5, 5);
  setQuality(1);
  EXPECT_THAT(sweep("0"), ElementsAre("0,750 1500,750"));
}

TEST_F(FunctionSweep, TakesNoSampleOfAnXRangeThatStandsUpsideDown) {
  show(5, -5, -5, 5);
  EXPECT_THAT(sweep("0"), IsEmpty());
}

TEST_F(FunctionSweep, HasNothingInsideAYRangeThatStandsUpsideDown) {
  show(-5, 5, 5, -5);
  EXPECT_THAT(sweep("0"), IsEmpty());
}

TEST_F(FunctionSweep, TakesItsFirstSampleOnlyWithANegativeQuality) {
  setQuality(-10);
  EXPECT_THAT(sweep("0"), ElementsAre("0,750"));
}

TEST_F(FunctionSweep, TellsItsVisitorOfEachSampleAfterDrawingIt) {
  show(-2, 2, 0, 1);
  setQuality(4);
  ASSERT_EQ(viewport.prepare(), RangeVerdict::drawable);
  Texts seen;
  sweepEach("4@x", [&](const Sample& sample) {
    seen.push_back(std::string(sample.defined ? "defined " : "undefined ") +
                   (sample.drawn ? pointText(sample.point) : "-") + " of " +
                   std::to_string(picture.calls.size()));
  });
  EXPECT_THAT(seen, ElementsAre("undefined - of 0", "undefined - of 0", "undefined - of 0",
                                "defined 1125,1500 of 1", "defined 1500,460 of 2"));
}

TEST_F(FunctionSweep, LetsEventsRunBetweenItsBlocks) {
  setQuality(600);  // 601 samples
  sweep("x");
  EXPECT_EQ(screen.event_runs, 2);
  setQuality(250);
  sweep("x");
  EXPECT_EQ(screen.event_runs, 2);
}

TEST_F(FunctionSweep, LetsEventsRunAfterFewSamplesOfALongCode) {
  setQuality(200);                             // 201 samples
  addFunction('g', longFormula("x", 10'000));  // "(x)" takes the place of each x
  const std::string cut = longFormula("x").substr(0, 16000);
  for (const std::string& code : {longFormula("x"), cut + "+", "9@x+" + cut, std::string("g(x)")}) {
    screen = {};
    sweep(code);
    EXPECT_GE(screen.event_runs, 201 / 40u) << code.substr(0, 9);
  }
}

TEST_F(FunctionSweep, KeepsItsParameterWhateverHappensMeanwhile) {
  setQuality(600);
  engine.SetP(2);
  screen.on_events = [&](std::size_t) { engine.SetP(9); };
  const Texts pieces = sweep("p");
  screen.on_events = nullptr;
  engine.SetP(2);
  EXPECT_EQ(sweep("p"), pieces);
}

TEST_F(FunctionSweep, EndsWhenAnotherRedrawHasBegunMeanwhile) {
  setQuality(600);
  screen.on_events = [&](std::size_t) { abandon(); };
  sweep("0");
  EXPECT_EQ(picture.calls.size(), kSweepBlock);
}

}  // namespace
}  // namespace zel::test
