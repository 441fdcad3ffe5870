#include "base/language.h"

#include <algorithm>

#include "base/message_table.h"
#include "base/text.h"

namespace zel {
namespace {

std::string& language() {
  static std::string code = "ES";
  return code;
}

}  // namespace

const std::string& CurrentLanguage() { return language(); }

void SetCurrentLanguage(std::string_view code) { language() = code; }

std::string Localize(std::string_view text) {
  return CurrentLanguage() == "EN" ? SpanishToEnglish(text) : std::string(text);
}

std::string SpanishToEnglish(std::string_view text) {
  const auto rows = messageTable();
  const auto row = std::ranges::find(rows, text, &MessageRow::spanish);
  return std::string(row == rows.end() ? text : row->english);
}

std::string LocalizeWithArg(std::string_view text, std::string_view argument) {
  return replaceAll(Localize(text), "%1", argument);
}

}  // namespace zel
