#include "platform/xdg/xdg_class_registry.h"

#include <algorithm>
#include <filesystem>
#include <sstream>
#include <system_error>
#include <utility>

#include "base/utf8.h"
#include "files/whole_file.h"
#include "platform/xdg/desktop_files.h"
#include "platform/xdg/user_folders.h"

namespace zel {
namespace {

constexpr const char* kFolder = "/zel";
constexpr const char* kFile = "/zel/classes";

std::string currentFolder() {
  std::error_code ignored;
  return std::filesystem::current_path(ignored).string();
}

}  // namespace

XdgClassRegistry::XdgClassRegistry(std::string data_folder, std::string program_path,
                                   Launcher launcher)
    : data_folder_(std::move(data_folder)),
      program_path_(std::move(program_path)),
      launcher_(std::move(launcher)) {
  std::istringstream lines(readWholeFile(data_folder_ + kFile).value_or(""));
  for (std::string line; std::getline(lines, line);) {
    const std::size_t end = line.find('=');
    if (end != std::string::npos) entries_.set(line.substr(0, end), line.substr(end + 1));
  }
}

ClassRegistry::Key XdgClassRegistry::createKey(const std::string& name) {
  keys_.push_back(name);
  return keys_.size();
}

void XdgClassRegistry::setValue(Key key, const std::string& subkey, const std::string& value) {
  if (key == 0 || key > keys_.size() || holdsControl(value)) return;
  const std::string name = keys_[key - 1] + (subkey.empty() ? "" : "\\") + subkey;
  entries_.set(name, value);
  news_.insert(name);
  keepEntries();
  if (launcher_) publishCompleteTypes();
}

void XdgClassRegistry::keepEntries() const {
  if (!makeFolder(data_folder_ + kFolder)) return;
  std::string text;
  for (const auto& entry : entries_) text += entry.key + "=" + entry.value + "\n";
  writeWholeFile(data_folder_ + kFile, text);
}

void XdgClassRegistry::publishCompleteTypes() {
  const std::set<std::string> news = news_;
  for (const std::string& extension : news) {
    const std::string type = extension.starts_with('.') ? entries_.Item(extension) : std::string();
    const std::set<std::string> wanted = {extension, type, type + R"(\shell\open\command)",
                                          type + "\\DefaultIcon"};
    if (type.empty() || !std::ranges::includes(news, wanted)) continue;
    const DocumentType published = {type, extension, entries_.Item(type), program_path_,
                                    currentFolder()};
    if (canBeNamed(published)) publishDocumentType(published, data_folder_, launcher_);
    for (const std::string& name : wanted) news_.erase(name);
  }
}

}  // namespace zel
