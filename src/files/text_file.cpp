#include "files/text_file.h"

#include <new>
#include <utility>

#include "base/code_page.h"
#include "files/whole_file.h"

namespace zel {

bool readTextFile(const std::string& path, std::optional<std::string>& text) {
  std::optional<std::string> bytes;
  const bool existed = readTextBytes(path, bytes);
  try {
    if (bytes) text = fromCodePage(*bytes);
  } catch (const std::bad_alloc&) {
  }
  return existed;
}

bool readTextBytes(const std::string& path, std::optional<std::string>& bytes) {
  if (!fileExists(path)) {
    createMissingFile(path);
    return false;
  }
  try {
    if (auto read = readWholeFile(path)) bytes = std::move(read);
  } catch (const std::bad_alloc&) {
  }
  return true;
}

bool writeTextFile(const std::string& path, std::string_view text) {
  try {
    const WriteResult result = writeWholeFile(path, toCodePage(text));
    return result.written && result.existed;
  } catch (const std::bad_alloc&) {
    return false;
  }
}

}  // namespace zel
