#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace zel::test {

/// Whether each tag is closed by its like and all attributes are quoted; what the pictures of this
/// program need of XML and no more.
inline bool isWellFormed(std::string_view text) {
  constexpr std::string_view kDeclaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>";
  if (!text.starts_with(kDeclaration)) return false;
  text.remove_prefix(kDeclaration.size());
  std::vector<std::string> open;
  bool had_root = false;
  while (text.find_first_of("<&>") != std::string_view::npos) {
    const std::size_t begin = text.find_first_of("<&>");
    const std::size_t end = text.find('>', begin);
    if (text[begin] != '<' || end == std::string_view::npos) return false;
    std::string_view tag = text.substr(begin + 1, end - begin - 1);
    text.remove_prefix(end + 1);
    const std::string name(tag.substr(tag.starts_with('/'), tag.find(' ') - tag.starts_with('/')));
    if (tag.starts_with('/')) {
      if (open.empty() || open.back() != name) return false;
      open.pop_back();
      continue;
    }
    if (tag.find('<') != std::string_view::npos || (open.empty() && had_root)) return false;
    had_root = true;
    std::size_t quotes = 0;
    std::size_t equals = 0;
    for (const char character : tag) {
      quotes += character == '"';
      equals += character == '=';
    }
    if (quotes != 2 * equals) return false;
    if (!tag.ends_with('/')) open.push_back(name);
  }
  return had_root && open.empty();
}

}  // namespace zel::test
