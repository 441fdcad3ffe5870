// Calls of other graphs are replaced as text, letter by letter from "a" to "z", in the code as
// expanded so far: the first call of a letter is found, its argument is put in for every "x" of
// that graph's code, and every call with this very argument is replaced. A code that calls a letter
// twice with different arguments keeps the later call, and one that calls an earlier letter keeps
// that.

#include "engine/reference/reference_expansion.h"

#include "base/text.h"

namespace zel {
namespace {

std::size_t countOccurrences(std::string_view text, std::string_view part) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != std::string_view::npos;
       at = text.find(part, at + part.size()))
    ++count;
  return count;
}

/// replaceAll, unless the result is larger than the limit.
std::optional<std::string> replaceWithin(std::string_view text, std::string_view from,
                                         std::string_view to, std::size_t limit) {
  const std::size_t count = countOccurrences(text, from);
  if (text.size() - count * from.size() + count * to.size() > limit) return std::nullopt;
  return replaceAll(text, from, to);
}

/// The argument of a call, with its parentheses; `text` begins at the opening one. Empty when it is
/// never closed.
std::string_view argumentAt(std::string_view text) {
  std::size_t depth = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '(') ++depth;
    if (text[i] == ')' && --depth == 0) return text.substr(0, i + 1);
  }
  return {};
}

bool hasCall(std::string_view text) {
  for (std::size_t i = 1; i < text.size(); ++i)
    if (text[i] == '(' && text[i - 1] >= 'a' && text[i - 1] <= 'z') return true;
  return false;
}

}  // namespace

std::optional<std::string> ExpandReferences(std::string_view code, const GraphCodes& graphs,
                                            std::size_t limit) {
  if (code.size() > limit) return std::nullopt;
  std::string expanded(code);
  if (!hasCall(code)) return expanded;
  for (char letter = 'a'; letter <= 'z'; ++letter) {
    const std::string opening = {letter, '('};
    const std::size_t call = expanded.find(opening);
    if (call == std::string::npos) continue;
    const std::string argument(argumentAt(std::string_view(expanded).substr(call + 1)));
    if (argument.empty()) continue;
    const auto body = replaceWithin(graphs ? graphs(letter) : "", "x", argument, limit);
    if (!body) return std::nullopt;
    auto replaced = replaceWithin(expanded, letter + argument, *body, limit);
    if (!replaced) return std::nullopt;
    expanded = std::move(*replaced);
  }
  return expanded;
}

}  // namespace zel
