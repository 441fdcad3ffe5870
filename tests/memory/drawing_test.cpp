// Every allocation of a redraw, of a trace and of the check of a formula fails once. Each failure
// reaches the caller, who tells of it, and what comes next is as if it had not been.

#include <iostream>
#include <new>

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

  /// Whether a call came to its end.
  template <class Call>
  static bool succeeds(Call call) {
    try {
      call();
      return true;
    } catch (const std::bad_alloc&) {
      return false;
    }
  }

  Texts whole_;
};

TEST_F(PlotInWantOfMemory, IsDrawnWholeByTheNextRedraw) {
  engine.SetP(0.5);
  bool drawn = false;
  const long failures = failEachAllocation(
      false, [&] { drawn = succeeds([&] { session.redraw(); }); },
      [&] {
        EXPECT_EQ(engine.GetP(), 0.5);
        screen.statuses.clear();
      });
  EXPECT_TRUE(drawn);
  EXPECT_EQ(picture.texts(), whole_);
  EXPECT_EQ(listener.messages, Texts());
  std::cout << failures << " failures\n";
  EXPECT_GT(failures, 2 * Drawing::kMostNested);  // none of them counts as a redraw under way
}

TEST_F(PlotInWantOfMemory, IsTracedAfterAFailure) {
  addFunction('d', "x^2/2-3+0*x+0*x+0*x");  // a copy of it needs memory
  ASSERT_TRUE(session.activate('d'));
  session.execute(PlotCommand::recorrer);
  ASSERT_TRUE(session.cursor());
  bool traced = false;
  const long failures = failEachAllocation(
      false, [&] { traced = succeeds([&] { session.execute(PlotCommand::recorrer_adelante); }); },
      [] {});
  EXPECT_TRUE(traced);
  const double x = session.tracePosition();
  session.execute(PlotCommand::recorrer_adelante);
  EXPECT_GT(session.tracePosition(), x);
  std::cout << failures << " failures\n";
}

TEST_F(PlotInWantOfMemory, KeepsItsEngineAsItWas) {
  for (const std::string formula : {"sen(x)+d(x)^2", "lngamma(x+1)/inv(x)-3#0", "raiz2(-x)"}) {
    Engine fresh([this](char letter) { return graphs.codeOf(letter); });
    std::string expected;
    const bool passes = CheckFormula(fresh, formula, expected);
    failEachAllocation(
        false,
        [&] {
          succeeds([&] {
            std::string said;
            CheckFormula(engine, formula, said);
          });
        },
        [&] {
          std::string said;
          EXPECT_EQ(CheckFormula(engine, formula, said), passes) << formula;
          EXPECT_EQ(said, expected) << formula;
        });
  }
}

}  // namespace
}  // namespace zel::test
