// The calls are caught where the program's import table would be: this file has the pointers that
// the linker would take from the import library.

#define WIN32_LEAN_AND_MEAN
#include "faulty_calls_win32.h"

#include <windows.h>

#include <type_traits>
#include <utility>

namespace {

zel::test::Fault fault;
bool is_counting = false;
int calls = 0;

template <class Function>
Function* systemFunction(const char* name) {
  return reinterpret_cast<Function*>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32.dll"), name)));
}

/// What it returns where it fails. A handle that fails to close is closed all the same.
template <class Function, class... Arguments>
auto failed(const char* name, Arguments... arguments) {
  using Result = decltype(std::declval<Function*>()(arguments...));
  if constexpr (std::is_same_v<Function, decltype(CloseHandle)>)
    systemFunction<Function>(name)(arguments...);
  SetLastError(fault.error);
  if constexpr (std::is_same_v<Result, HANDLE>)
    return INVALID_HANDLE_VALUE;
  else
    return Result{};
}

/// Counts a call, and tells whether something happens to it.
bool isHit(std::string_view name) {
  if (!is_counting || (!fault.only.empty() && fault.only != name)) return false;
  ++calls;
  return calls >= fault.first && calls <= fault.last;
}

void happen() {
  is_counting = false;
  fault.event();
  is_counting = true;
}

/// Calls the system's function of this name, unless it is to fail.
template <class Function, class... Arguments>
auto counted(const char* name, Arguments... arguments) {
  const bool is_hit = isHit(name);
  if (is_hit && !fault.event) return failed<Function>(name, arguments...);
  if (is_hit && !fault.is_behind) happen();
  const auto result = systemFunction<Function>(name)(arguments...);
  const DWORD error = GetLastError();
  if (is_hit && fault.is_behind) happen();
  SetLastError(error);
  return result;
}

HANDLE WINAPI createFile(LPCWSTR path, DWORD access, DWORD share, LPSECURITY_ATTRIBUTES security,
                         DWORD disposition, DWORD flags, HANDLE from) {
  return counted<decltype(CreateFileW)>("CreateFileW", path, access, share, security, disposition,
                                        flags, from);
}

BOOL WINAPI writeFile(HANDLE file, LPCVOID bytes, DWORD count, LPDWORD written, LPOVERLAPPED way) {
  return counted<decltype(WriteFile)>("WriteFile", file, bytes, count, written, way);
}

BOOL WINAPI flushFile(HANDLE file) {
  return counted<decltype(FlushFileBuffers)>("FlushFileBuffers", file);
}

BOOL WINAPI closeHandle(HANDLE handle) {
  return counted<decltype(CloseHandle)>("CloseHandle", handle);
}

BOOL WINAPI replaceFile(LPCWSTR path, LPCWSTR by, LPCWSTR backup, DWORD flags, LPVOID, LPVOID) {
  return counted<decltype(ReplaceFileW)>("ReplaceFileW", path, by, backup, flags, nullptr, nullptr);
}

BOOL WINAPI moveFile(LPCWSTR from, LPCWSTR to, DWORD flags) {
  return counted<decltype(MoveFileExW)>("MoveFileExW", from, to, flags);
}

BOOL WINAPI deleteFile(LPCWSTR path) { return counted<decltype(DeleteFileW)>("DeleteFileW", path); }

}  // namespace

extern "C" {
extern const decltype(&createFile) caught_create __asm__("__imp_CreateFileW");
extern const decltype(&writeFile) caught_write __asm__("__imp_WriteFile");
extern const decltype(&flushFile) caught_flush __asm__("__imp_FlushFileBuffers");
extern const decltype(&closeHandle) caught_close __asm__("__imp_CloseHandle");
extern const decltype(&replaceFile) caught_replace __asm__("__imp_ReplaceFileW");
extern const decltype(&moveFile) caught_move __asm__("__imp_MoveFileExW");
extern const decltype(&deleteFile) caught_delete __asm__("__imp_DeleteFileW");
const decltype(&createFile) caught_create = createFile;
const decltype(&writeFile) caught_write = writeFile;
const decltype(&flushFile) caught_flush = flushFile;
const decltype(&closeHandle) caught_close = closeHandle;
const decltype(&replaceFile) caught_replace = replaceFile;
const decltype(&moveFile) caught_move = moveFile;
const decltype(&deleteFile) caught_delete = deleteFile;
}

namespace zel::test {

void beginFaults(const Fault& next) {
  fault = next;
  calls = 0;
  is_counting = true;
}

int endFaults() {
  is_counting = false;
  return calls;
}

}  // namespace zel::test
