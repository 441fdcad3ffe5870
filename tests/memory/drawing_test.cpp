// Every allocation of a redraw, of a trace and of the check of a formula fails once. Each failure
// reaches the caller, who tells of it, and what comes next is as if it had not been.

#include <cstddef>
#include <iostream>
#include <new>
#include <vector>

#include "engine/formula_check.h"
#include "failing_new.h"
#include "plot/session/plot_session_fixture.h"

namespace zel::test {
namespace {

class PlotInWantOfMemory : public PlotSessionTest {
 protected:
  PlotInWantOfMemory() {
    addFamilyAndFunction();
    addGraph('e', CircumferenceFields{field("0"), field("0"), field("3")});
    openAndDraw();
    whole_ = picture.texts();
  }

  /// Lets each allocation of a call fail in turn. Every failure reaches the caller; `look` runs
  /// behind each, and behind the call that goes through. Returns the number of failures.
  template <class Call, class Look>
  static long expectAllTold(Call call, Look look) {
    long told = 0;
    bool succeeds = false;
    const auto attempt = [&] {
      succeeds = false;
      try {
        call();
        succeeds = true;
      } catch (const std::bad_alloc&) {
        ++told;
      }
    };
    const long failures = failEachAllocation(false, attempt, look);
    EXPECT_TRUE(succeeds);
    EXPECT_EQ(told, failures);
    std::cout << failures << " failures\n";
    return failures;
  }

  Texts whole_;
};

TEST_F(PlotInWantOfMemory, IsDrawnWholeByTheNextRedraw) {
  engine.SetP(0.5);
  const long failures = expectAllTold([&] { session.redraw(); },
                                      [&] {
                                        EXPECT_EQ(engine.GetP(), 0.5);
                                        screen.statuses.clear();
                                      });
  EXPECT_EQ(picture.texts(), whole_);
  EXPECT_EQ(listener.messages, Texts());
  EXPECT_GT(failures, 2 * Drawing::kMostNested);  // none of them counts as a redraw under way
}

TEST_F(PlotInWantOfMemory, IsTracedAfterAFailure) {
  addFunction('d', "x^2/2-3+0*x+0*x+0*x");  // a copy of it needs memory
  ASSERT_TRUE(session.activate('d'));
  session.execute(PlotCommand::recorrer);
  ASSERT_TRUE(session.cursor());
  const double before = session.tracePosition();
  std::vector<double> positions;
  const long failures = expectAllTold([&] { session.execute(PlotCommand::recorrer_adelante); },
                                      [&] { positions.push_back(session.tracePosition()); });
  EXPECT_GT(failures, 1);
  std::vector<double> expected(static_cast<std::size_t>(failures), before);
  expected.push_back(before + 1);  // a sample at every integer
  EXPECT_EQ(positions, expected);
  session.execute(PlotCommand::recorrer_adelante);
  EXPECT_EQ(session.tracePosition(), before + 2);
}

TEST_F(PlotInWantOfMemory, KeepsItsEngineAsItWas) {
  for (const std::string formula : {"sen(x)+d(x)^2", "lngamma(x+1)/inv(x)-3#0", "raiz2(-x)"}) {
    Engine fresh([this](char letter) { return graphs.codeOf(letter); });
    std::string expected;
    const bool passes = CheckFormula(fresh, formula, expected);
    const auto check = [&] {
      std::string said;
      EXPECT_EQ(CheckFormula(engine, formula, said), passes) << formula;
      EXPECT_EQ(said, expected) << formula;
    };
    EXPECT_GT(expectAllTold(check, check), 0) << formula;
  }
}

}  // namespace
}  // namespace zel::test
