#include "platform/xdg/xdg_recent_documents.h"

#include <QDateTime>
#include <filesystem>
#include <new>
#include <optional>
#include <system_error>
#include <utility>

#include "files/whole_file.h"
#include "platform/xdg/recent_list.h"
#include "platform/xdg/user_folders.h"

namespace zel {
namespace {

namespace fs = std::filesystem;

RecentKind zelDocuments() { return {"zel", "zel %f", "application/x-zel", ".zel"}; }

/// An empty text where there is no list yet; nothing where it cannot be looked at.
std::optional<std::string> readList(const std::string& path) {
  if (!fileExists(path)) return std::string();
  std::error_code error;
  if (fs::file_size(path, error) > XdgRecentDocuments::kLongestList || error) return std::nullopt;
  return readWholeFile(path);
}

}  // namespace

XdgRecentDocuments::XdgRecentDocuments(std::string data_folder)
    : data_folder_(std::move(data_folder)), path_(data_folder_ + "/recently-used.xbel") {}

std::vector<std::string> XdgRecentDocuments::list() try {
  std::vector<std::string> there;
  std::error_code ignored;
  std::size_t looks = 0;
  for (std::string& path : documentsOnList(readList(path_).value_or(""), zelDocuments())) {
    if (there.size() == kMostRecent || ++looks > kMostLooks) break;
    if (fs::is_regular_file(path, ignored)) there.push_back(std::move(path));
  }
  return there;
} catch (const std::bad_alloc&) {
  return {};
}

/// What somebody has opened is nobody else's to read.
void XdgRecentDocuments::add(const std::string& path) try {
  const auto list = readList(path_);
  if (!list || !makeFolder(data_folder_)) return;
  const std::string now = QDateTime::currentDateTimeUtc().toString(Qt::ISODate).toStdString();
  const auto longer = withDocument(*list, path, zelDocuments(), now);
  if (!longer || longer->size() > kLongestList) return;
  writeWholeFile(path_, *longer, NewFile::for_its_user_alone);
} catch (const std::bad_alloc&) {
}

}  // namespace zel
