// save_interrupted FOLDER: saves a document over another one, in processes that end themselves
// before the first, the second, ... call that touches a file, and after each; then one that is let
// be. Whatever a stopped process leaves must be the older or the newer document, whole, and the
// next save takes away what is left beside it. The same where a call fails, or it and all later
// ones, and where four processes save at once, one of which ends itself.
//
// The calls are caught where the program's import table would be: this file has the pointers that
// the linker would take from the import library.

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "files/whole_file.h"

namespace {

constexpr UINT kStopped = 77;

int stop_before = 0;  // at this call from the first; 0 never
int stop_after = 0;
int fail_at = 0;
bool fails_for_good = false;
DWORD failure = NO_ERROR;
int calls = 0;

bool isFaulty() { return fail_at != 0 && (fails_for_good ? calls >= fail_at : calls == fail_at); }

template <class Function>
Function* systemFunction(const char* name) {
  return reinterpret_cast<Function*>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32.dll"), name)));
}

void stop() { TerminateProcess(GetCurrentProcess(), kStopped); }

/// What it returns where it fails. A handle that fails to close is closed all the same.
template <class Function, class... Arguments>
auto failed(const char* name, Arguments... arguments) {
  using Result = decltype(std::declval<Function*>()(arguments...));
  if constexpr (std::is_same_v<Function, decltype(CloseHandle)>)
    systemFunction<Function>(name)(arguments...);
  SetLastError(failure);
  if constexpr (std::is_same_v<Result, HANDLE>)
    return INVALID_HANDLE_VALUE;
  else
    return Result{};
}

/// Calls the system's function of this name, or ends the process before or behind it.
template <class Function, class... Arguments>
auto counted(const char* name, Arguments... arguments) {
  ++calls;
  if (calls == stop_before) stop();
  if (isFaulty()) return failed<Function>(name, arguments...);
  const auto result = systemFunction<Function>(name)(arguments...);
  const DWORD error = GetLastError();
  if (calls == stop_after) stop();
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

namespace {

namespace fs = std::filesystem;

const std::string kOld(300000, 'o');
const std::string kNew(2500000, 'n');  // more than one call of WriteFile

std::string utf8(const fs::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

std::string bytesOf(const fs::path& path) {
  std::ifstream stream(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

/// This program anew, with a task of its own; null where it does not start.
HANDLE startSaver(const fs::path& path, const std::string& task, int call) {
  std::wstring command(32768, L'\0');
  command.resize(GetModuleFileNameW(nullptr, command.data(), 32768));
  command = L"\"" + command + L"\" " + fs::path(task).wstring() + L" " + std::to_wstring(call) +
            L" \"" + path.wstring() + L"\"";
  STARTUPINFOW start{};
  start.cb = sizeof start;
  PROCESS_INFORMATION process{};
  if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                      &process))
    return nullptr;
  CloseHandle(process.hThread);
  return process.hProcess;
}

/// How a process ended; 0 where it was not started.
DWORD statusOf(HANDLE process) {
  if (process == nullptr) return 0;
  WaitForSingleObject(process, INFINITE);
  DWORD status = 0;
  GetExitCodeProcess(process, &status);
  CloseHandle(process);
  return status;
}

/// What is wrong with what a stopped process left; empty when nothing is.
std::string complaint(const fs::path& folder, const fs::path& document, bool existed) {
  for (const auto& entry : fs::directory_iterator(folder)) {
    const std::string name = utf8(entry.path().filename());
    if (entry.path() != document && !name.starts_with(".zel-")) return "a file " + name;
  }
  if (!fs::exists(document)) return existed ? "no document" : "";
  const std::string bytes = bytesOf(document);
  if (bytes == kNew || (existed && bytes == kOld)) return {};
  return "neither document, but " + std::to_string(bytes.size()) + " bytes";
}

/// Whether an untouched save leaves the newer document alone in the folder.
bool isCleaned(const fs::path& folder, const fs::path& document) {
  if (!zel::writeWholeFile(utf8(document), kNew).written || bytesOf(document) != kNew) return false;
  return std::distance(fs::directory_iterator(folder), fs::directory_iterator()) == 1;
}

/// Lets every call fail in turn. False for a complaint.
bool survives(const fs::path& folder, DWORD error, bool for_good, bool existed) {
  const fs::path document = folder / u8"é Ω.zel";
  int call = 0;
  do {
    ++call;
    fs::remove_all(folder);
    fs::create_directories(folder);
    if (existed) std::ofstream(document, std::ios::binary) << kOld;
    calls = 0;
    failure = error;
    fails_for_good = for_good;
    fail_at = call;
    const bool written = zel::writeWholeFile(utf8(document), kNew).written;
    fail_at = 0;
    const int made = calls;
    std::string wrong = complaint(folder, document, existed);
    if (wrong.empty() && written && bytesOf(document) != kNew)
      wrong = "written, and it is not there";
    if (wrong.empty() && !isCleaned(folder, document)) wrong = "not cleaned by the next save";
    if (!wrong.empty()) {
      std::cout << "error " << error << " at call " << call << ": " << wrong << '\n';
      return false;
    }
    if (made < call) break;
  } while (true);
  constexpr int kFewest = 6;
  return call > kFewest;
}

/// Stops at every call in turn. False for a complaint.
bool holds(const fs::path& folder, const std::string& when, bool existed) {
  const fs::path document = folder / u8"é Ω.zel";
  int call = 0;
  for (DWORD status = kStopped; status == kStopped;) {
    ++call;
    fs::remove_all(folder);
    fs::create_directories(folder);
    if (existed) std::ofstream(document, std::ios::binary) << kOld;
    status = statusOf(startSaver(document, when, call));
    const std::string wrong = complaint(folder, document, existed);
    const bool is_cleaned = !wrong.empty() || isCleaned(folder, document);
    if (!wrong.empty() || !is_cleaned ||
        (status != kStopped && (status != 0 || bytesOf(document) != kNew))) {
      std::cout << when << " call " << call << ": " << wrong << " (status " << status << ")\n";
      return false;
    }
  }
  std::cout << (existed ? "over a document, " : "a new document, ") << when << ": " << call - 1
            << " calls\n";
  constexpr int kFewest = 6;  // open, write thrice, flush, close, and the move
  return call > kFewest;
}

constexpr int kSavesEach = 10;
constexpr int kSaved = 100;  // and so many saves that went through

/// Ends the process before a call (at none where that is 0). A save that meets another one may say
/// that it failed.
int saveOften(int call, const fs::path& path) {
  calls = 0;
  stop_before = call;
  int status = kSaved;
  for (int i = 0; i < kSavesEach; ++i)
    if (zel::writeWholeFile(utf8(path), i % 2 == 0 ? kNew : kOld).written) ++status;
  stop_before = 0;
  return status;
}

/// What is wrong with a document while a process saves it; empty when nothing is, and it was seen.
std::string complaintWhile(HANDLE saver, const fs::path& document) {
  int looks = 0;
  while (WaitForSingleObject(saver, 0) == WAIT_TIMEOUT) {
    const auto bytes = zel::readWholeFile(utf8(document));
    if (bytes) ++looks;
    if (bytes && *bytes != kOld && *bytes != kNew)
      return "seen with " + std::to_string(bytes->size()) + " bytes";
  }
  return looks > 0 ? "" : "not seen";
}

/// Four processes save one document, of which one ends itself. False for a complaint.
bool isSharedByMany(const fs::path& folder) {
  const fs::path document = folder / u8"é Ω.zel";
  fs::remove_all(folder);
  fs::create_directories(folder);
  std::ofstream(document, std::ios::binary) << kOld;
  constexpr int kInTheMiddle = 31;  // a call
  std::vector<HANDLE> savers;
  for (const int call : {kInTheMiddle, 0, 0, 0})
    savers.push_back(startSaver(document, "often", call));
  std::string wrong = complaintWhile(savers.back(), document);
  int saves = 0;
  for (const HANDLE saver : savers) {
    const int status = static_cast<int>(statusOf(saver));
    if (saver == savers.front() ? status != kStopped : status < kSaved)
      wrong += " a saver ended with " + std::to_string(status);
    if (status >= kSaved) saves += status - kSaved;
  }
  wrong += complaint(folder, document, true);
  if (wrong.empty() && !isCleaned(folder, document)) wrong = "not cleaned by the next save";
  std::cout << "four at once: " << saves << " of " << 3 * kSavesEach << " saves"
            << (wrong.empty() ? "" : ": ") << wrong << '\n';
  return wrong.empty() && saves > 0;
}

int saveAndStop(const std::wstring& when, const std::wstring& call, const fs::path& path) {
  calls = 0;
  (when == L"before" ? stop_before : stop_after) = std::stoi(call);
  const bool written = static_cast<bool>(zel::writeWholeFile(utf8(path), kNew).written);
  stop_before = stop_after = 0;
  return written ? 0 : 1;
}

}  // namespace

int wmain(int count, wchar_t** wide) {
  if (count == 4 && wide[1] == std::wstring_view(L"often"))
    return saveOften(std::stoi(wide[2]), wide[3]);
  if (count == 4) return saveAndStop(wide[1], wide[2], wide[3]);
  if (count != 2) return 2;
  const fs::path folder = fs::path(wide[1]) / "whole";
  bool all_hold = true;
  for (const char* const when : {"before", "after"})
    for (const bool existed : {true, false})
      if (!holds(folder, when, existed)) all_hold = false;
  for (const DWORD error :
       {DWORD{ERROR_DISK_FULL}, DWORD{ERROR_IO_DEVICE}, DWORD{ERROR_ACCESS_DENIED}})
    for (const bool for_good : {false, true})
      for (const bool existed : {true, false})
        if (!survives(folder, error, for_good, existed)) all_hold = false;
  if (!isSharedByMany(folder)) all_hold = false;
  fs::remove_all(folder);
  return all_hold ? 0 : 1;
}
