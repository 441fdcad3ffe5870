// Each field is put alone through the checks that an accept makes of it, and what they would
// complain of is told in a few words. Which checks a field has depends on its kind and on its
// place, as in the builders; a parabola is built, for its numbers alone do not tell whether it has
// a value.

#include "app/editor/field_hints.h"

#include <algorithm>
#include <string_view>
#include <utility>
#include <variant>

#include "base/language.h"
#include "base/text.h"
#include "engine/formula_check.h"
#include "engine/formula_names.h"
#include "numbers/number_text.h"

namespace zel {
namespace {

using Hints = std::vector<FieldHint>;

std::string inLanguage(const char* spanish, const char* english, std::string_view argument = {}) {
  return replaceAll(CurrentLanguage() == "EN" ? english : spanish, "%1", argument);
}

FieldHint refusal(std::string text) { return {HintTone::refusal, std::move(text)}; }
FieldHint note(std::string text) { return {HintTone::note, std::move(text)}; }

std::string_view firstLine(std::string_view message) {
  return message.substr(0, message.find_first_of("\r\n"));
}

/// Whether a place in a text is in the middle of a character.
bool isInside(std::string_view text, std::size_t at) {
  return at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80;
}

/// So many characters before or behind a place, or the end of the text.
std::size_t before(std::string_view text, std::size_t at, int characters) {
  for (; characters > 0 && at > 0; --characters)
    while (isInside(text, --at)) continue;
  return at;
}
std::size_t behind(std::string_view text, std::size_t at, int characters) {
  for (; characters > 0 && at < text.size(); --characters)
    while (isInside(text, ++at)) continue;
  return at;
}

/// The words and what stands around the place in the formula, with the place marked.
FieldHint refusalAt(const std::string& words, std::string_view formula, std::size_t place,
                    std::size_t size) {
  constexpr int kAround = 12;  // characters
  const std::size_t begin = before(formula, place, kAround);
  const std::size_t end = behind(formula, place + size, kAround);
  FieldHint hint = refusal(words + " ");
  if (begin > 0) hint.text += "…";
  hint.mark = hint.text.size() + place - begin;
  hint.mark_size = size;
  hint.text.append(formula.substr(begin, end - begin));
  if (end < formula.size()) hint.text += "…";
  return hint;
}

FieldHint parenthesisHint(std::string_view formula, const ParenthesisFault& fault) {
  using Kind = ParenthesisFault::Kind;
  switch (fault.kind) {
    case Kind::closes_nothing:
      return refusalAt(inLanguage("Este paréntesis sobra:", "This parenthesis closes nothing:"),
                       formula, fault.place, 1);
    case Kind::holds_nothing:
      return refusalAt(inLanguage("Paréntesis vacíos:", "Nothing in the parentheses:"), formula,
                       fault.place, 2);
    default:
      return refusalAt(inLanguage("Falta cerrar el paréntesis:", "This parenthesis is not closed:"),
                       formula, fault.place, 1);
  }
}

std::string unknownNameText(const UnknownName& unknown) {
  return unknown.is_call
             ? inLanguage("No hay una función «%1» que llamar", "There is no function “%1” to call",
                          unknown.name)
             : inLanguage("Nombre desconocido: «%1»", "Unknown name: “%1”", unknown.name);
}

/// What a number must be beyond a number.
enum class Must { nothing, fit, not_be_negative };

FieldHint numberHint(const Field& field, Must must) {
  std::string unwanted;
  if (field.text.empty())
    return {HintTone::missing, inLanguage("Falta un número", "A number is needed")};
  if (!checkNumeric({&field, 1}, unwanted))
    return refusal(inLanguage("No es un número", "Not a number"));
  if (must == Must::nothing) return {};
  if (!readNumber(field.text)) return refusal(inLanguage("Demasiado grande", "Too large"));
  if (must == Must::not_be_negative && !checkNonNegative({&field, 1}, unwanted))
    return refusal(inLanguage("No puede ser negativo", "Must not be negative"));
  return {};
}

/// What checkIncreasing says is said of the field that comes second in the form.
bool areOutOfOrder(const Field& low, const Field& high) {
  std::string unwanted;
  return readNumber(low.text) && readNumber(high.text) && !checkIncreasing(low, high, unwanted);
}

FieldHint greaterHint(const Field& low, const Field& high, Must must) {
  FieldHint alone = numberHint(high, must);
  if (alone.isFault() || !areOutOfOrder(low, high)) return alone;
  return refusal(inLanguage("Debe ser mayor que %1", "Must be greater than %1", low.text));
}

FieldHint lesserHint(const Field& low, const Field& high) {
  FieldHint alone = numberHint(low, Must::not_be_negative);
  if (alone.isFault() || !areOutOfOrder(low, high)) return alone;
  return refusal(inLanguage("Debe ser menor que %1", "Must be less than %1", high.text));
}

/// One overload for each kind, as the builders have them.
struct Hinter {
  const GraphTable& graphs;
  Engine& engine;

  Hints operator()(const FunctionFields& f) const { return {formulaHint(f.formula)}; }

  Hints operator()(const FamilyFields& f) const {
    FieldHint formula = formulaHint(f.formula);
    std::string unwanted;
    if (!formula.isFault() && !checkParameterUsed(f.formula.text, "P", unwanted))
      formula = refusal(inLanguage("Falta el parámetro p", "The parameter p is missing"));
    return {formula, numberHint(f.inicio, Must::fit), greaterHint(f.inicio, f.fin, Must::fit),
            numberHint(f.variacion, Must::not_be_negative)};
  }

  Hints operator()(const ParametricFields& f) const {
    return {formulaHint(f.x), formulaHint(f.y), numberHint(f.inicio, Must::fit),
            greaterHint(f.inicio, f.fin, Must::fit),
            numberHint(f.variacion, Must::not_be_negative)};
  }

  Hints operator()(const ParabolaFields& f) const {
    Hints hints = {numberHint(f.focus_x, Must::fit), numberHint(f.focus_y, Must::fit),
                   numberHint(f.distance, Must::not_be_negative)};
    if (firstFault(hints) || !buildGraph('a', f, engine).arithmetic_failure) return hints;
    const bool is_zero = readNumber(f.distance.text) == 0.0;
    hints.back() = refusal(is_zero ? inLanguage("Debe ser mayor que 0", "Must be greater than 0")
                                   : inLanguage("No da una parábola", "Gives no parabola"));
    return hints;
  }

  Hints operator()(const CircumferenceFields& f) const {
    return {numberHint(f.centre_x, Must::nothing), numberHint(f.centre_y, Must::nothing),
            numberHint(f.radius, Must::not_be_negative)};
  }

  Hints operator()(const EllipseFields& f) const {
    return {numberHint(f.centre_x, Must::nothing), numberHint(f.centre_y, Must::nothing),
            numberHint(f.major, Must::not_be_negative), lesserHint(f.minor, f.major)};
  }

  Hints operator()(const HyperbolaFields& f) const {
    return {numberHint(f.centre_x, Must::nothing), numberHint(f.centre_y, Must::nothing),
            numberHint(f.vertex, Must::not_be_negative),
            greaterHint(f.vertex, f.focus, Must::not_be_negative)};
  }

 private:
  FieldHint formulaHint(const Field& field) const {
    if (field.text.empty())
      return {HintTone::missing, inLanguage("Falta la fórmula", "A formula is needed")};
    if (const auto fault = findParenthesisFault(field.text))
      return parenthesisHint(field.text, *fault);
    std::string message;
    const bool is_accepted = CheckFormula(engine, field.text, message);
    const auto codes = [this](char letter) { return graphs.codeOf(letter); };
    if (const auto unknown = findUnknownName(field.text, codes))
      return {is_accepted ? HintTone::note : HintTone::refusal, unknownNameText(*unknown)};
    return is_accepted ? FieldHint() : refusal(std::string(firstLine(message)));
  }
};

/// The line of a graph in lists, or its letter where it has none.
std::string nameOf(const GraphDef& def) {
  const std::string text = displayText(def);
  return text.empty() ? std::string(1, def.nombre) : text;
}

}  // namespace

std::vector<FieldHint> hintFields(const GraphFields& fields, const GraphTable& graphs,
                                  Engine& engine) {
  return std::visit(Hinter{graphs, engine}, fields);
}

FieldHint noValueHint(std::string_view reason) {
  const std::string_view line = firstLine(reason);
  if (line.empty())
    return note(inLanguage("Sin valor en todo el rango", "No value anywhere in the range"));
  return note(
      inLanguage("Sin valor en todo el rango: %1", "No value anywhere in the range: %1", line));
}

FieldHint hintLetter(char letter, std::optional<char> changed, const GraphTable& graphs) {
  if (graphs.count() >= GraphTable::kSlots)
    return refusal(Localize("No se puede definir mas gráficos."));
  if (changed == letter) return {};
  if (const auto def = graphs.graph(letter); def && def->defined)
    return note(inLanguage("Ocupa el lugar de %1", "Takes the place of %1", nameOf(*def)));
  if (!changed) return {};
  const auto def = graphs.graph(*changed);
  if (!def || !def->defined) return {};
  return note(inLanguage("%1 queda como está", "%1 stays as it is", nameOf(*def)));
}

std::optional<std::size_t> firstFault(const std::vector<FieldHint>& hints) {
  const auto found = std::find_if(hints.begin(), hints.end(),
                                  [](const FieldHint& hint) { return hint.isFault(); });
  if (found == hints.end()) return std::nullopt;
  return static_cast<std::size_t>(found - hints.begin());
}

}  // namespace zel
