#include "cli/console/console.h"

#include <algorithm>
#include <ostream>

#include "base/language.h"
#include "base/text.h"
#include "base/utf8.h"
#include "numbers/number_text.h"

namespace zel {
namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";  // U+FFFD

/// So that it does nothing to the line that it stands in.
void appendPlainly(std::string& line, const DecodedCharacter& decoded, std::string_view bytes) {
  if (decoded.size == 0)
    line += kReplacement;
  else if (decoded.character == '\n')
    line += "\\n";
  else if (decoded.character == '\r')
    line += "\\r";
  else if (decoded.character == '\t')
    line += "\\t";
  else if (decoded.character == '\\')
    line += "\\\\";
  else if (isControl(decoded.character))
    line += "\\x" + hexadecimal(decoded.character);
  else
    line += bytes;
}

/// Takes the first character from the text and appends what shows it on one line.
void moveCharacter(std::string_view& text, std::string& line) {
  if (text.starts_with("\r\n")) text.remove_prefix(1);
  const DecodedCharacter decoded = decodeCharacter(text);
  const std::size_t size = std::max<std::size_t>(decoded.size, 1);
  appendPlainly(line, decoded, text.substr(0, size));
  text.remove_prefix(size);
}

}  // namespace

std::string Console::number(double value) const {
  std::string text = writeNumber(value).str();
  return decimal_point ? replaceAll(text, ",", ".") : text;
}

int Console::fail(std::string_view spanish) const {
  err << replaceAll(Localize(spanish), "\r\n", "\n") << '\n';
  return kExitFailed;
}

int Console::failReading() const {
  err << inLanguage("No se pudo leer la entrada.", "Cannot read the input.") << '\n';
  return kExitFailed;
}

std::string_view inLanguage(std::string_view spanish, std::string_view english) {
  return CurrentLanguage() == "EN" ? english : spanish;
}

std::string hexadecimal(char32_t control) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  return {kDigits[control >> 4], kDigits[control & 0xF]};
}

std::string onOneLine(std::string_view text) {
  std::string line;
  while (!text.empty()) moveCharacter(text, line);
  return line;
}

void writeOnOneLine(std::string_view text, std::ostream& out) {
  constexpr std::size_t kBlock = 4096;
  std::string block;
  while (!text.empty()) {
    moveCharacter(text, block);
    if (block.size() < kBlock) continue;
    out << block;
    block.clear();
  }
  out << block;
}

}  // namespace zel
