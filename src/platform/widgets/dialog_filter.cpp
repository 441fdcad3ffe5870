#include "platform/widgets/dialog_filter.h"

#include "base/text.h"

namespace zel {
namespace {

std::vector<std::string_view> fieldsOf(std::string_view text, char separator) {
  std::vector<std::string_view> fields;
  for (std::size_t end = text.find(separator); end != std::string_view::npos;
       end = text.find(separator)) {
    fields.push_back(text.substr(0, end));
    text.remove_prefix(end + 1);
  }
  fields.push_back(text);
  return fields;
}

}  // namespace

std::vector<std::string> dialogFilters(std::string_view filter) {
  const auto fields = fieldsOf(filter, '|');
  std::vector<std::string> filters;
  for (std::size_t i = 0; i + 1 < fields.size(); i += 2) {
    const std::string_view name = trimBlanks(fields[i].substr(0, fields[i].find('(')));
    filters.push_back(std::string(name) + " (" + replaceAll(fields[i + 1], ";", " ") + ")");
  }
  return filters;
}

std::string filterEnding(std::string_view filter) {
  const auto fields = fieldsOf(filter, '|');
  if (fields.size() < 2) return {};
  const std::string_view pattern = fieldsOf(fields[1], ';').front();
  if (!pattern.starts_with("*.") || pattern.find_first_of("*?[", 1) != std::string_view::npos)
    return {};
  return std::string(pattern.substr(1));
}

std::string withEnding(std::string_view path, std::string_view ending) {
  const std::string_view name = path.substr(path.find_last_of('/') + 1);
  const bool has_dot = name.find('.') != std::string_view::npos;
  return std::string(path) + std::string(has_dot ? "" : ending);
}

}  // namespace zel
