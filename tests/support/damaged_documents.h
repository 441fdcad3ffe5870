#pragma once

#include <cstddef>
#include <random>
#include <string>
#include <vector>

namespace zel::test {

/// Documents with any damage, as the bytes of files: the same number gives the same one. The first
/// are a sound document that ends at each of its bytes, the others have up to three damages of any
/// kind.
class DamagedDocuments {
 public:
  /// How many the tests look at, and how many of them there are because of a byte.
  static constexpr std::size_t kCount = 10'000;
  static std::size_t truncations() { return sound().size(); }

  /// A document of seven graphs, with every kind of graph and one that is none.
  static const std::string& sound();

  std::string document(std::size_t number);

 private:
  std::size_t below(std::size_t count) { return static_cast<std::size_t>(random_() % count); }
  std::string damaged(const std::string& text);
  std::string damagedLines(const std::string& text);
  std::string damagedNumber(const std::string& text);
  std::string damagedBytes(std::string text);
  std::string damagedEncoding(const std::string& text);

  std::mt19937 random_;
};

}  // namespace zel::test
