#include "files/text_file.h"

#include <new>

#include "base/code_page.h"
#include "files/whole_file.h"

namespace zel {

bool readTextFile(const std::string& path, std::optional<std::string>& text) {
  if (!fileExists(path)) {
    createMissingFile(path);
    return false;
  }
  try {
    if (const auto bytes = readWholeFile(path)) text = fromCodePage(*bytes);
  } catch (const std::bad_alloc&) {
  }
  return true;
}

bool writeTextFile(const std::string& path, std::string_view text) {
  const WriteResult result = writeWholeFile(path, toCodePage(text));
  return result.written && result.existed;
}

}  // namespace zel
