// The calls by which this program's own code reaches files are caught where its import table would
// be, and refuse longer paths than systems take that keep programs to the old bound. Wine has no
// such bound.

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <cwchar>

namespace {

template <class Function>
Function* systemFunction(const char* name) {
  return reinterpret_cast<Function*>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32.dll"), name)));
}

bool isRefused(const wchar_t* path) {
  if (!path || std::wcslen(path) < MAX_PATH || std::wcsncmp(path, L"\\\\?\\", 4) == 0) return false;
  SetLastError(ERROR_PATH_NOT_FOUND);
  return true;
}

}  // namespace

// Each as the system declares it, `failed` being what it returns then; the first argument is a
// path.
#define ZEL_CAUGHT(result, name, failed, is_refused, parameters, arguments)       \
  static result WINAPI bounded##name parameters {                                 \
    return is_refused ? failed : systemFunction<decltype(name)>(#name) arguments; \
  }                                                                               \
  extern "C" {                                                                    \
  extern const decltype(&bounded##name) caught_##name __asm__("__imp_" #name);    \
  const decltype(&bounded##name) caught_##name = bounded##name;                   \
  }

ZEL_CAUGHT(HANDLE, CreateFileW, INVALID_HANDLE_VALUE, isRefused(path),
           (LPCWSTR path, DWORD access, DWORD share, LPSECURITY_ATTRIBUTES security,
            DWORD disposition, DWORD flags, HANDLE from),
           (path, access, share, security, disposition, flags, from))
ZEL_CAUGHT(DWORD, GetFileAttributesW, INVALID_FILE_ATTRIBUTES, isRefused(path), (LPCWSTR path),
           (path))
ZEL_CAUGHT(BOOL, GetFileAttributesExW, FALSE, isRefused(path),
           (LPCWSTR path, GET_FILEEX_INFO_LEVELS level, LPVOID found), (path, level, found))
ZEL_CAUGHT(HANDLE, FindFirstFileW, INVALID_HANDLE_VALUE, isRefused(path),
           (LPCWSTR path, LPWIN32_FIND_DATAW found), (path, found))
ZEL_CAUGHT(BOOL, DeleteFileW, FALSE, isRefused(path), (LPCWSTR path), (path))
ZEL_CAUGHT(BOOL, MoveFileExW, FALSE, isRefused(path) || isRefused(to),
           (LPCWSTR path, LPCWSTR to, DWORD flags), (path, to, flags))
