#include "platform/xdg/document_type.h"

#include "base/text.h"
#include "base/utf8.h"

namespace zel {
namespace {

std::string xmlText(std::string text) {
  text = replaceAll(text, "&", "&amp;");
  text = replaceAll(text, "<", "&lt;");
  text = replaceAll(text, ">", "&gt;");
  return replaceAll(text, "\"", "&quot;");
}

/// The value of a key, which has escapes of its own.
std::string entryValue(const std::string& text) {
  std::string value = replaceAll(text, "\\", "\\\\");
  value = replaceAll(value, "\n", "\\n");
  value = replaceAll(value, "\t", "\\t");
  return replaceAll(value, "\r", "\\r");
}

/// A word of a command line: in quotation marks, where four characters need a "\".
std::string commandWord(const std::string& text) {
  std::string word;
  for (const char c : text) {
    if (c == '"' || c == '`' || c == '$' || c == '\\') word += '\\';
    word += c;
  }
  return "\"" + word + "\"";
}

/// The replacement character is what is left of bytes that were no UTF-8.
bool isPlain(std::string_view text) {
  constexpr char32_t kReplacement = 0xFFFD;
  while (!text.empty()) {
    const DecodedCharacter decoded = decodeCharacter(text);
    if (decoded.size == 0 || isControl(decoded.character) || decoded.character == kReplacement)
      return false;
    text.remove_prefix(decoded.size);
  }
  return true;
}

}  // namespace

bool canBeNamed(const DocumentType& type) {
  return isPlain(type.program_path) && isPlain(type.working_folder) &&
         type.program_path.find_first_of("=%") == std::string::npos;
}

std::string mimeType(const DocumentType& type) { return "application/x-" + type.name; }

std::string iconName(const DocumentType& type) { return "application-x-" + type.name; }

std::string mimePackageText(const DocumentType& type) {
  std::string text =
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
      "<mime-info xmlns=\"http://www.freedesktop.org/standards/shared-mime-info\">\n";
  text += "  <mime-type type=\"" + xmlText(mimeType(type)) + "\">\n";
  text += "    <comment>" + xmlText(type.description) + "</comment>\n";
  text += "    <sub-class-of type=\"text/plain\"/>\n";
  text += "    <icon name=\"" + xmlText(iconName(type)) + "\"/>\n";
  text += "    <glob pattern=\"*" + xmlText(type.extension) + "\"/>\n";
  text += "  </mime-type>\n</mime-info>\n";
  return text;
}

std::string desktopEntryText(const DocumentType& type) {
  std::string text =
      "[Desktop Entry]\n"
      "Type=Application\n"
      "Name=ZEL\n"
      "GenericName=Mathematical function grapher\n"
      "GenericName[es]=Graficador de funciones matemáticas\n";
  text += "TryExec=" + entryValue(type.program_path) + "\n";
  text += "Exec=" + entryValue(commandWord(type.program_path)) + " %f\n";
  text += "Path=" + entryValue(type.working_folder) + "\n";
  text += "Icon=zel\nTerminal=false\nCategories=Education;Math;\n";
  text += "MimeType=" + mimeType(type) + ";\n";
  text += "StartupWMClass=zel\n";
  return text;
}

}  // namespace zel
