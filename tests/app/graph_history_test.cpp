#include "app/graph_history.h"

#include <gtest/gtest.h>

namespace zel {
namespace {

/// A table with one function, whose formula is this text.
GraphTable tableWith(const std::string& formula) {
  GraphTable graphs;
  graphs.rebuildGraph('a', formula, "", 255, 'F', nullptr);
  return graphs;
}

GraphsState stateWith(const std::string& formula) { return {tableWith(formula), std::nullopt}; }

std::string formulaOf(const GraphsState& state) { return state.graphs.graph('a')->ecuacion; }

/// Undoes as often as that can be done; the formulas that come back.
std::vector<std::string> undoAll(GraphHistory& history) {
  std::vector<std::string> formulas;
  GraphsState now = stateWith("now");
  while (history.undoable()) {
    now = history.undo(std::move(now));
    formulas.push_back(formulaOf(now));
  }
  return formulas;
}

TEST(GraphHistory, BeginsWithNothingToUndoOrRedo) {
  const GraphHistory history;
  EXPECT_EQ(history.undoable(), nullptr);
  EXPECT_EQ(history.redoable(), nullptr);
}

TEST(GraphHistory, GivesStatesBackInTheOrderOfTheirChangesAndAgain) {
  GraphHistory history;
  history.record(stateWith("1"));
  history.record(stateWith("2"));
  EXPECT_EQ(formulaOf(*history.undoable()), "2");
  GraphsState state = history.undo(stateWith("3"));
  EXPECT_EQ(formulaOf(state), "2");
  state = history.undo(std::move(state));
  EXPECT_EQ(formulaOf(state), "1");
  EXPECT_EQ(history.undoable(), nullptr);
  state = history.redo(std::move(state));
  EXPECT_EQ(formulaOf(state), "2");
  state = history.redo(std::move(state));
  EXPECT_EQ(formulaOf(state), "3");
  EXPECT_EQ(history.redoable(), nullptr);
  EXPECT_EQ(formulaOf(*history.undoable()), "2");
}

TEST(GraphHistory, ForgetsWhatWasUndoneAtTheNextChange) {
  GraphHistory history;
  history.record(stateWith("1"));
  history.undo(stateWith("2"));
  history.record(stateWith("1"));
  EXPECT_EQ(history.redoable(), nullptr);
}

TEST(GraphHistory, KeepsAHundredStepsAndForgetsTheOldest) {
  GraphHistory history;
  for (std::size_t i = 1; i <= GraphHistory::kMostSteps; ++i)
    history.record(stateWith(std::to_string(i)));
  GraphHistory one_more = history;
  EXPECT_EQ(undoAll(history).size(), GraphHistory::kMostSteps);
  one_more.record(stateWith("last"));
  const auto formulas = undoAll(one_more);
  ASSERT_EQ(formulas.size(), GraphHistory::kMostSteps);
  EXPECT_EQ(formulas.front(), "last");
  EXPECT_EQ(formulas.back(), "2");
}

TEST(GraphHistory, KeepsSoManyBytesOfTextAndTheLastStepInAnyCase) {
  const auto stateOfSize = [](std::size_t bytes) {
    GraphDef def;
    def.nombre = 'a';
    def.carpeta.assign(bytes, '1');
    GraphsState state;
    state.graphs.storeGraph(def);
    return state;
  };
  GraphHistory history;
  for (int i = 0; i < 3; ++i) history.record(stateOfSize(GraphHistory::kMostBytes / 3));
  EXPECT_EQ(undoAll(history).size(), 2u);
  GraphHistory other;
  other.record(stateWith("1"));
  other.record(stateOfSize(GraphHistory::kMostBytes));
  EXPECT_EQ(undoAll(other).size(), 1u);
}

TEST(DifferingLetters, NamesGraphsThatCameWentOrChanged) {
  const GraphTable before = tableWith("x");
  GraphTable now = before;
  EXPECT_EQ(differingLetters(before, now), "");
  now.rebuildGraph('c', "x", "", 255, 'F', nullptr);
  EXPECT_EQ(differingLetters(before, now), "c");
  EXPECT_EQ(differingLetters(now, before), "c");
  now.rebuildGraph('a', "x+1", "", 255, 'F', nullptr);
  EXPECT_EQ(differingLetters(before, now), "ac");
  now.rebuildGraph('a', "x", "", 128, 'F', nullptr);
  EXPECT_EQ(differingLetters(before, now), "ac");
  now.freeGraph('c');
  now.rebuildGraph('a', "x", "", 255, 'F', nullptr);
  EXPECT_EQ(differingLetters(before, now), "");
}

TEST(DifferingLetters, LooksAtParameters) {
  const auto withStep = [](const char* step) {
    auto parameters = NewDictionary();
    parameters->Add("variacion", step);
    GraphTable graphs;
    graphs.rebuildGraph('z', "p*x", "", 255, 'Z', parameters);
    return graphs;
  };
  EXPECT_EQ(differingLetters(withStep("1"), withStep("1")), "");
  EXPECT_EQ(differingLetters(withStep("1"), withStep("2")), "z");
}

}  // namespace
}  // namespace zel
