// Two lines: the language and whether deletions are confirmed. The first is taken even when the
// second is missing, which is damage all the same. Of a long line only the beginning is copied,
// which needs no memory: there may be none left.

#include "files/config.h"

#include <optional>
#include <string_view>

#include "base/code_page.h"
#include "base/language.h"
#include "base/text.h"
#include "files/system_language.h"
#include "files/text_file.h"

namespace zel {
namespace {

/// The first characters, which are bytes in the code page of the file.
std::string firstCharacters(std::string_view text, std::size_t count) {
  constexpr std::size_t kLongestCharacter = 3;
  return fromCodePage(toCodePage(text.substr(0, count * kLongestCharacter)).substr(0, count));
}

bool readBoolean(std::string_view text) {
  constexpr std::string_view kSpanish = "VERDADERO";
  const std::string word = toUpperAscii(trimBlanks(text).substr(0, kSpanish.size() + 1));
  return word == kSpanish || word == "TRUE";
}

std::string_view booleanText(bool value) {
  if (systemSpeaksEnglish()) return value ? "True" : "False";
  return value ? "Verdadero" : "Falso";
}

}  // namespace

ConfigRead readConfig(const std::string& path, Configuration& configuration) {
  std::optional<std::string> content;
  if (!readTextFile(path, content)) return ConfigRead::missing;
  if (!content || content->empty()) return ConfigRead::damaged;
  const std::string_view text = *content;
  const std::size_t first_end = text.find(kLineBreak);
  constexpr std::size_t kCodeSize = 2;
  SetCurrentLanguage(firstCharacters(text.substr(0, first_end), kCodeSize));
  if (first_end == std::string_view::npos) return ConfigRead::damaged;
  const auto second = text.substr(first_end + kLineBreak.size());
  configuration.confirm_deletion = readBoolean(second.substr(0, second.find(kLineBreak)));
  return ConfigRead::read;
}

bool writeConfig(const std::string& path, const Configuration& configuration) {
  std::string text = CurrentLanguage();
  text.append(kLineBreak).append(booleanText(configuration.confirm_deletion));
  return writeTextFile(path, text);
}

}  // namespace zel
