#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include "files/write_target.h"

namespace zel {
namespace {

/// Those that a program may give to a new file, but for that of one that may not be written.
constexpr DWORD kKeptAttributes = FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_HIDDEN |
                                  FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED |
                                  FILE_ATTRIBUTE_ENCRYPTED;

/// Empty where the file system has none.
std::vector<char> accessListOf(HANDLE file) {
  DWORD size = 0;
  GetKernelObjectSecurity(file, DACL_SECURITY_INFORMATION, nullptr, 0, &size);
  std::vector<char> list(size);
  if (GetKernelObjectSecurity(file, DACL_SECURITY_INFORMATION, list.data(), size, &size) == 0)
    list.clear();
  return list;
}

/// The path of an open file, links followed.
DWORD findFinalPath(HANDLE file, std::wstring& path) {
  const DWORD size = GetFinalPathNameByHandleW(file, nullptr, 0, FILE_NAME_NORMALIZED);
  if (size == 0) return GetLastError();
  path.resize(size);
  const DWORD written = GetFinalPathNameByHandleW(file, path.data(), size, FILE_NAME_NORMALIZED);
  if (written == 0) return GetLastError();
  if (written >= size) return ERROR_INSUFFICIENT_BUFFER;  // it was renamed meanwhile
  path.resize(written);
  return NO_ERROR;
}

}  // namespace

unsigned long describeTarget(void* handle, const wchar_t* path, WriteTarget& target) {
  if (GetFileType(handle) != FILE_TYPE_DISK) return ERROR_NOT_SUPPORTED;
  BY_HANDLE_FILE_INFORMATION found{};
  if (GetFileInformationByHandle(handle, &found) == 0) return GetLastError();
  if ((found.dwFileAttributes & FILE_ATTRIBUTE_READONLY) != 0) return ERROR_ACCESS_DENIED;
  target.attributes = found.dwFileAttributes & kKeptAttributes;
  target.access = accessListOf(handle);
  target.path = path;
  const DWORD attributes = GetFileAttributesW(path);
  if (attributes == INVALID_FILE_ATTRIBUTES) return GetLastError();
  if ((attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) return NO_ERROR;
  return findFinalPath(handle, target.path);
}

}  // namespace zel
