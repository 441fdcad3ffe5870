// A running save has its temporary file open from the first moment until it has its place. So a
// file that can be opened for nobody else beside belongs to nobody any more.

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include "files/leftovers.h"
#include "files/temporary_name.h"

namespace zel {
namespace {

/// Temporary names are ASCII; any other name gives one that is not temporary.
std::string narrow(const wchar_t* name) {
  std::string text;
  for (; *name != L'\0'; ++name) text += *name < 0x80 ? static_cast<char>(*name) : '?';
  return text;
}

void removeUnlessHeld(const std::wstring& path) {
  const HANDLE handle = CreateFileW(path.c_str(), GENERIC_READ | DELETE, 0, nullptr, OPEN_EXISTING,
                                    FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
  if (handle == INVALID_HANDLE_VALUE) return;  // folders do not open either
  BY_HANDLE_FILE_INFORMATION found{};
  constexpr DWORD kNotRegular = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT;
  if (GetFileInformationByHandle(handle, &found) != 0 &&
      (found.dwFileAttributes & kNotRegular) == 0) {
    FILE_DISPOSITION_INFO disposition{};
    disposition.DeleteFile = TRUE;
    SetFileInformationByHandle(handle, FileDispositionInfo, &disposition, sizeof disposition);
  }
  CloseHandle(handle);
}

}  // namespace

void removeLeftovers(const std::filesystem::path& path) {
  const std::wstring& wide = path.native();
  const std::size_t name_begin = wide.find_last_of(L"\\/:") + 1;
  const std::wstring folder = wide.substr(0, name_begin);
  WIN32_FIND_DATAW entry{};
  const HANDLE names = FindFirstFileW((folder + L"*").c_str(), &entry);
  if (names == INVALID_HANDLE_VALUE) return;
  std::size_t count = 0;
  do {
    const std::wstring name = entry.cFileName;
    if (isTemporaryName(narrow(entry.cFileName)) && wide.substr(name_begin) != name)
      removeUnlessHeld(folder + name);
  } while (++count < kMostNamesLookedAt && FindNextFileW(names, &entry) != 0);
  FindClose(names);
}

}  // namespace zel
