// A file is replaced by writing a new one beside it and putting that in its place in one step, so
// that whoever looks at the path, at any moment and after a crash too, finds the older or the newer
// file whole.

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <algorithm>
#include <cstdint>
#include <new>
#include <vector>

#include "files/leftovers.h"
#include "files/temporary_name.h"
#include "files/whole_file.h"
#include "files/wide_path.h"
#include "files/write_target.h"

namespace zel {
namespace {

constexpr DWORD kMostAtOnce = DWORD{1} << 20;
constexpr int kMostTemporaryNames = 100;
constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

// Of the last step, within half a second.
constexpr int kMostTries = 20;
constexpr DWORD kPause = 25;  // milliseconds

/// Right behind the call that may have failed.
DWORD errorUnless(bool succeeded) { return succeeded ? NO_ERROR : GetLastError(); }

/// Owns a file handle.
class File {
 public:
  explicit File(HANDLE handle) : handle_(handle) {}
  File(const File&) = delete;
  File& operator=(const File&) = delete;
  ~File() { close(); }

  explicit operator bool() const { return handle_ != INVALID_HANDLE_VALUE; }
  HANDLE handle() const { return handle_; }

  /// Owns this one instead.
  void reset(HANDLE handle) {
    close();
    handle_ = handle;
  }

  /// Returns no error or the system's, as all below do that return a number.
  DWORD close() {
    if (handle_ == INVALID_HANDLE_VALUE) return NO_ERROR;
    const DWORD error = errorUnless(CloseHandle(handle_) != 0);
    handle_ = INVALID_HANDLE_VALUE;
    return error;
  }

 private:
  HANDLE handle_;
};

HANDLE openFile(const wchar_t* path, DWORD access, DWORD disposition, DWORD share = FILE_SHARE_READ,
                DWORD flags = 0) {
  return CreateFileW(path, access, share, nullptr, disposition, FILE_ATTRIBUTE_NORMAL | flags,
                     nullptr);
}

DWORD writeAll(HANDLE handle, std::string_view bytes) {
  while (!bytes.empty()) {
    const auto count = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), kMostAtOnce));
    DWORD written = 0;
    if (WriteFile(handle, bytes.data(), count, &written, nullptr) == 0) return GetLastError();
    if (written == 0) return ERROR_WRITE_FAULT;
    bytes.remove_prefix(written);
  }
  return NO_ERROR;
}

bool isMissing(DWORD error) {
  return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
}

/// What a move says where another program has one of the files open.
bool isInUse(DWORD error) {
  return error == ERROR_SHARING_VIOLATION || error == ERROR_ACCESS_DENIED;
}

bool isThere(const wchar_t* path) {
  return GetFileAttributesW(path) != INVALID_FILE_ATTRIBUTES || !isMissing(GetLastError());
}

/// The folder with its separator, or nothing for the current one.
std::wstring folderOf(const std::wstring& path) {
  return path.substr(0, path.find_last_of(L"\\/:") + 1);
}

/// The existing file at a path. Others may replace it while it is looked at.
DWORD findTarget(const WidePath& path, WriteTarget& target) {
  const File file(openFile(path.c_str(), GENERIC_WRITE, OPEN_EXISTING, kShareAll));
  return file ? describeTarget(file.handle(), path.c_str(), target) : GetLastError();
}

/// A new file in a folder, which goes away again unless it is put in another's place. It is open
/// until then, so that nobody takes it for the leftover of a killed save.
class TemporaryFile {
 public:
  explicit TemporaryFile(const WriteTarget& target) : file_(make(target)) {}
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile() {
    file_.close();
    hold_.close();
    if (!path_.empty()) DeleteFileW(path_.c_str());
  }

  /// No error, or why there is no file.
  DWORD error() const { return error_; }
  HANDLE handle() const { return file_.handle(); }

  /// Another handle holds it, which lets it be moved.
  DWORD finish() {
    hold_.reset(openFile(path_.c_str(), GENERIC_READ, OPEN_EXISTING, kShareAll));
    if (!hold_) return GetLastError();
    const DWORD error = errorUnless(FlushFileBuffers(file_.handle()) != 0);
    const DWORD close_error = file_.close();
    return error == NO_ERROR ? close_error : error;
  }

  /// In one step, which ReplaceFile does not promise. Where another program, a save or a virus
  /// scanner, looks at one of the files, it is soon done.
  DWORD moveTo(const std::wstring& path) {
    DWORD error = tryToMoveTo(path);
    for (int tries = 1; isInUse(error) && tries < kMostTries; ++tries) {
      Sleep(kPause);
      error = tryToMoveTo(path);
    }
    if (error == NO_ERROR) path_.clear();
    return error;
  }

 private:
  DWORD tryToMoveTo(const std::wstring& path) const {
    constexpr DWORD kFlags = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    return errorUnless(MoveFileExW(path_.c_str(), path.c_str(), kFlags) != 0);
  }

  HANDLE make(const WriteTarget& target) {
    std::vector<char> access = target.access;  // the call takes no const
    SECURITY_ATTRIBUTES security{sizeof security, access.empty() ? nullptr : access.data(), FALSE};
    for (int i = 0; i < kMostTemporaryNames; ++i) {
      const std::string name = newTemporaryName();
      error_ = ERROR_GEN_FAILURE;
      if (name.empty()) break;
      path_ = folderOf(target.path) + std::wstring(name.begin(), name.end());
      const HANDLE handle =
          CreateFileW(path_.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_DELETE, &security,
                      CREATE_NEW, target.attributes, nullptr);
      error_ = errorUnless(handle != INVALID_HANDLE_VALUE);
      if (error_ == NO_ERROR) return handle;
      if (error_ != ERROR_FILE_EXISTS) break;
    }
    path_.clear();
    return INVALID_HANDLE_VALUE;
  }

  DWORD error_ = NO_ERROR;
  std::wstring path_;
  File file_;
  File hold_{INVALID_HANDLE_VALUE};
};

/// What a file is to hold; nothing where a write is only tried.
using Content = std::optional<std::string_view>;

DWORD replaceFile(const WriteTarget& target, Content bytes) {
  removeLeftovers(target.path);
  TemporaryFile file(target);
  DWORD error = file.error();
  if (!bytes) return error;
  if (error == NO_ERROR) error = writeAll(file.handle(), *bytes);
  if (error == NO_ERROR) error = file.finish();
  if (error == NO_ERROR) error = file.moveTo(target.path);
  return error;
}

WriteResult resultOf(bool existed, DWORD error) {
  return {existed, error == NO_ERROR, static_cast<int>(error)};
}

WriteResult writeAnyFile(const std::string& path, Content bytes) {
  const WidePath wide(path);
  if (wide.isEmpty()) return resultOf(false, ERROR_INVALID_NAME);
  const DWORD attributes = GetFileAttributesW(wide.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) {
    const DWORD error = GetLastError();
    return resultOf(false, isMissing(error) ? replaceFile({wide.c_str()}, bytes) : error);
  }
  if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return resultOf(false, ERROR_ACCESS_DENIED);
  WriteTarget target;
  const DWORD error = findTarget(wide, target);
  return resultOf(true, error == NO_ERROR ? replaceFile(target, bytes) : error);
}

WriteResult writeOrTry(const std::string& path, Content bytes) {
  try {
    return writeAnyFile(path, bytes);
  } catch (const std::bad_alloc&) {  // before the new file has its place
    return resultOf(fileExists(path), ERROR_NOT_ENOUGH_MEMORY);
  }
}

std::optional<std::string> readAll(HANDLE handle) {
  LARGE_INTEGER size{};
  if (GetFileSizeEx(handle, &size) == 0) return std::nullopt;
  if (size.QuadPart > static_cast<std::int64_t>(kMaxWholeFile)) return std::nullopt;
  std::string bytes;
  bytes.reserve(static_cast<std::size_t>(size.QuadPart));
  std::string block(std::size_t{1} << 16, '\0');
  for (;;) {
    DWORD count = 0;
    if (ReadFile(handle, block.data(), static_cast<DWORD>(block.size()), &count, nullptr) == 0)
      return std::nullopt;
    if (count == 0) return bytes;
    if (bytes.size() + count > kMaxWholeFile) return std::nullopt;
    bytes.append(block, 0, count);
  }
}

}  // namespace

bool fileExists(const std::string& path) {
  const WidePath wide(path);
  return !wide.isEmpty() && isThere(wide.c_str());
}

bool createMissingFile(const std::string& path) {
  const WidePath wide(path);
  if (wide.isEmpty()) return false;
  File file(openFile(wide.c_str(), GENERIC_WRITE, CREATE_NEW, FILE_SHARE_READ,
                     FILE_FLAG_OPEN_REPARSE_POINT));
  return file && file.close() == NO_ERROR;
}

void removeEmptyFile(const std::string& path) {
  const WidePath wide(path);
  WIN32_FILE_ATTRIBUTE_DATA found{};
  if (wide.isEmpty() || GetFileAttributesExW(wide.c_str(), GetFileExInfoStandard, &found) == 0)
    return;
  constexpr DWORD kNotRegular = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT;
  if ((found.dwFileAttributes & kNotRegular) == 0 && found.nFileSizeHigh == 0 &&
      found.nFileSizeLow == 0)
    DeleteFileW(wide.c_str());
}

std::optional<std::string> readWholeFile(const std::string& path) {
  const WidePath wide(path);
  if (wide.isEmpty()) return std::nullopt;
  const File file(openFile(wide.c_str(), GENERIC_READ, OPEN_EXISTING, kShareAll));
  if (!file || GetFileType(file.handle()) != FILE_TYPE_DISK) return std::nullopt;
  return readAll(file.handle());
}

WriteResult writeWholeFile(const std::string& path, std::string_view bytes, NewFile) {
  return writeOrTry(path, bytes);
}

int obstacleToWriting(const std::string& path) { return writeOrTry(path, std::nullopt).error; }

}  // namespace zel
