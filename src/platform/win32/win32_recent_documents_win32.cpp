#define WIN32_LEAN_AND_MEAN
#include <windows.h>
// After <windows.h>, which they need.
#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

#include <objbase.h>
#include <shlobj.h>

#include "base/text.h"
#include "platform/win32/com_dispatch.h"
#include "platform/win32/text_encoding.h"
#include "platform/win32/win32_recent_documents.h"

namespace zel {
namespace {

struct Release {
  void operator()(IUnknown* object) const { object->Release(); }
};
template <class Interface>
using Owned = std::unique_ptr<Interface, Release>;

std::wstring recentFolder() {
  wchar_t folder[MAX_PATH] = L"";
  return SHGetFolderPathW(nullptr, CSIDL_RECENT, nullptr, SHGFP_TYPE_CURRENT, folder) == S_OK
             ? folder
             : L"";
}

/// The links, the one written last first. Where endings are hidden, the name of a link does not say
/// what it leads to.
std::vector<std::wstring> links(const std::wstring& folder) {
  std::vector<std::pair<std::uint64_t, std::wstring>> found;
  WIN32_FIND_DATAW file;
  const HANDLE search = FindFirstFileW((folder + L"\\*.lnk").c_str(), &file);
  if (search == INVALID_HANDLE_VALUE) return {};
  do {
    const FILETIME time = file.ftLastWriteTime;
    found.emplace_back(static_cast<std::uint64_t>(time.dwHighDateTime) << 32 | time.dwLowDateTime,
                       folder + L"\\" + file.cFileName);
  } while (FindNextFileW(search, &file));
  FindClose(search);
  std::ranges::sort(found, std::greater());
  std::vector<std::wstring> paths;
  for (const auto& [time, path] : found) paths.push_back(path);
  return paths;
}

/// Where a link leads, as it was written, without a search for what was moved.
std::optional<std::string> targetOf(const std::wstring& link) {
  void* made = nullptr;
  if (FAILED(
          CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW, &made)))
    return std::nullopt;
  const Owned<IShellLinkW> shell_link(static_cast<IShellLinkW*>(made));
  if (FAILED(shell_link->QueryInterface(IID_IPersistFile, &made))) return std::nullopt;
  const Owned<IPersistFile> file(static_cast<IPersistFile*>(made));
  if (FAILED(file->Load(link.c_str(), STGM_READ))) return std::nullopt;
  wchar_t target[MAX_PATH] = L"";
  if (shell_link->GetPath(target, MAX_PATH, nullptr, SLGP_RAWPATH) != S_OK) return std::nullopt;
  return fromWide(target);
}

bool isDocument(const std::string& path) {
  std::error_code error;
  return toLower(path).ends_with(".zel") && std::filesystem::is_regular_file(toWide(path), error);
}

}  // namespace

std::vector<std::string> Win32RecentDocuments::list() {
  const ComSession session;
  std::vector<std::string> documents;
  std::size_t looked_at = 0;
  for (const std::wstring& link : links(recentFolder())) {
    if (documents.size() == kMostRecent || ++looked_at > kMostLinks) break;
    const auto target = targetOf(link);
    if (target && isDocument(*target)) documents.push_back(*target);
  }
  return documents;
}

void Win32RecentDocuments::add(const std::string& path) {
  const ComSession session;
  SHAddToRecentDocs(SHARD_PATHW, toWide(path).c_str());
}

}  // namespace zel
