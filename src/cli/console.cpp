#include "cli/console.h"

#include <ostream>

#include "base/language.h"
#include "base/text.h"
#include "numbers/number_text.h"

namespace zel {

std::string Console::number(double value) const {
  std::string text = writeNumber(value).str();
  return decimal_point ? replaceAll(text, ",", ".") : text;
}

int Console::fail(std::string_view spanish) const {
  err << replaceAll(Localize(spanish), "\r\n", "\n") << '\n';
  return kExitFailed;
}

std::string_view inLanguage(std::string_view spanish, std::string_view english) {
  return CurrentLanguage() == "EN" ? english : spanish;
}

std::string onOneLine(std::string_view message) {
  std::string line = replaceAll(replaceAll(message, "\\", "\\\\"), "\r\n", "\\n");
  return replaceAll(replaceAll(replaceAll(line, "\n", "\\n"), "\r", "\\r"), "\t", "\\t");
}

std::string asLine(std::string_view text) {
  return replaceAll(replaceAll(text, "\r", " "), "\n", " ");
}

std::string asField(std::string_view text) { return replaceAll(asLine(text), "\t", " "); }

}  // namespace zel
