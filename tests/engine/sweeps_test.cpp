#include <algorithm>
#include <cmath>
#include <limits>
#include <span>
#include <string>
#include <vector>

#include "engine/engine_fixture.h"

namespace zel::test {
namespace {

class Sweeps : public EngineTest {
 protected:
  /// The values as number texts, "-" where there is none.
  std::string sweep(std::string_view code, const std::vector<double>& xs) {
    std::vector<double> values(xs.size());
    engine.EvaluateSweep(code, xs, values);
    return texts(values);
  }

  void curve(std::string_view code_x, std::string_view code_y, std::span<const double> ts,
             std::span<double> xs, std::span<double> ys) {
    for (std::size_t done = 0; done < ts.size();)
      done +=
          engine.CurvePart(code_x, code_y, ts.subspan(done), xs.subspan(done), ys.subspan(done));
  }

  static std::string texts(const std::vector<double>& values) {
    std::string text;
    for (const double value : values)
      text += (text.empty() ? "" : " ") + (std::isnan(value) ? "-" : writeNumber(value).str());
    return text;
  }

  static std::vector<double> range(double first, std::size_t count) {
    std::vector<double> xs(count);
    for (std::size_t i = 0; i < count; ++i) xs[i] = first + static_cast<double>(i);
    return xs;
  }

  std::string slots(std::size_t count) const {
    std::string text;
    for (std::size_t i = 1; i <= count; ++i) text += std::string(engine.parseCache().slot(i)) + "|";
    return text;
  }
};

TEST_F(Sweeps, GiveAValueForEachX) {
  EXPECT_EQ(sweep("x^2-1", range(-3, 7)), "8 3 0 -1 0 3 8");
  EXPECT_EQ(sweep("x^2-1", {}), "");
  EXPECT_EQ(sweep("x^2-1", {5}), "24");
}

TEST_F(Sweeps, RoundToFifteenDigitsAfterEveryStep) {
  EXPECT_EQ(sweep("(1/x)*x", range(1, 7)), "1 1 0,999999999999999 1 1 1 1");
}

TEST_F(Sweeps, HaveNoValueWhereTheCodeIsUndefined) {
  EXPECT_EQ(sweep("7@x", range(-2, 6)), "- - 0 1 1,4142135623731 1,73205080756888");
  EXPECT_EQ(sweep("1/x", range(-2, 6)), "-0,5 -1 - 1 0,5 0,333333333333333");
  EXPECT_EQ(sweep("x)", range(-2, 6)), "- - - - - -");
}

TEST_F(Sweeps, LeaveTheParseCacheAsTheLastEvaluationDoes) {
  sweep("4@x", range(-3, 7));
  EXPECT_EQ(engine.parseCache().code(), "4@x");
  EXPECT_EQ(slots(4), "4|x|@||");
  sweep("4@x", range(-9, 7));
  EXPECT_EQ(engine.parseCache().code(), "");
  EXPECT_EQ(engine.parseCache().position(), 1u);
}

TEST_F(Sweeps, OfErrorsAloneRecordAsFarAsTheFurthestCame) {
  sweep("x+5*2", {1});
  EXPECT_EQ(slots(6), "x|5*2|+|5|2|*|");
  // The square root fails before the sum on its right is taken apart.
  EXPECT_EQ(sweep("7@x+(x+1)", range(-9, 8)), "- - - - - - - -");
  EXPECT_EQ(slots(9), "7@x|x+1|+|7|x|@||||");
}

TEST_F(Sweeps, GoThroughAFaultAsSingleEvaluationsDo) {
  // At 0 the record is read on from where the fault stopped, and there is nothing.
  EXPECT_EQ(sweep("9@(x)", range(-3, 8)),
            "-0,333333333333333 -0,5 -1 - - 0,5 0,333333333333333 "
            "0,25");
  // The record is not valid yet, and nothing is read on.
  EXPECT_EQ(sweep("1+9@x*2", range(0, 6)), "- 3 2 1,66666666666667 1,5 1,4");
}

TEST_F(Sweeps, ReadOnAfterEachFaultOfAValidRecord) {
  EXPECT_EQ(sweep("9@x", {1, 0, 1, 2, 0, 0, 0, 4, 0, 5}), "1 - - 0,5 - - - 0,25 - -");
  // What the longer code left behind it is read on.
  EXPECT_EQ(sweep("2*3+x^2", {2}), "10");
  EXPECT_EQ(slots(9), "2*3|x^2|+|2|3|*|x|2|^|");
  EXPECT_EQ(sweep("9@x", {1, 0, 2, 2, 0, 3}), "1 - 6 0,5 - 6");
}

TEST_F(Sweeps, ThatFaultLeaveNothingForTheNextCode) {
  const std::vector<double> xs = range(-3, 7);
  EXPECT_EQ(sweep("6@(x*1000)", xs), "0 0 0 1 - - -");
  EXPECT_EQ(sweep("x+1", xs), "-2 -1 0 1 2 3 4");
  EXPECT_EQ(sweep("(4-x^2)^0,5", xs), "- 0 1,73205080756888 2 1,73205080756888 0 -");
  EXPECT_EQ(sweep("x+1", xs), "-2 -1 0 1 2 3 4");
}

TEST_F(Sweeps, GoThroughALongRunOfFaults) {
  std::vector<double> xs = range(-300, 300);
  std::vector<double> values(xs.size());
  engine.EvaluateSweep("x^0,5", xs, values);
  EXPECT_TRUE(std::all_of(values.begin(), values.end(), [](double y) { return std::isnan(y); }));
  EXPECT_EQ(engine.parseCache().position(), 4u);
  EXPECT_EQ(engine.parseCache().code(), "");
  EXPECT_EQ(slots(4), "x|0,5|^||");
  EXPECT_EQ(sweep("x^0,5", range(-4, 9)), "- - - - 0 1 1,4142135623731 1,73205080756888 2");
  EXPECT_EQ(engine.parseCache().code(), "x^0,5");
}

TEST_F(Sweeps, AreValidAfterAValueThatCannotBeRead) {
  EXPECT_EQ(sweep("x", std::vector<double>(6, 1.7976931348623157e308)), "- - - - - -");
  EXPECT_EQ(engine.parseCache().position(), 1u);
  EXPECT_EQ(engine.parseCache().code(), "x");
}

TEST_F(Sweeps, KnowTheValuesOfTheNames) {
  engine.SetT(3);
  engine.SetP(100);
  EXPECT_EQ(sweep("x+t+p", range(0, 5)), "103 104 105 106 107");
}

TEST_F(Sweeps, PassOverWhatIsNoFiniteNumber) {
  EXPECT_EQ(sweep("x+1", {HUGE_VAL, 1, std::nan(""), 2, 3, 4}), "- 2 - 3 4 5");
  EXPECT_EQ(sweep("x+1", {std::nan(""), std::nan(""), std::nan(""), HUGE_VAL}), "- - - -");
}

TEST_F(Sweeps, TakeTheGraphsOfTheirTime) {
  graphCode('f') = "x+1";
  EXPECT_EQ(sweep("2*f(x)", range(0, 4)), "1 3 5 7");
  graphCode('f') = "x-1";
  EXPECT_EQ(sweep("2*f(x)", range(0, 4)), "1 3 5 7") << "the expansion of the last code is kept";
  sweep("x", {1});
  EXPECT_EQ(sweep("2*f(x)", range(0, 4)), "-1 1 3 5");
}

TEST_F(Sweeps, OfACurveSetTBeforeEachPoint) {
  const auto ts = range(-2, 5);
  std::vector<double> xs(ts.size());
  std::vector<double> ys(ts.size());
  engine.SetT(50);
  curve("t*10+x", "7@t", ts, xs, ys);
  EXPECT_EQ(texts(xs), "-22 -11 0 11 22");
  EXPECT_EQ(texts(ys), "- - 0 1 1,4142135623731");
  EXPECT_EQ(evaluateCode("t"), "= 2");
}

TEST_F(Sweeps, OfACurveLeaveTheRecordsOfBothCodes) {
  const auto ts = range(1, 20);
  std::vector<double> xs(ts.size());
  std::vector<double> ys(ts.size());
  curve("t*10+x", "7@t", ts, xs, ys);
  EXPECT_EQ(slots(6), "7|t|@|t|10|*|");
  EXPECT_EQ(engine.parseCache().code(), "7@t");
}

TEST_F(Sweeps, OfACurveReadOnWhereAFaultOfItsFirstCodeStopped) {
  EXPECT_EQ(evaluateCode("9@x+x*2", 1), "= 3");
  EXPECT_EQ(evaluateCode("9@x+x*2", 0), kFault);
  const std::vector<double> ts(6, 1);
  std::vector<double> xs(ts.size());
  std::vector<double> ys(ts.size());
  curve("9@x+x*2", "t", ts, xs, ys);
  // What is read on is x*2 alone.
  EXPECT_EQ(texts(xs), "2 3 3 3 3 3");
}

TEST_F(Sweeps, OfACurveGoThroughFaultsWithoutATrace) {
  const auto ts = range(0, 20);
  std::vector<double> xs(ts.size());
  std::vector<double> ys(ts.size());
  curve("9@(t-5)", "(t-10)^0,5", ts, xs, ys);
  EXPECT_TRUE(std::isnan(xs[5]));
  EXPECT_EQ(xs[6], 1);
  EXPECT_TRUE(std::isnan(ys[9]));
  EXPECT_EQ(ys[11], 1);
  EXPECT_EQ(slots(6), "t-10|0,5|^|t|10|-|");
  EXPECT_EQ(engine.parseCache().code(), "(t-10)^0,5");
}

TEST_F(Sweeps, OfACurveThatEndsInErrorsKeepTheRecordsFromBefore) {
  const auto ts = range(0, 20);
  std::vector<double> xs(ts.size());
  std::vector<double> ys(ts.size());
  // From 10 on the first code fails before its right side is taken apart.
  curve("7@(9-t)+(t+1)", "t*2", ts, xs, ys);
  EXPECT_EQ(slots(12), "t|2|*|7|9-t|@|9|t|-|t|1|+|");
  EXPECT_TRUE(std::isnan(xs[10]));
  EXPECT_EQ(ys[19], 38);
}

TEST_F(Sweeps, OfACurveKeepTheRecordOfItsFirstPointWhereAllOthersEndInErrors) {
  const auto ts = range(0, 20);
  std::vector<double> xs(ts.size());
  std::vector<double> ys(ts.size());
  curve("t*2", "7@(0-t)+(t+1)", ts, xs, ys);
  // The others fail before their right side is taken apart.
  EXPECT_EQ(slots(12), "7@(0-t)|t+1|+|7|0-t|@|0|t|-|t|1|+|");
  EXPECT_EQ(ys[0], 1);
  EXPECT_TRUE(std::isnan(ys[1]));
}

TEST_F(Sweeps, OfACurveBeginWithTheExpansionThatWasKept) {
  graphCode('f') = "7@x";
  double value = 0;
  std::string message;
  engine.SetT(-1);
  ASSERT_FALSE(engine.Evaluate(0, value, "f(t)", message));
  graphCode('f') = "x+1";
  const std::vector<double> ts = range(4, 5);
  std::vector<double> xs(5);
  std::vector<double> ys(5);
  curve("f(t)", "t", ts, xs, ys);
  EXPECT_EQ(texts(xs), "2 6 7 8 9");
}

TEST_F(Sweeps, OfACurveWithOneCodeReplayItForY) {
  const auto ts = range(0, 6);
  std::vector<double> xs(ts.size());
  std::vector<double> ys(ts.size());
  curve("t^2", "t^2", ts, xs, ys);
  EXPECT_EQ(texts(xs), "0 1 4 9 16 25");
  EXPECT_EQ(texts(ys), "0 1 4 9 16 25");
}

TEST_F(Sweeps, GiveFewValuesOfALongCodeAtOnce) {
  std::string code = "9@(x-20)";
  while (code.size() + 4 < Engine::kMaxExpandedCode) code += "+2*x";
  const std::vector<double> xs = range(1, 200);
  std::vector<double> values(xs.size());
  EXPECT_LE(engine.SweepPart(code, xs, values), 32u);
  EXPECT_LE(engine.SweepPart(code + "+", xs, values), 32u) << "rejected";
  graphCode('g') = "x" + code.substr(8, 10'800);  // "(x)" takes the place of each x
  EXPECT_LE(engine.SweepPart("g(x)", xs, values), 32u) << "long when it is expanded";
  EXPECT_LE(engine.CurvePart(code, "t", xs, values, values), 32u);
  EXPECT_EQ(engine.SweepPart("x+1", xs, values), 200u);
  EXPECT_EQ(engine.SweepPart("x+1", {}, values), 0u);
}

TEST_F(Sweeps, GiveManyValuesOfShortCodesAtOnce) {
  const std::vector<double> xs = range(1, 5000);
  std::vector<double> values(xs.size());
  EXPECT_EQ(engine.SweepPart("x+1", xs, values), xs.size());
  EXPECT_EQ(engine.CurvePart("t+1", "t", xs, values, values), xs.size());
}

TEST_F(Sweeps, GiveFewerValuesOfALongCodeWhereSomeAreEvaluatedByThemselves) {
  std::string code = "9@x";
  while (code.size() + 40 < Engine::kMaxExpandedCode) code += "+2*x";
  const std::vector<double> all_defined = range(1, 200);
  const std::vector<double> with_errors_and_a_fault = range(-10, 200);
  std::vector<double> values(200);
  EXPECT_EQ(engine.SweepPart(code, all_defined, values), 32u);
  EXPECT_EQ(engine.SweepPart(code, with_errors_and_a_fault, values), 16u);
  EXPECT_LE(engine.CurvePart(code + "+", "t", all_defined, values, values), 3u) << "rejected";
  EXPECT_LE(engine.CurvePart("t", code + "+", all_defined, values, values), 3u) << "rejected";
  EXPECT_LE(engine.CurvePart(code, code, all_defined, values, values), 3u) << "replayed";
}

}  // namespace
}  // namespace zel::test
