// Two stacks of whole states. A change puts the state before it on the first one and empties the
// second; undo and redo move a state from one stack to the other and exchange it for the present
// one. So the states never get more by undoing, and the bounds are looked at when a change is
// recorded. States share the graphs that they have in common, and each counts them as its own.

#include "app/graph_history.h"

#include <algorithm>
#include <utility>

namespace zel {
namespace {

std::size_t bytesOf(const Parameters& parameters) {
  std::size_t bytes = 0;
  for (const auto& [key, value] : parameters) bytes += key.size() + value.size();
  return bytes;
}

std::size_t bytesOf(const DocumentState& document) {
  const MainView& view = document.view;
  return bytesOf(document.header) + view.xi.size() + view.xf.size() + view.yi.size() +
         view.yf.size() + view.escala_x.size() + view.escala_y.size();
}

std::size_t bytesOf(const GraphsState& state) {
  std::size_t bytes = sizeof(GraphsState);
  for (char letter = 'a'; letter <= 'z'; ++letter) {
    const GraphDef& def = *state.graphs.slot(letter);
    bytes += def.ecuacion.size() + def.codigo.size() + def.carpeta.size();
    if (def.parameters) bytes += bytesOf(*def.parameters);
  }
  if (state.document) bytes += bytesOf(*state.document);
  return bytes;
}

bool isSame(const Parameters& one, const Parameters& other) {
  const auto is_same = [](const auto& a, const auto& b) {
    return a.key == b.key && a.value == b.value;
  };
  return std::equal(one.begin(), one.end(), other.begin(), other.end(), is_same);
}

bool isSame(const GraphDef& one, const GraphDef& other) {
  if (!one.defined || !other.defined) return one.defined == other.defined;
  const Parameters none;
  return one.ecuacion == other.ecuacion && one.codigo == other.codigo && one.color == other.color &&
         one.tipo == other.tipo && one.carpeta == other.carpeta &&
         isSame(one.parameters ? *one.parameters : none,
                other.parameters ? *other.parameters : none);
}

/// Takes the last state off one stack, and puts the present one on the other: first, because that
/// needs memory.
GraphsState exchange(std::deque<GraphsState>& from, std::deque<GraphsState>& to, GraphsState now) {
  to.push_back(std::move(now));
  GraphsState then = std::move(from.back());
  from.pop_back();
  return then;
}

}  // namespace

void GraphHistory::record(GraphsState before) {
  done_.push_back(std::move(before));
  undone_.clear();
  std::size_t bytes = 0;
  std::size_t kept = 0;
  for (auto state = done_.rbegin(); state != done_.rend() && kept < kMostSteps; ++state, ++kept) {
    bytes += bytesOf(*state);
    if (bytes > kMostBytes && kept > 0) break;
  }
  done_.erase(done_.begin(), done_.end() - static_cast<std::ptrdiff_t>(kept));
}

GraphsState GraphHistory::undo(GraphsState now) { return exchange(done_, undone_, std::move(now)); }

GraphsState GraphHistory::redo(GraphsState now) { return exchange(undone_, done_, std::move(now)); }

std::string differingLetters(const GraphTable& one, const GraphTable& other) {
  std::string letters;
  for (char letter = 'a'; letter <= 'z'; ++letter) {
    if (!isSame(*one.slot(letter), *other.slot(letter))) letters += letter;
  }
  return letters;
}

}  // namespace zel
