// The code is reduced as its grammar says: split at the main operator, the left part first, then
// the right one, then the operator on two number texts. A stack of its own takes the place of
// recursion, so that a deep formula costs memory in proportion to its length and nothing else.

#include "engine/reference/reducer.h"

#include <optional>

#include "base/language.h"
#include "engine/function_library.h"

namespace zel {
namespace {

constexpr std::string_view kEulerText = "2,71828182845905";
static_assert(kEuler == 2.71828182845905);

/// An operand as a number: the text of a name that has no value yet is empty and reads as 0.
std::optional<double> readOperand(std::string_view text) {
  return text.empty() ? 0.0 : readNumber(text);
}

std::string_view textOf(char name, const NameTexts& names) {
  switch (name) {
    case 'x': return names.x;
    case 't': return names.t;
    case 'p': return names.p;
    default: return kEulerText;
  }
}

}  // namespace

Outcome::Kind Reducer::reduce(std::string_view code, const NameTexts& names) {
  stack_.clear();
  message_.clear();
  Splitter splitter;
  std::string_view text = code;
  for (;;) {
    const Descent descent = descend(text, cache_, splitter);
    if (descent.kind == Descent::Kind::split) {
      stack_.push_back({descent.split, {}, false});
      text = descent.split.left;
      continue;
    }
    if (!borrow(descent, names)) return Outcome::Kind::error;
    // The value goes up until a split still waits for its right operand.
    while (!stack_.empty() && stack_.back().has_left) {
      const Outcome::Kind kind = apply(stack_.back());
      if (kind != Outcome::Kind::value) return kind;
      stack_.pop_back();
    }
    if (stack_.empty()) return Outcome::Kind::value;
    stack_.back().left = value_;
    stack_.back().has_left = true;
    text = stack_.back().split.right;
  }
}

bool Reducer::borrow(const Descent& leaf, const NameTexts& names) {
  switch (leaf.kind) {
    case Descent::Kind::number: value_.borrow(leaf.text); return true;
    case Descent::Kind::name: value_.borrow(textOf(leaf.text[0], names)); return true;
    case Descent::Kind::user_function: raiseUnknownElement(); return false;
    default: raise(SplitMessage(leaf.split.failure, leaf.text)); return false;
  }
}

Outcome::Kind Reducer::apply(const Pending& pending) {
  const std::string_view op = pending.split.op;
  const auto left = readOperand(pending.left.text());
  const auto right = readOperand(value_.text());
  if (!left || !right) return Outcome::Kind::fault;
  if (op.size() != 1 || OperatorPrecedence.find(op[0]) == std::string_view::npos) {
    raiseUnknownElement();  // read on in the wrong place: nothing to apply leaves no value
    return Outcome::Kind::error;
  }
  Outcome outcome = ApplyOperator(*left, *right, op[0]);
  if (outcome.kind == Outcome::Kind::error) raise(std::move(outcome.message));
  if (outcome.kind == Outcome::Kind::value) value_.write(outcome.value);
  return outcome.kind;
}

void Reducer::raiseUnknownElement() {
  raise(Localize("Error: No se entiende el elemento: ") + "\r\n" +
        Localize("Función ingresada por usuario"));
}

}  // namespace zel
