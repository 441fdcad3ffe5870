// save_interrupted FOLDER [SAVES]: saves a document over another one, in processes that end
// themselves before the first, the second, ... call that touches a file, and after each; then one
// that is let be. Whatever a stopped process leaves must be the older or the newer document, whole
// and for its owner alone, and the next save takes away what is left beside it. The same where a
// call fails, or it and all later ones, of a save or of a look at the document, where the last step
// is refused for a while, and where four processes save at once, one of which ends itself. With
// SAVES, all of it again until there were so many.
//
// save_interrupted wait CALL PATH: saves there, but says "waiting" before that call and waits for a
// line.

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <filesystem>
#include <iostream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "faulty_calls_win32.h"
#include "files/whole_file.h"
#include "support/access_list_win32.h"
#include "support/temporary_folder.h"

namespace {

using zel::test::accessListOf;
using zel::test::beginFaults;
using zel::test::bytesOf;
using zel::test::endFaults;
using zel::test::Fault;
using zel::test::keepForItsOwner;
using zel::test::putBytes;
using zel::test::utf8Of;

constexpr UINT kStopped = 77;
constexpr DWORD kDiskQuotaExceeded = 1295;  // for which mingw has no name

void stop() { TerminateProcess(GetCurrentProcess(), kStopped); }

namespace fs = std::filesystem;

const std::string kOld(30000, 'o');
const std::string kNew(1200000, 'n');  // more than one call of WriteFile

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

enum class Target { missing, there, link };

/// A document that is to be saved.
struct Document {
  fs::path path;
  bool existed;
  std::vector<char> access;  // who may use it, where it existed

  std::string name() const { return utf8Of(path); }
  fs::path folder() const { return path.parent_path(); }
  bool isAlone() const {
    return std::distance(fs::directory_iterator(folder()), fs::directory_iterator()) == 1;
  }
};

int saves = 0;  // of this run

/// One document in a folder that is new, the older one or nothing.
Document prepare(const fs::path& folder, Target target) {
  Document document{folder / u8"é Ω.zel", target != Target::missing, {}};
  fs::remove_all(folder);
  fs::create_directories(folder);
  if (!document.existed) return document;
  putBytes(document.name(), kOld);
  const auto for_anybody = accessListOf(document.path);
  keepForItsOwner(document.path);
  document.access = accessListOf(document.path);
  if (document.access == for_anybody) std::cout << "the document is for anybody\n";
  return document;
}

/// What is wrong with what a save left; empty when nothing is.
std::string complaint(const Document& document) {
  for (const auto& entry : fs::directory_iterator(document.folder())) {
    const std::string name = utf8Of(entry.path().filename());
    if (entry.path() != document.path && !name.starts_with(".zel-")) return "a file " + name;
  }
  if (!fs::exists(document.path)) return document.existed ? "no document" : "";
  if (document.existed && accessListOf(document.path) != document.access)
    return "others may use it";
  const std::string bytes = bytesOf(document.name());
  if (bytes == kNew || (document.existed && bytes == kOld)) return {};
  return "neither document, but " + std::to_string(bytes.size()) + " bytes";
}

/// The same, and what is wrong with what an untouched save leaves then.
std::string complaintAndSave(const Document& document) {
  const std::string wrong = complaint(document);
  if (!wrong.empty()) return wrong;
  ++saves;
  const bool is_clean = zel::writeWholeFile(document.name(), kNew).written &&
                        bytesOf(document.name()) == kNew && document.isAlone() &&
                        (!document.existed || accessListOf(document.path) == document.access);
  return is_clean ? "" : "not cleaned by the next save";
}

/// What is wrong with its answer; empty when nothing is.
std::string save(const Document& document) {
  ++saves;
  const bool written = zel::writeWholeFile(document.name(), kNew).written;
  return written && bytesOf(document.name()) != kNew ? "written, and it is not there" : "";
}

/// All but a save, none of which changes a document.
std::string look(const Document& document) {
  const auto bytes = zel::readWholeFile(document.name());
  if (bytes && *bytes != kOld) return "read as " + std::to_string(bytes->size()) + " bytes";
  if (!zel::fileExists(document.name())) return "not there";
  if (zel::createMissingFile(document.name())) return "made anew";
  zel::removeEmptyFile(document.name());
  zel::obstacleToWriting(document.name());
  return bytesOf(document.name()) == kOld ? "" : "not the older document any more";
}

/// Lets every call fail in turn. False for a complaint.
bool survives(const fs::path& folder, DWORD error, bool for_good, Target target,
              std::string (*act)(const Document&)) {
  Fault fault{.error = error, .sees_links = target == Target::link};
  bool has_failed = true;
  do {
    fault.last = for_good ? Fault::kForGood : fault.first + 1;
    ++fault.first;
    const Document document = prepare(folder, target);
    beginFaults(fault);
    std::string wrong = act(document);
    has_failed = endFaults() >= fault.first;
    if (wrong.empty() && !has_failed && act == save && bytesOf(document.name()) != kNew)
      wrong = "not saved, and no call failed";
    if (wrong.empty()) wrong = complaintAndSave(document);
    if (!wrong.empty()) {
      std::cout << "error " << error << " at call " << fault.first << ": " << wrong << '\n';
      return false;
    }
  } while (has_failed);
  constexpr int kFewest = 6;
  return fault.first > kFewest;
}

/// Lets the calls of one function fail so often, from the first time on. False for a complaint.
bool endsAsExpected(const fs::path& folder, const Fault& fault, bool expected) {
  const Document document = prepare(folder, Target::there);
  ++saves;
  beginFaults(fault);
  const bool written = zel::writeWholeFile(document.name(), kNew).written;
  const int tries = endFaults();
  constexpr int kMostTries = 100;
  if (written == expected && tries <= kMostTries && document.isAlone() &&
      bytesOf(document.name()) == (expected ? kNew : kOld))
    return true;
  std::cout << "error " << fault.error << " of " << fault.last << " " << fault.only << ": " << tries
            << " tries, " << (written ? "written" : "not written") << '\n';
  return false;
}

/// The last step is tried again while another program may have one of the files open.
bool isTriedAgain(const fs::path& folder) {
  Fault fault{.first = 1, .last = 1, .error = ERROR_DISK_FULL, .only = "MoveFileExW"};
  bool all_hold = endsAsExpected(folder, fault, false);
  for (const DWORD error : {DWORD{ERROR_SHARING_VIOLATION}, DWORD{ERROR_ACCESS_DENIED}})
    for (const int refusals : {5, Fault::kForGood}) {
      fault.error = error;
      fault.last = refusals;
      if (!endsAsExpected(folder, fault, refusals != Fault::kForGood)) all_hold = false;
    }
  return all_hold;
}

/// A document is saved where its file system has no access lists, and not where its list cannot be
/// read.
bool looksForAnAccessList(const fs::path& folder) {
  bool all_hold = true;
  for (const DWORD error : {DWORD{ERROR_NOT_SUPPORTED}, DWORD{ERROR_INVALID_FUNCTION},
                            DWORD{ERROR_ACCESS_DENIED}, DWORD{ERROR_NOT_ENOUGH_MEMORY}})
    for (const int call : {1, 2}) {
      const bool has_none = error == ERROR_NOT_SUPPORTED || error == ERROR_INVALID_FUNCTION;
      const Fault fault{
          .first = call, .last = call, .error = error, .only = "GetKernelObjectSecurity"};
      if (!endsAsExpected(folder, fault, has_none)) all_hold = false;
    }
  return all_hold;
}

/// Stops at every call in turn. False for a complaint.
bool holds(const fs::path& folder, const std::string& when, Target target) {
  int call = 0;
  for (DWORD status = kStopped; status == kStopped;) {
    ++call;
    const Document document = prepare(folder, target);
    ++saves;
    status = statusOf(startSaver(document.path, when, call));
    std::string wrong;
    if (status != kStopped && (status != 0 || bytesOf(document.name()) != kNew))
      wrong = "not saved";
    if (wrong.empty()) wrong = complaintAndSave(document);
    if (!wrong.empty()) {
      std::cout << when << " call " << call << ": " << wrong << " (status " << status << ")\n";
      return false;
    }
  }
  std::cout << (target == Target::missing ? "a new document, " : "over a document, ") << when
            << ": " << call - 1 << " calls\n";
  constexpr int kFewest = 6;  // open, write twice, flush, close, and the move
  return call > kFewest;
}

constexpr int kSavesEach = 10;
constexpr int kSaved = 100;  // and so many saves that went through

/// Ends the process before a call (at none where that is 0).
int saveOften(int call, const fs::path& path) {
  beginFaults({.first = call, .last = call, .event = stop});
  int status = kSaved;
  for (int i = 0; i < kSavesEach; ++i)
    if (zel::writeWholeFile(utf8Of(path), i % 2 == 0 ? kNew : kOld).written) ++status;
  endFaults();
  return status;
}

/// What is wrong with a document while a process saves it; empty when nothing is, and it was seen.
std::string complaintWhile(HANDLE saver, const std::string& document) {
  int looks = 0;
  while (WaitForSingleObject(saver, 0) == WAIT_TIMEOUT) {
    if (!zel::fileExists(document)) return "not there";
    const auto bytes = zel::readWholeFile(document);
    if (bytes) ++looks;
    if (bytes && *bytes != kOld && *bytes != kNew)
      return "seen with " + std::to_string(bytes->size()) + " bytes";
  }
  return looks > 0 ? "" : "not seen";
}

/// Four processes save one document, of which one ends itself; all saves of the others go through.
/// False for a complaint.
bool isSharedByMany(const fs::path& folder) {
  const Document document = prepare(folder, Target::there);
  constexpr int kInTheMiddle = 61;  // a call
  std::vector<HANDLE> savers;
  for (const int call : {kInTheMiddle, 0, 0, 0})
    savers.push_back(startSaver(document.path, "often", call));
  std::string wrong = complaintWhile(savers.back(), document.name());
  int saved = 0;
  for (const HANDLE saver : savers) {
    const int status = static_cast<int>(statusOf(saver));
    if (saver == savers.front() ? status != kStopped : status < kSaved)
      wrong += " a saver ended with " + std::to_string(status);
    if (status >= kSaved) saved += status - kSaved;
  }
  saves += saved;
  wrong += complaintAndSave(document);
  std::cout << "four at once: " << saved << " of " << 3 * kSavesEach << " saves"
            << (wrong.empty() ? "" : ": ") << wrong << '\n';
  return wrong.empty() && saved == 3 * kSavesEach;
}

void wait() {
  std::cout << "waiting" << std::endl;
  std::cin.get();
}

int saveWith(const Fault& fault, const fs::path& path) {
  beginFaults(fault);
  const bool written = zel::writeWholeFile(utf8Of(path), kNew).written;
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

bool survivesAllErrors(const fs::path& folder) {
  bool all_hold = true;
  for (const DWORD error : {DWORD{ERROR_DISK_FULL}, kDiskQuotaExceeded, DWORD{ERROR_IO_DEVICE},
                            DWORD{ERROR_ACCESS_DENIED}, DWORD{ERROR_OPERATION_ABORTED}})
    for (const bool for_good : {false, true}) {
      for (const Target target : {Target::missing, Target::there, Target::link})
        if (!survives(folder, error, for_good, target, save)) all_hold = false;
      if (!survives(folder, error, for_good, Target::there, look)) all_hold = false;
    }
  return all_hold;
}

bool passesARound(const fs::path& folder) {
  bool all_hold = true;
  for (const char* const when : {"before", "after"})
    for (const Target target : {Target::there, Target::missing})
      if (!holds(folder, when, target)) all_hold = false;
  for (const auto test : {survivesAllErrors, isTriedAgain, looksForAnAccessList, isSharedByMany})
    if (!test(folder)) all_hold = false;
  return all_hold;
}

}  // namespace

int wmain(int count, wchar_t** wide) {
  if (count == 4) return doTask(wide[1], std::stoi(wide[2]), wide[3]);
  if (count != 2 && count != 3) return 2;
  const fs::path folder = fs::path(wide[1]) / "whole";
  const int wanted = count == 3 ? std::stoi(wide[2]) : 0;
  bool all_hold = true;
  do all_hold = passesARound(folder);
  while (all_hold && saves < wanted);
  std::cout << saves << " saves\n";
  fs::remove_all(folder);
  return all_hold ? 0 : 1;
}
