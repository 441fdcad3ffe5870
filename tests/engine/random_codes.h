#pragma once

#include <cstddef>
#include <random>
#include <string>

namespace zel::test {

/// Codes of all kinds, the same ones for the same seed: well-formed ones of any size, some of them
/// with graph calls or longer than the parse cache, some that fault or fail at most x, and some
/// that the grammar rejects.
class RandomCodes {
 public:
  /// What the codes are made of: everything, or only what is rounded correctly by any machine.
  enum class Vocabulary { all, arithmetic };

  explicit RandomCodes(std::uint64_t seed, Vocabulary vocabulary = Vocabulary::all)
      : random_(seed), is_arithmetic_(vocabulary == Vocabulary::arithmetic) {}

  std::string code();
  /// A code that faults on one side of some x, with more to take apart behind it.
  std::string faultingCode();
  /// One x as users have them, or one from the edges of what there is.
  double number();
  std::size_t below(std::size_t count) { return static_cast<std::size_t>(random_() % count); }
  bool oneIn(std::size_t count) { return below(count) == 0; }

 private:
  std::string expression(std::size_t operators);
  std::string atom();
  std::string operand(std::size_t operators);
  std::string function();
  std::string damaged(std::string code);

  std::mt19937_64 random_;
  bool is_arithmetic_;
};

}  // namespace zel::test
