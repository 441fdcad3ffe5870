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

/// The names of a folder, one after the other.
class Names {
 public:
  explicit Names(const std::wstring& folder)
      : handle_(FindFirstFileW((folder + L"*").c_str(), &entry_)) {}
  Names(const Names&) = delete;
  Names& operator=(const Names&) = delete;
  ~Names() {
    if (handle_ != INVALID_HANDLE_VALUE) FindClose(handle_);
  }

  bool areThere() const { return handle_ != INVALID_HANDLE_VALUE; }
  const wchar_t* name() const { return entry_.cFileName; }
  bool goOn() { return FindNextFileW(handle_, &entry_) != 0; }

 private:
  WIN32_FIND_DATAW entry_{};
  HANDLE handle_;
};

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
  Names names(folder);
  if (!names.areThere()) return;
  std::size_t count = 0;
  do {
    const std::wstring name = names.name();
    if (isTemporaryName(narrow(names.name())) && wide.substr(name_begin) != name)
      removeUnlessHeld(folder + name);
  } while (++count < kMostNamesLookedAt && names.goOn());
}

}  // namespace zel
