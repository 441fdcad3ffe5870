#include "graphs/graph_table.h"

#include <gtest/gtest.h>

namespace zel::test {
namespace {

constexpr char kBeforeA = '`';
constexpr char kAfterZ = '{';

GraphDef functionNamed(char letter) {
  GraphDef def;
  def.nombre = letter;
  def.ecuacion = std::string("x+") + letter;
  def.tipo = 'F';
  def.defined = true;
  return def;
}

GraphTable tableWith(std::string_view letters) {
  GraphTable table;
  for (const char letter : letters) table.storeGraph(functionNamed(letter));
  return table;
}

char next(const GraphTable& table, std::optional<char> letter = std::nullopt) {
  const GraphDef* const def = table.nextDefined(letter);
  return def ? def->nombre : '!';
}

char previous(const GraphTable& table, std::optional<char> letter = std::nullopt) {
  const GraphDef* const def = table.previousDefined(letter);
  return def ? def->nombre : '!';
}

TEST(GraphTable, StartsWithTwentySixFreeSlots) {
  const GraphTable table;
  EXPECT_EQ(table.count(), 0);
  for (char letter = 'a'; letter <= 'z'; ++letter) {
    const auto def = table.graph(letter);
    ASSERT_TRUE(def) << letter;
    EXPECT_EQ(def->nombre, letter);
    EXPECT_FALSE(def->defined);
    EXPECT_EQ(def->parameters, nullptr);
  }
}

TEST(GraphTable, HasNoSlotOutsideTheLowerCaseLetters) {
  GraphTable table;
  for (const char letter : {kBeforeA, kAfterZ, 'A', '\0', '\xF1'}) {
    EXPECT_EQ(table.graph(letter), std::nullopt);
    EXPECT_FALSE(table.storeGraph(functionNamed(letter)));
    EXPECT_FALSE(table.freeGraph(letter));
    EXPECT_FALSE(table.rebuildGraph(letter, "x", "", 0, 'F', nullptr));
    EXPECT_EQ(table.codeOf(letter), "");
  }
  EXPECT_EQ(table.count(), 0);
}

TEST(GraphTable, GivesACopyOfASlot) {
  GraphTable table = tableWith("a");
  auto def = table.graph('a');
  def->ecuacion = "changed";
  EXPECT_EQ(table.graph('a')->ecuacion, "x+a");
}

TEST(GraphTable, SharesItsGraphsWithItsCopiesUntilOneOfThemChanges) {
  const GraphTable table = tableWith("ab");
  GraphTable copy = table;
  EXPECT_EQ(copy.slot('a'), table.slot('a'));
  copy.freeGraph('a');
  copy.storeGraph(functionNamed('c'));
  EXPECT_EQ(copy.slot('b'), table.slot('b'));
  EXPECT_TRUE(table.slot('a')->defined);
  EXPECT_FALSE(table.slot('c')->defined);
  copy.clearGraphs();
  EXPECT_TRUE(table.slot('b')->defined);
}

TEST(GraphTable, CountsAGraphThatIsStoredTwiceOnce) {
  GraphTable table = tableWith("a");
  GraphDef again = functionNamed('a');
  again.ecuacion = "x^2";
  EXPECT_TRUE(table.storeGraph(again));
  EXPECT_EQ(table.count(), 1);
  EXPECT_EQ(table.graph('a')->ecuacion, "x^2");
}

TEST(GraphTable, LeavesTheFlagOfWhatIsStoredToTheCaller) {
  GraphTable table;
  GraphDef unused = functionNamed('a');
  unused.defined = false;
  table.storeGraph(unused);
  EXPECT_FALSE(table.graph('a')->defined);
  EXPECT_EQ(table.count(), 1);
}

TEST(GraphTable, KeepsTheOtherFieldsOfAFreedSlot) {
  GraphTable table = tableWith("ab");
  EXPECT_TRUE(table.freeGraph('a'));
  EXPECT_EQ(table.count(), 1);
  const auto def = table.graph('a');
  EXPECT_FALSE(def->defined);
  EXPECT_EQ(def->ecuacion, "x+a");
  EXPECT_EQ(def->tipo, 'F');
}

TEST(GraphTable, LowersTheCountForAFreeSlotToo) {
  GraphTable table;
  EXPECT_TRUE(table.freeGraph('a'));
  EXPECT_EQ(table.count(), -1);
}

TEST(GraphTable, EmptiesEverySlotWhenCleared) {
  GraphTable table = tableWith("az");
  table.rebuildGraph('m', "m(0;0;1)", "", 255, 'C', std::make_shared<Parameters>());
  table.freeGraph('m');
  table.clearGraphs();
  EXPECT_EQ(table.count(), 0);
  for (char letter = 'a'; letter <= 'z'; ++letter) {
    const auto def = table.graph(letter);
    EXPECT_EQ(def->nombre, letter);
    EXPECT_EQ(def->ecuacion + def->codigo + def->carpeta, "");
    EXPECT_EQ(def->color, 0);
    EXPECT_EQ(def->tipo, '\0');
    EXPECT_FALSE(def->defined);
    EXPECT_EQ(def->parameters, nullptr);
  }
}

TEST(GraphTable, ShowsItsOwnSlots) {
  const GraphTable table = tableWith("b");
  ASSERT_NE(table.slot('b'), nullptr);
  EXPECT_TRUE(table.slot('b')->defined);
  EXPECT_FALSE(table.slot('a')->defined);
  for (const char letter : {'A', '`', '{', '\0'}) EXPECT_EQ(table.slot(letter), nullptr);
}

TEST(GraphTable, StartsItsCountAnewWhenInitialised) {
  GraphTable table = tableWith("ab");
  table.initGraphDefinitions();
  EXPECT_EQ(table.count(), 0);
}

TEST(GraphTable, ReturnsItsOnlyGraphInBothDirections) {
  for (const char only : {'a', 'm', 'z'}) {
    const GraphTable table = tableWith({&only, 1});
    EXPECT_EQ(next(table), only);
    EXPECT_EQ(previous(table), only);
    for (char letter = 'a'; letter <= 'z'; ++letter) {
      EXPECT_EQ(next(table, letter), only) << letter;
      EXPECT_EQ(previous(table, letter), only) << letter;
    }
  }
}

TEST(GraphTable, WalksItsGraphsInLetterOrderAndAround) {
  const GraphTable table = tableWith("bdz");
  EXPECT_EQ(next(table, 'a'), 'b');
  EXPECT_EQ(next(table, 'b'), 'd');
  EXPECT_EQ(next(table, 'c'), 'd');
  EXPECT_EQ(next(table, 'd'), 'z');
  EXPECT_EQ(next(table, 'z'), 'b');
  EXPECT_EQ(previous(table, 'a'), 'z');
  EXPECT_EQ(previous(table, 'b'), 'z');
  EXPECT_EQ(previous(table, 'c'), 'b');
  EXPECT_EQ(previous(table, 'z'), 'd');
}

TEST(GraphTable, WalksToItsOwnSlots) {
  const GraphTable table = tableWith("bd");
  EXPECT_EQ(table.nextDefined('b'), table.slot('d'));
  EXPECT_EQ(table.nextDefined('d'), table.slot('b'));
  EXPECT_EQ(table.previousDefined('d'), table.slot('b'));
  EXPECT_EQ(table.previousDefined('b'), table.slot('d'));
}

TEST(GraphTable, BeginsItsWalksAtTheFarEndWithoutALetter) {
  EXPECT_EQ(next(tableWith("bd")), 'b');
  EXPECT_EQ(next(tableWith("bdz")), 'z');
  EXPECT_EQ(previous(tableWith("bd")), 'd');
  EXPECT_EQ(previous(tableWith("abd")), 'a');
}

TEST(GraphTable, TakesTheLettersBeyondTheEndsAsPlacesToStart) {
  const GraphTable table = tableWith("bd");
  EXPECT_EQ(next(table, kBeforeA), 'b');
  EXPECT_EQ(next(table, kAfterZ), 'b');
  EXPECT_EQ(next(table, '~'), 'b');
  EXPECT_EQ(previous(table, kAfterZ), 'd');
  EXPECT_EQ(previous(table, kBeforeA), 'd');
  EXPECT_EQ(previous(table, ' '), 'd');
}

TEST(GraphTable, CannotWalkFromALetterFarOnTheOtherSide) {
  const GraphTable table = tableWith("bd");
  EXPECT_EQ(table.nextDefined('A'), nullptr);
  EXPECT_EQ(table.previousDefined('~'), nullptr);
}

TEST(GraphTable, EndsAWalkOnAFreeSlotWhenNoGraphIsDefined) {
  const GraphTable table;
  for (const auto letter : {std::optional<char>(), std::optional('a'), std::optional('m')}) {
    ASSERT_TRUE(table.nextDefined(letter));
    EXPECT_FALSE(table.nextDefined(letter)->defined);
    ASSERT_TRUE(table.previousDefined(letter));
    EXPECT_FALSE(table.previousDefined(letter)->defined);
  }
}

TEST(GraphTable, GivesTheCodeOfASlotWhetherOrNotItIsInUse) {
  GraphTable table;
  table.rebuildGraph('f', "X+1", "", 0, 'F', nullptr);
  EXPECT_EQ(table.codeOf('f'), "x+1");
  table.freeGraph('f');
  EXPECT_EQ(table.codeOf('f'), "x+1");
  EXPECT_EQ(table.codeOf('g'), "");
}

}  // namespace
}  // namespace zel::test
