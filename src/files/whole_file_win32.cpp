// A file is replaced by writing a new one beside it and putting that in its place in one step, so
// that whoever looks at the path, at any moment and after a crash too, finds the older or the newer
// file whole.

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <algorithm>
#include <cstdint>

#include "files/whole_file.h"

namespace zel {
namespace {

constexpr DWORD kMostAtOnce = DWORD{1} << 20;
constexpr int kMostTemporaryNames = 100;

/// Owns a file handle.
class File {
 public:
  explicit File(HANDLE handle) : handle_(handle) {}
  File(const File&) = delete;
  File& operator=(const File&) = delete;
  ~File() { close(); }

  explicit operator bool() const { return handle_ != INVALID_HANDLE_VALUE; }
  HANDLE handle() const { return handle_; }

  bool close() {
    if (handle_ == INVALID_HANDLE_VALUE) return true;
    const bool closed = CloseHandle(handle_) != 0;
    handle_ = INVALID_HANDLE_VALUE;
    return closed;
  }

 private:
  HANDLE handle_;
};

/// Empty for a text that is no path.
std::wstring widePath(const std::string& path) {
  constexpr std::size_t kLongestPath = 32767;
  if (path.empty() || path.size() > 3 * kLongestPath || path.find('\0') != std::string::npos)
    return {};
  const int size = static_cast<int>(path.size());
  const int wide_size =
      MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, path.data(), size, nullptr, 0);
  if (wide_size <= 0) return {};
  std::wstring wide(static_cast<std::size_t>(wide_size), L'\0');
  MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, path.data(), size, wide.data(), wide_size);
  return wide;
}

HANDLE openFile(const std::wstring& path, DWORD access, DWORD disposition,
                DWORD share = FILE_SHARE_READ) {
  return CreateFileW(path.c_str(), access, share, nullptr, disposition, FILE_ATTRIBUTE_NORMAL,
                     nullptr);
}

bool writeAll(HANDLE handle, std::string_view bytes) {
  while (!bytes.empty()) {
    const auto count = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), kMostAtOnce));
    DWORD written = 0;
    if (WriteFile(handle, bytes.data(), count, &written, nullptr) == 0 || written == 0)
      return false;
    bytes.remove_prefix(written);
  }
  return true;
}

bool isThere(const std::wstring& path) {
  return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

/// The folder with its separator, or nothing for the current one.
std::wstring folderOf(const std::wstring& path) {
  return path.substr(0, path.find_last_of(L"\\/:") + 1);
}

/// The file that an existing path leads to, links followed; nothing when it may not be written.
/// `is_on_disk` is false for a device or pipe.
std::wstring writableTarget(const std::wstring& path, bool& is_on_disk) {
  const File file(openFile(path, GENERIC_WRITE, OPEN_EXISTING, FILE_SHARE_READ | FILE_SHARE_WRITE));
  if (!file) return {};
  is_on_disk = GetFileType(file.handle()) == FILE_TYPE_DISK;
  const DWORD attributes = GetFileAttributesW(path.c_str());
  const bool is_link =
      attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
  if (!is_on_disk || !is_link) return path;
  const DWORD size = GetFinalPathNameByHandleW(file.handle(), nullptr, 0, FILE_NAME_NORMALIZED);
  std::wstring target(size, L'\0');
  const DWORD written =
      GetFinalPathNameByHandleW(file.handle(), target.data(), size, FILE_NAME_NORMALIZED);
  if (written == 0 || written >= size) return {};
  target.resize(written);
  return target;
}

/// A new file in a folder, which goes away again unless it is put in another's place.
class TemporaryFile {
 public:
  explicit TemporaryFile(const std::wstring& folder) : file_(make(folder)) {}
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile() {
    file_.close();
    if (!path_.empty()) DeleteFileW(path_.c_str());
  }

  explicit operator bool() const { return static_cast<bool>(file_); }
  HANDLE handle() const { return file_.handle(); }

  bool finish() {
    const bool flushed = FlushFileBuffers(file_.handle()) != 0;
    return file_.close() && flushed;
  }

  /// Replacing keeps the attributes and the access list of the older file, where the file system
  /// can do that.
  bool moveTo(const std::wstring& path, bool existed) {
    constexpr DWORD kMove = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    const bool moved =
        (existed && ReplaceFileW(path.c_str(), path_.c_str(), nullptr,
                                 REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr, nullptr) != 0) ||
        MoveFileExW(path_.c_str(), path.c_str(), kMove) != 0;
    // A replacement that broke off may have taken the older file away: then this is the only one.
    if (moved || (existed && !isThere(path))) path_.clear();
    return moved;
  }

 private:
  HANDLE make(const std::wstring& folder) {
    const std::wstring start = folder + L".zel-" + std::to_wstring(GetCurrentProcessId()) + L"-";
    for (int i = 0; i < kMostTemporaryNames; ++i) {
      path_ = start + std::to_wstring(i);
      const HANDLE handle = openFile(path_, GENERIC_WRITE, CREATE_NEW, 0);
      if (handle != INVALID_HANDLE_VALUE) return handle;
      if (GetLastError() != ERROR_FILE_EXISTS) break;
    }
    path_.clear();
    return INVALID_HANDLE_VALUE;
  }

  std::wstring path_;
  File file_;
};

bool replaceFile(const std::wstring& path, std::string_view bytes, bool existed) {
  TemporaryFile file(folderOf(path));
  return file && writeAll(file.handle(), bytes) && file.finish() && file.moveTo(path, existed);
}

bool writeInPlace(const std::wstring& path, std::string_view bytes) {
  File file(openFile(path, GENERIC_WRITE, OPEN_EXISTING, FILE_SHARE_READ | FILE_SHARE_WRITE));
  return file && writeAll(file.handle(), bytes) && file.close();
}

}  // namespace

bool fileExists(const std::string& path) {
  const std::wstring wide = widePath(path);
  if (wide.empty()) return false;
  const DWORD attributes = GetFileAttributesW(wide.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

bool createMissingFile(const std::string& path) {
  const std::wstring wide = widePath(path);
  if (wide.empty()) return false;
  File file(openFile(wide, GENERIC_WRITE, OPEN_ALWAYS));
  return file && file.close();
}

std::optional<std::string> readWholeFile(const std::string& path) {
  const std::wstring wide = widePath(path);
  if (wide.empty()) return std::nullopt;
  const File file(openFile(wide, GENERIC_READ, OPEN_EXISTING,
                           FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE));
  if (!file) return std::nullopt;
  std::string bytes;
  LARGE_INTEGER size{};
  if (GetFileSizeEx(file.handle(), &size) != 0) {
    if (size.QuadPart > static_cast<std::int64_t>(kMaxWholeFile)) return std::nullopt;
    bytes.reserve(static_cast<std::size_t>(size.QuadPart));
  }
  std::string block(std::size_t{1} << 16, '\0');
  for (;;) {
    DWORD count = 0;
    const bool done = ReadFile(file.handle(), block.data(), static_cast<DWORD>(block.size()),
                               &count, nullptr) != 0;
    if (!done && GetLastError() != ERROR_BROKEN_PIPE) return std::nullopt;
    if (!done || count == 0) return bytes;
    if (bytes.size() + count > kMaxWholeFile) return std::nullopt;
    bytes.append(block, 0, count);
  }
}

WriteResult writeWholeFile(const std::string& path, std::string_view bytes) {
  const std::wstring wide = widePath(path);
  if (wide.empty()) return {};
  const DWORD attributes = GetFileAttributesW(wide.c_str());
  const bool is_there = attributes != INVALID_FILE_ATTRIBUTES;
  if (is_there && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return {};
  bool is_on_disk = true;
  const std::wstring target = is_there ? writableTarget(wide, is_on_disk) : wide;
  if (target.empty()) return {is_there, false};
  if (!is_on_disk) return {true, writeInPlace(target, bytes)};
  return {is_there, replaceFile(target, bytes, is_there)};
}

}  // namespace zel
