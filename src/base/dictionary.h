#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
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
    places_.clear();
  }

  auto begin() const { return entries_.begin(); }
  auto end() const { return entries_.end(); }

 private:
  struct Hash {
    using is_transparent = void;
    std::size_t operator()(std::string_view key) const {
      return std::hash<std::string_view>{}(key);
    }
  };

  static constexpr std::size_t kMostWalked = 16;

  /// The count of entries for a key that is missing.
  std::size_t placeOf(std::string_view key) const {
    if (entries_.size() > kMostWalked) {
      const auto found = places_.find(key);
      return found == places_.end() ? entries_.size() : found->second;
    }
    std::size_t place = 0;
    while (place < entries_.size() && entries_[place].key != key) ++place;
    return place;
  }

  void append(std::string_view key, Value value) {
    entries_.push_back({std::string(key), std::move(value)});
    if (entries_.size() <= kMostWalked) return;
    for (std::size_t place = places_.size(); place < entries_.size(); ++place)
      places_.emplace(entries_[place].key, place);
  }

  std::vector<Entry> entries_;
  /// Of all entries, once there are more than are walked; empty before.
  std::unordered_map<std::string, std::size_t, Hash, std::equal_to<>> places_;
};

}  // namespace zel
