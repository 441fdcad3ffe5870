#include "base/dictionary.h"

#include <gtest/gtest.h>

namespace zel::test {
namespace {

using Dictionary = KeyedDictionary<std::string>;
using Keys = std::vector<std::string>;

TEST(KeyedDictionary, EnumeratesInTheOrderOfAdding) {
  Dictionary dictionary;
  for (const char* const key : {"h", "k", "a", "c"}) EXPECT_TRUE(dictionary.Add(key, key));
  EXPECT_EQ(dictionary.keys(), (Keys{"h", "k", "a", "c"}));
  EXPECT_EQ(dictionary.Count(), 4u);
  std::string seen;
  for (const auto& [key, value] : dictionary) seen += key + "=" + value + ";";
  EXPECT_EQ(seen, "h=h;k=k;a=a;c=c;");
}

TEST(KeyedDictionary, RefusesAKeyThatIsThereAndKeepsItsValue) {
  Dictionary dictionary;
  EXPECT_TRUE(dictionary.Add("h", "1"));
  EXPECT_FALSE(dictionary.Add("h", "2"));
  EXPECT_EQ(dictionary.Item("h"), "1");
  EXPECT_EQ(dictionary.Count(), 1u);
}

TEST(KeyedDictionary, ComparesKeysExactly) {
  Dictionary dictionary;
  EXPECT_TRUE(dictionary.Add("h", "1"));
  EXPECT_TRUE(dictionary.Add("H", "2"));
  EXPECT_TRUE(dictionary.Add("", "3"));
  EXPECT_FALSE(dictionary.Exists("h "));
  EXPECT_EQ(dictionary.Item(""), "3");
}

TEST(KeyedDictionary, GivesAnEmptyValueForAMissingKeyAndDoesNotAddIt) {
  const Dictionary dictionary;
  EXPECT_EQ(dictionary.Item("h"), "");
  EXPECT_FALSE(dictionary.Exists("h"));
  EXPECT_EQ(dictionary.Count(), 0u);
}

TEST(KeyedDictionary, SetsAValueInItsPlaceOrAtTheEnd) {
  Dictionary dictionary;
  dictionary.set("a", "1");
  dictionary.set("b", "2");
  dictionary.set("a", "3");
  EXPECT_EQ(dictionary.keys(), (Keys{"a", "b"}));
  EXPECT_EQ(dictionary.Item("a"), "3");
}

TEST(KeyedDictionary, StartsAgainAfterRemoveAll) {
  Dictionary dictionary;
  for (int i = 0; i < 100; ++i) dictionary.Add(std::to_string(i), "old");
  dictionary.removeAll();
  EXPECT_EQ(dictionary.Count(), 0u);
  EXPECT_FALSE(dictionary.Exists("99"));
  for (int i = 0; i < 100; ++i) EXPECT_TRUE(dictionary.Add(std::to_string(i), "new"));
  EXPECT_EQ(dictionary.Item("99"), "new");
}

TEST(KeyedDictionary, KeepsItsPromisesAtAnySize) {
  for (int size = 0; size < 50; ++size) {
    Dictionary dictionary;
    Keys keys;
    for (int i = 0; i < size; ++i) {
      keys.push_back(std::to_string(i));
      EXPECT_TRUE(dictionary.Add(keys.back(), keys.back()));
    }
    dictionary.set("0", "first");
    EXPECT_EQ(dictionary.Item("0"), "first");
    for (int i = 1; i < size; ++i) {
      EXPECT_EQ(dictionary.Item(keys[static_cast<std::size_t>(i)]), std::to_string(i));
      EXPECT_FALSE(dictionary.Add(keys[static_cast<std::size_t>(i)], ""));
    }
    EXPECT_FALSE(dictionary.Exists("missing"));
    if (size > 0) {
      EXPECT_EQ(dictionary.keys(), keys);
    }
  }
}

TEST(KeyedDictionary, TakesManyKeysInTimeThatGrowsWithThem) {
  Dictionary dictionary;
  for (int i = 0; i < 200'000; ++i) ASSERT_TRUE(dictionary.Add(std::to_string(i), ""));
  EXPECT_EQ(dictionary.Count(), 200'000u);
}

TEST(KeyedDictionary, ShowsItsOwnValueAndGivesItAway) {
  Dictionary dictionary;
  dictionary.Add("h", "1");
  ASSERT_NE(dictionary.find("h"), nullptr);
  EXPECT_EQ(*dictionary.find("h"), "1");
  EXPECT_EQ(dictionary.find("k"), nullptr);
  EXPECT_EQ(dictionary.take("h"), "1");
  EXPECT_EQ(dictionary.take("k"), "");
  EXPECT_EQ(dictionary.keys(), std::vector<std::string>{"h"});
  EXPECT_EQ(dictionary.Item("h"), "");
}

TEST(Dictionary, IsNewAndEmptyAtFirst) {
  const auto one = NewDictionary();
  const auto other = NewDictionary<int>();
  EXPECT_EQ(one->Count() + other->Count(), 0u);
  EXPECT_TRUE(one->Add("h", "1"));
  EXPECT_EQ(NewDictionary()->Count(), 0u);
}

}  // namespace
}  // namespace zel::test
