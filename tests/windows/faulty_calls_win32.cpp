// The calls are caught where the program's import table would be: this file has the pointers that
// the linker would take from the import library.

#define WIN32_LEAN_AND_MEAN
#include "faulty_calls_win32.h"

#include <windows.h>

#include <algorithm>
#include <cstddef>
#include <type_traits>

namespace {

zel::test::Fault fault;
bool is_counting = false;
int calls = 0;

/// The name of a function, as an argument of templates.
template <std::size_t size>
struct Name {
  char text[size];

  constexpr Name(const char (&from)[size]) { std::copy_n(from, size, text); }

  constexpr bool is(std::string_view other) const { return other == text; }
};

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

/// What is called in the place of a function of the system.
template <Name name, class Function>
struct Caught;

template <Name name, class Result, class... Arguments>
struct Caught<name, Result(Arguments...)> {
  /// Calls the system's function, unless it is to fail.
  static Result call(Arguments... arguments) {
    const bool is_hit = isHit(name.text);
    if (is_hit && !fault.event) return failed(arguments...);
    if (is_hit && !fault.is_behind) happen();
    Result result = callSystem(arguments...);
    const DWORD error = GetLastError();
    if (is_hit && fault.is_behind) happen();
    if constexpr (name.is("GetFileAttributesW"))
      if (is_counting && fault.sees_links && result != INVALID_FILE_ATTRIBUTES)
        result |= FILE_ATTRIBUTE_REPARSE_POINT;
    SetLastError(error);
    return result;
  }

 private:
  static Result callSystem(Arguments... arguments) {
    using Function = Result(Arguments...);
    static const auto function = reinterpret_cast<Function*>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernelbase.dll"), name.text)));
    return function(arguments...);
  }

  /// What it returns where it fails. What fails to close is closed all the same.
  static Result failed(Arguments... arguments) {
    if constexpr (name.is("CloseHandle") || name.is("FindClose")) callSystem(arguments...);
    SetLastError(fault.error);
    if constexpr (std::is_same_v<Result, HANDLE>)
      return INVALID_HANDLE_VALUE;
    else if constexpr (name.is("GetFileAttributesW"))
      return INVALID_FILE_ATTRIBUTES;
    else
      return Result{};
  }
};

}  // namespace

#define ZEL_CAUGHT(name)                                                     \
  extern "C" {                                                               \
  extern const decltype(&name) caught_##name __asm__("__imp_" #name);        \
  const decltype(&name) caught_##name = Caught<#name, decltype(name)>::call; \
  }

ZEL_CAUGHT(CloseHandle)
ZEL_CAUGHT(CreateFileW)
ZEL_CAUGHT(DeleteFileW)
ZEL_CAUGHT(FindClose)
ZEL_CAUGHT(FindFirstFileW)
ZEL_CAUGHT(FindNextFileW)
ZEL_CAUGHT(FlushFileBuffers)
ZEL_CAUGHT(GetFileAttributesExW)
ZEL_CAUGHT(GetFileAttributesW)
ZEL_CAUGHT(GetFileInformationByHandle)
ZEL_CAUGHT(GetFileSizeEx)
ZEL_CAUGHT(GetFileType)
ZEL_CAUGHT(GetFinalPathNameByHandleW)
ZEL_CAUGHT(GetKernelObjectSecurity)
ZEL_CAUGHT(MoveFileExW)
ZEL_CAUGHT(ReadFile)
ZEL_CAUGHT(SetFileInformationByHandle)
ZEL_CAUGHT(WriteFile)

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
