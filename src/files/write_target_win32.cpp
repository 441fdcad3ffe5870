#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include "files/write_target.h"

namespace zel {
namespace {

/// Those that a program may give to a new file, but for that of one that may not be written.
constexpr DWORD kKeptAttributes = FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_HIDDEN |
                                  FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED |
                                  FILE_ATTRIBUTE_ENCRYPTED;

/// What a file system without access lists answers where it is asked for one.
bool saysThatThereAreNone(DWORD error) {
  return error == ERROR_NOT_SUPPORTED || error == ERROR_INVALID_FUNCTION;
}

/// Leaves the list empty where the file system has none. One that is there and cannot be read is an
/// error: without it others might get more of the new file than of the older one.
DWORD findAccessList(HANDLE file, std::vector<char>& list) {
  constexpr SECURITY_INFORMATION kWhat = DACL_SECURITY_INFORMATION;
  DWORD size = 0;
  const bool is_empty = GetKernelObjectSecurity(file, kWhat, nullptr, 0, &size) != 0;
  DWORD error = is_empty ? ERROR_INVALID_DATA : GetLastError();  // not even the header of a list
  if (error == ERROR_INSUFFICIENT_BUFFER) {
    list.resize(size);
    if (GetKernelObjectSecurity(file, kWhat, list.data(), size, &size) != 0) return NO_ERROR;
    error = GetLastError();
    list.clear();
  }
  return saysThatThereAreNone(error) ? NO_ERROR : error;
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
  const DWORD error = findAccessList(handle, target.access);
  if (error != NO_ERROR) return error;
  target.path = path;
  const DWORD attributes = GetFileAttributesW(path);
  if (attributes == INVALID_FILE_ATTRIBUTES) return GetLastError();
  if ((attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) return NO_ERROR;
  return findFinalPath(handle, target.path);
}

}  // namespace zel
