// save_interrupted FOLDER: saves a document over another one, in processes that end themselves
// before the first, the second, ... call that touches a file, and after each; then one that is let
// be. Whatever a stopped process leaves must be the older or the newer document, whole, and the
// next save takes away what is left beside it. The same where a call fails, or it and all later
// ones, where the last step is refused for a while, and where four processes save at once, one of
// which ends itself.
//
// save_interrupted wait CALL PATH: saves there, but says "waiting" before that call and waits for a
// line.

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "faulty_calls_win32.h"
#include "files/whole_file.h"

namespace {

using zel::test::beginFaults;
using zel::test::endFaults;
using zel::test::Fault;

constexpr UINT kStopped = 77;

void stop() { TerminateProcess(GetCurrentProcess(), kStopped); }

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

/// The path of a document in a folder that is new, with the older document or nothing.
fs::path prepare(const fs::path& folder, bool existed) {
  const fs::path document = folder / u8"é Ω.zel";
  fs::remove_all(folder);
  fs::create_directories(folder);
  if (existed) std::ofstream(document, std::ios::binary) << kOld;
  return document;
}

/// Whether there is one file in the folder.
bool isAlone(const fs::path& folder) {
  return std::distance(fs::directory_iterator(folder), fs::directory_iterator()) == 1;
}

/// Whether an untouched save leaves the newer document alone in the folder.
bool isCleaned(const fs::path& folder, const fs::path& document) {
  return zel::writeWholeFile(utf8(document), kNew).written && bytesOf(document) == kNew &&
         isAlone(folder);
}

/// Lets every call fail in turn. False for a complaint.
bool survives(const fs::path& folder, DWORD error, bool for_good, bool existed) {
  int call = 0;
  do {
    ++call;
    const fs::path document = prepare(folder, existed);
    beginFaults({.first = call, .last = for_good ? Fault::kForGood : call, .error = error});
    const bool written = zel::writeWholeFile(utf8(document), kNew).written;
    const int made = endFaults();
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

/// Refuses the last step so often, from the first time on. False for a complaint.
bool endsAsExpected(const fs::path& folder, DWORD error, int refusals, bool expected) {
  const fs::path document = prepare(folder, true);
  beginFaults({.first = 1, .last = refusals, .error = error, .only = "MoveFileExW"});
  const bool written = zel::writeWholeFile(utf8(document), kNew).written;
  const int tries = endFaults();
  constexpr int kMostTries = 100;
  if (written == expected && tries <= kMostTries && isAlone(folder) &&
      bytesOf(document) == (expected ? kNew : kOld))
    return true;
  std::cout << "error " << error << " of " << refusals << " moves: " << tries << " tries, "
            << (written ? "written" : "not written") << '\n';
  return false;
}

/// Stops at every call in turn. False for a complaint.
bool holds(const fs::path& folder, const std::string& when, bool existed) {
  int call = 0;
  for (DWORD status = kStopped; status == kStopped;) {
    ++call;
    const fs::path document = prepare(folder, existed);
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

/// Ends the process before a call (at none where that is 0).
int saveOften(int call, const fs::path& path) {
  beginFaults({.first = call, .last = call, .event = stop});
  int status = kSaved;
  for (int i = 0; i < kSavesEach; ++i)
    if (zel::writeWholeFile(utf8(path), i % 2 == 0 ? kNew : kOld).written) ++status;
  endFaults();
  return status;
}

/// What is wrong with a document while a process saves it; empty when nothing is, and it was seen.
std::string complaintWhile(HANDLE saver, const fs::path& document) {
  int looks = 0;
  while (WaitForSingleObject(saver, 0) == WAIT_TIMEOUT) {
    if (!zel::fileExists(utf8(document))) return "not there";
    const auto bytes = zel::readWholeFile(utf8(document));
    if (bytes) ++looks;
    if (bytes && *bytes != kOld && *bytes != kNew)
      return "seen with " + std::to_string(bytes->size()) + " bytes";
  }
  return looks > 0 ? "" : "not seen";
}

/// Four processes save one document, of which one ends itself; all saves of the others go through.
/// False for a complaint.
bool isSharedByMany(const fs::path& folder) {
  const fs::path document = prepare(folder, true);
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
  return wrong.empty() && saves == 3 * kSavesEach;
}

void wait() {
  std::cout << "waiting" << std::endl;
  std::cin.get();
}

int saveWith(const Fault& fault, const fs::path& path) {
  beginFaults(fault);
  const bool written = zel::writeWholeFile(utf8(path), kNew).written;
  endFaults();
  return written ? 0 : 1;
}

/// A process that another one has started.
int doTask(std::wstring_view task, int call, const fs::path& path) {
  if (task == L"often") return saveOften(call, path);
  if (task == L"wait") return saveWith({.first = call, .last = call, .event = wait}, path);
  return saveWith({.first = call, .last = call, .event = stop, .is_behind = task == L"after"},
                  path);
}

}  // namespace

int wmain(int count, wchar_t** wide) {
  if (count == 4) return doTask(wide[1], std::stoi(wide[2]), wide[3]);
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
  for (const DWORD error : {DWORD{ERROR_SHARING_VIOLATION}, DWORD{ERROR_ACCESS_DENIED}})
    if (!endsAsExpected(folder, error, 5, true) ||
        !endsAsExpected(folder, error, Fault::kForGood, false))
      all_hold = false;
  if (!endsAsExpected(folder, ERROR_DISK_FULL, 1, false)) all_hold = false;
  if (!isSharedByMany(folder)) all_hold = false;
  fs::remove_all(folder);
  return all_hold ? 0 : 1;
}
