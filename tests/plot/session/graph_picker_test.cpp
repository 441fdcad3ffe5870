#include "plot/session/graph_picker.h"

#include "plot/plot_fixture.h"

namespace zel::test {
namespace {

class GraphPicker : public PlotTest {
 protected:
  std::optional<PickedGraph> pick(char active, double x, double y) {
    Walk walk(engine, [] { return true; });
    return pickGraph(engine, graphs, active, {x, y}, walk);
  }
  char letterAt(char active, double x, double y) {
    const auto picked = pick(active, x, y);
    return picked ? picked->letter : '-';
  }
};

TEST_F(GraphPicker, PicksTheNearestGraph) {
  addFunction('a', "3");
  addFunction('c', "1");
  addFunction('z', "0-2");
  EXPECT_EQ(letterAt('a', 0, 0.9), 'c');
  EXPECT_EQ(letterAt('a', 0, 9), 'a');
  EXPECT_EQ(letterAt('c', 0, -1), 'z');
}

TEST_F(GraphPicker, AtATieTheEarlierInCyclicOrderFromTheActiveOneStays) {
  addFunction('a', "1");
  addFunction('c', "0-1");
  addFunction('f', "1");
  EXPECT_EQ(letterAt('a', 0, 0), 'a');
  EXPECT_EQ(letterAt('c', 0, 0), 'c');
  EXPECT_EQ(letterAt('f', 0, 0), 'f');
  EXPECT_EQ(letterAt('d', 0, 0), 'f');
  EXPECT_EQ(letterAt('g', 0, 0), 'a');
}

TEST_F(GraphPicker, TheFirstThatHasAValueIsPickedHoweverFarItIs) {
  addFunction('a', "1/x");
  addFunction('b', "1E+300");
  EXPECT_EQ(letterAt('a', 0, 0), 'b');
}

TEST_F(GraphPicker, NothingIsPickedWhereNoGraphHasAValue) {
  EXPECT_FALSE(pick('a', 0, 0));
  addFunction('a', "1/x");
  EXPECT_FALSE(pick('a', 0, 0));
}

TEST_F(GraphPicker, AConicCountsWithBothBranches) {
  addFunction('a', "0-1");
  addGraph('b', CircumferenceFields{field("0"), field("0"), field("3")});
  EXPECT_EQ(letterAt('a', 0, -2.5), 'b');
  EXPECT_EQ(letterAt('a', 0, 2.5), 'b');
  EXPECT_EQ(letterAt('a', 0, 0), 'a');
}

TEST_F(GraphPicker, TheMemberOfAFamilyIsSetInTheEngine) {
  addGraph('a', FamilyFields{field("P*x"), field("0"), field("3"), field("1")});
  const auto picked = pick('a', 2, 3.5);
  ASSERT_TRUE(picked);
  EXPECT_EQ(picked->member, 2);
  EXPECT_EQ(engine.GetP(), 2);
}

TEST_F(GraphPicker, AMemberOfAFamilyCompetesWithFunctions) {
  addGraph('a', FamilyFields{field("P"), field("0"), field("3"), field("1")});
  addFunction('b', "1,25");
  EXPECT_EQ(pick('a', 0, 1.2)->letter, 'b');
  EXPECT_EQ(pick('a', 0, 1.2)->member, std::nullopt);
  EXPECT_EQ(pick('a', 0, 1.05)->member, 1);
}

TEST_F(GraphPicker, LooksAtTheFirstMembersOfAFamilyWithoutEnd) {
  graphs.storeGraph(graphOf('Z', {{"inicio", "0"}, {"fin", "1E+9"}, {"variacion", "1"}}, "p"));
  EXPECT_EQ(pick('a', 0, 1e8)->member, kMostPickedMembers - 1);
  graphs.storeGraph(graphOf('Z', {{"inicio", "2"}, {"fin", "3"}, {"variacion", "0"}}, "p"));
  EXPECT_EQ(pick('a', 0, 5)->member, 2);
  graphs.storeGraph(graphOf('Z', {{"inicio", ""}, {"fin", "3"}, {"variacion", "1"}}, "p"));
  EXPECT_FALSE(pick('a', 0, 5));
}

TEST_F(GraphPicker, LooksAtTheGraphsThatWereThereWhenItBegan) {
  graphs.storeGraph(
      graphOf('Z', {{"inicio", "0"}, {"fin", "99"}, {"variacion", "1"}}, longFormula("p")));
  addFunction('b', "5,25");
  Walk walk(engine, [&] {
    graphs.clearGraphs();
    return true;
  });
  const auto picked = pickGraph(engine, graphs, 'a', {0, 5.25}, walk);
  EXPECT_EQ(graphs.count(), 0);
  ASSERT_TRUE(picked);
  EXPECT_EQ(picked->letter, 'b');
}

TEST_F(GraphPicker, TakesNoCopyOfAGraph) {
  graphs.storeGraph(
      graphOf('Z', {{"inicio", "0"}, {"fin", "99"}, {"variacion", "1"}}, longFormula("p")));
  const auto owners = [this] { return graphs.slot('a')->parameters.use_count(); };
  const auto before = owners();
  int looks = 0;
  Walk walk(engine, [&] {
    EXPECT_EQ(owners(), before);
    return ++looks > 0;
  });
  EXPECT_TRUE(pickGraph(engine, graphs, 'a', {0, 5}, walk));
  EXPECT_GT(looks, 0);
}

TEST_F(GraphPicker, AWalkThatIsEndedPicksNothingAndPutsTheParameterBack) {
  graphs.storeGraph(
      graphOf('Z', {{"inicio", "0"}, {"fin", "1E+9"}, {"variacion", "1"}}, longFormula("p")));
  addFunction('b', "5");
  engine.SetP(7);
  int looks = 0;
  Walk walk(engine, [&] { return ++looks < 2; });
  EXPECT_FALSE(pickGraph(engine, graphs, 'a', {0, 5}, walk));
  EXPECT_EQ(looks, 2);
  EXPECT_EQ(engine.GetP(), 7);
}

}  // namespace
}  // namespace zel::test
