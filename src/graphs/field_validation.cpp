// Each check looks at its fields and appends a paragraph to the message, or, in the case of
// checkNumeric, puts one in the message's place. The label beside a field is its name in the
// message.

#include "graphs/field_validation.h"

#include <functional>
#include <vector>

#include "base/language.h"
#include "base/text.h"
#include "numbers/number_text.h"

namespace zel {
namespace {

/// A line for the label of each field that fails.
std::string listFailures(std::span<const Field> fields,
                         const std::function<bool(const Field&)>& fails) {
  std::string list;
  for (const Field& field : fields) {
    if (fails(field)) list.append(fieldLabel(field.label)).append(kLineBreak);
  }
  return list;
}

bool isAcceptedDistance(const Field& field) {
  const auto value = readNumber(field.text);
  return value && *value >= 0;
}

}  // namespace

std::string fieldLabel(std::string_view caption) { return stripRelationSigns(caption); }

bool checkNumeric(std::span<const Field> fields, std::string& message) {
  const std::string list =
      listFailures(fields, [](const Field& field) { return !isNumeric(field.text); });
  if (list.empty()) return true;
  message = Localize("Los siguientes campos deben contener valores numéricos:");
  message.append(kLineBreak).append(list);
  return false;
}

bool checkNonNegative(std::span<const Field> fields, std::string& message) {
  const std::string list =
      listFailures(fields, [](const Field& field) { return !isAcceptedDistance(field); });
  if (list.empty()) return true;
  message.append(
      Localize("Los valores de distancia deben ser números positivos en los siguientes campos:"));
  message.append(kLineBreak).append(list).append(kLineBreak);
  return false;
}

bool checkIncreasing(const Field& low, const Field& high, std::string& message) {
  const auto low_value = readNumber(low.text);
  const auto high_value = readNumber(high.text);
  if (low_value && high_value && *high_value > *low_value) return true;
  const std::string low_label = fieldLabel(low.label);
  const std::string high_label = fieldLabel(high.label);
  message.append(kLineBreak);
  message.append(Localize("Los siguientes campos deben contener valores numéricos crecientes:"));
  message.append(kLineBreak).append(low_label);
  if (high_label != low_label) message.append(kLineBreak).append(high_label);
  return false;
}

bool checkParameterUsed(std::string_view formula, std::string_view parameterName,
                        std::string& message) {
  if (containsIgnoringCase(formula, parameterName)) return true;
  message.append(kLineBreak);
  message.append(Localize(
      "Debe incluir el nombre del parámetro en la declaración de la función paramétrica."));
  message.append(kLineBreak);
  return false;
}

std::optional<ParenthesisFault> findParenthesisFault(std::string_view formula) {
  using Kind = ParenthesisFault::Kind;
  std::vector<std::size_t> open;
  for (std::size_t i = 0; i < formula.size(); ++i) {
    if (formula[i] == '(') open.push_back(i);
    if (formula[i] != ')') continue;
    if (open.empty()) return ParenthesisFault{Kind::closes_nothing, i};
    if (open.back() + 1 == i) return ParenthesisFault{Kind::holds_nothing, i - 1};
    open.pop_back();
  }
  if (open.empty()) return std::nullopt;
  return ParenthesisFault{Kind::stays_open, open.back()};
}

bool checkParentheses(std::string_view formula, std::string_view fieldName, std::string& message) {
  if (!findParenthesisFault(formula)) return true;
  message.append(LocalizeWithArg("Error en paréntesis en el campo %1.", fieldName));
  message.append(kLineBreak);
  return false;
}

}  // namespace zel
