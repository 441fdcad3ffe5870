#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zel {

/// A keyed dictionary: string keys compared exactly, enumerated in the order in which they were
/// added. A look-up walks a handful of entries; an index serves a dictionary of any size.
template <class Value>
class KeyedDictionary {
 public:
  struct Entry {
    std::string key;
    Value value;
  };

  /// False, and nothing changed, when the key is there already.
  bool Add(std::string_view key, Value value) {
    if (Exists(key)) return false;
    append(key, std::move(value));
    return true;
  }

  /// Changes the value in its place, or adds the key at the end.
  void set(std::string_view key, Value value) {
    const std::size_t place = placeOf(key);
    if (place == entries_.size())
      append(key, std::move(value));
    else
      entries_[place].value = std::move(value);
  }

  /// An empty value for a key that is missing.
  Value Item(std::string_view key) const {
    const std::size_t place = placeOf(key);
    return place == entries_.size() ? Value{} : entries_[place].value;
  }

  /// Null for a key that is missing; until the dictionary changes.
  const Value* find(std::string_view key) const {
    const std::size_t place = placeOf(key);
    return place == entries_.size() ? nullptr : &entries_[place].value;
  }

  /// Moves the value out, which leaves an empty one in its place.
  Value take(std::string_view key) {
    const std::size_t place = placeOf(key);
    return place == entries_.size() ? Value{} : std::exchange(entries_[place].value, Value{});
  }

  bool Exists(std::string_view key) const { return placeOf(key) != entries_.size(); }

  std::size_t Count() const { return entries_.size(); }

  std::vector<std::string> keys() const {
    std::vector<std::string> result;
    result.reserve(entries_.size());
    for (const Entry& entry : entries_) result.push_back(entry.key);
    return result;
  }

  void removeAll() {
    entries_.clear();
    index_.clear();
  }

  auto begin() const { return entries_.begin(); }
  auto end() const { return entries_.end(); }

 private:
  static constexpr std::size_t kMostWalked = 16;
  static constexpr std::size_t kFree = static_cast<std::size_t>(-1);

  /// The count of entries for a key that is missing.
  std::size_t placeOf(std::string_view key) const {
    if (entries_.size() > kMostWalked) return std::min(index_[slotOf(key)], entries_.size());
    std::size_t place = 0;
    while (place < entries_.size() && entries_[place].key != key) ++place;
    return place;
  }

  /// The slot of the index that holds the key's place, or the free one where it belongs.
  std::size_t slotOf(std::string_view key) const {
    const std::size_t mask = index_.size() - 1;
    std::size_t slot = mask & std::hash<std::string_view>{}(key);
    while (index_[slot] != kFree && entries_[index_[slot]].key != key) slot = (slot + 1) & mask;
    return slot;
  }

  void append(std::string_view key, Value value) {
    entries_.push_back({std::string(key), std::move(value)});
    if (entries_.size() <= kMostWalked) return;
    std::size_t next = entries_.size() - 1;
    if (index_.size() < 2 * entries_.size()) {
      index_.assign(std::bit_ceil(4 * entries_.size()), kFree);
      next = 0;
    }
    for (; next < entries_.size(); ++next) index_[slotOf(entries_[next].key)] = next;
  }

  std::vector<Entry> entries_;
  /// A hash table of the entries' places, once there are more than are walked; empty before. Its
  /// size is a power of two, and at least half of it is free.
  std::vector<std::size_t> index_;
};

/// A new empty dictionary. The records of graphs are built with it.
template <class Value = std::string>
std::shared_ptr<KeyedDictionary<Value>> NewDictionary() {
  return std::make_shared<KeyedDictionary<Value>>();
}

}  // namespace zel
