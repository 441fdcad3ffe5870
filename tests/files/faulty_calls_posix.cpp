// The linker gives this program's calls of the system's functions to the functions here (--wrap).

#include "faulty_calls_posix.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <string>

#include <dirent.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

zel::test::Fault fault;
bool is_counting = false;
int calls = 0;
std::string_view hit;  // the function of the last call that met the fault

/// Counts a call, and tells whether it fails; errno is set then.
bool isFaulty(std::string_view name) {
  if (!is_counting || (!fault.only.empty() && fault.only != name)) return false;
  ++calls;
  const bool is_hit =
      fault.first != 0 && (fault.lasts ? calls >= fault.first : calls == fault.first);
  if (!is_hit) return false;
  hit = name;
  if (fault.event) {
    is_counting = false;
    fault.event();
    is_counting = true;
    return false;
  }
  if (fault.error == 0) ::kill(::getpid(), SIGKILL);
  errno = fault.error;
  return true;
}

bool hasAnswer(std::string_view name) {
  return is_counting && fault.only == name && !fault.answer.empty();
}

/// Without room it is the size that is asked for.
ssize_t answer(void* bytes, size_t size) {
  const size_t given =
      size == 0 ? fault.answer.size() : fault.answer.copy(static_cast<char*>(bytes), size);
  return static_cast<ssize_t>(given);
}

}  // namespace

namespace zel::test {

void beginFaults(const Fault& next) {
  fault = next;
  calls = 0;
  hit = {};
  is_counting = true;
}

int endFaults() {
  is_counting = false;
  return calls;
}

std::string_view faultyCall() { return hit; }

void atEachCall(Fault fault, const std::function<void()>& prepare,
                const std::function<void()>& attempt, const std::function<void()>& look) {
  int made = 0;
  do {
    ++fault.first;
    SCOPED_TRACE("call " + std::to_string(fault.first));
    prepare();
    beginFaults(fault);
    attempt();
    made = endFaults();
    look();
  } while (made >= fault.first && !::testing::Test::HasFailure());
  EXPECT_GT(fault.first, 1) << "there is no call";
}

}  // namespace zel::test

// Each as the system declares it, `failed` being what it returns then.
#define ZEL_CAUGHT(result, name, failed, parameters, arguments)        \
  extern "C" result real_##name parameters __asm__("__real_" #name);   \
  extern "C" result caught_##name parameters __asm__("__wrap_" #name); \
  extern "C" result caught_##name parameters {                         \
    return isFaulty(#name) ? failed : real_##name arguments;           \
  }

ZEL_CAUGHT(int, open, -1, (const char* path, int flags, mode_t mode), (path, flags, mode))
ZEL_CAUGHT(int, openat, -1, (int folder, const char* path, int flags, mode_t mode),
           (folder, path, flags, mode))
ZEL_CAUGHT(int, fcntl, -1, (int number, int command, long argument), (number, command, argument))
ZEL_CAUGHT(ssize_t, read, -1, (int number, void* bytes, size_t size), (number, bytes, size))
ZEL_CAUGHT(int, flock, -1, (int number, int how), (number, how))
ZEL_CAUGHT(int, fchmod, -1, (int number, mode_t mode), (number, mode))
ZEL_CAUGHT(int, fchown, -1, (int number, uid_t user, gid_t group), (number, user, group))
ZEL_CAUGHT(int, rename, -1, (const char* from, const char* to), (from, to))
ZEL_CAUGHT(int, unlink, -1, (const char* path), (path))
ZEL_CAUGHT(int, unlinkat, -1, (int folder, const char* path, int flags), (folder, path, flags))
ZEL_CAUGHT(int, stat, -1, (const char* path, struct stat* status), (path, status))
ZEL_CAUGHT(int, lstat, -1, (const char* path, struct stat* status), (path, status))
ZEL_CAUGHT(int, fstat, -1, (int number, struct stat* status), (number, status))
ZEL_CAUGHT(int, fstatat, -1, (int folder, const char* path, struct stat* status, int flags),
           (folder, path, status, flags))
ZEL_CAUGHT(int, faccessat, -1, (int folder, const char* path, int how, int flags),
           (folder, path, how, flags))
ZEL_CAUGHT(ssize_t, listxattr, -1, (const char* path, char* list, size_t size), (path, list, size))
ZEL_CAUGHT(int, fsetxattr, -1,
           (int number, const char* name, const void* value, size_t size, int flags),
           (number, name, value, size, flags))
ZEL_CAUGHT(int, fremovexattr, -1, (int number, const char* name), (number, name))
ZEL_CAUGHT(DIR*, opendir, nullptr, (const char* path), (path))
ZEL_CAUGHT(dirent*, readdir, nullptr, (DIR * folder), (folder))

#undef ZEL_CAUGHT

extern "C" ssize_t real_write(int number, const void* bytes, size_t size) __asm__("__real_write");
extern "C" ssize_t caught_write(int number, const void* bytes, size_t size) __asm__("__wrap_write");
extern "C" ssize_t caught_write(int number, const void* bytes, size_t size) {
  if (isFaulty("write")) return -1;
  const auto most = is_counting ? static_cast<size_t>(fault.piece) : size;
  return real_write(number, bytes, std::min(size, most));
}

extern "C" ssize_t real_readlink(const char* path, char* text,
                                 size_t size) __asm__("__real_readlink");
extern "C" ssize_t caught_readlink(const char* path, char* text,
                                   size_t size) __asm__("__wrap_readlink");
extern "C" ssize_t caught_readlink(const char* path, char* text, size_t size) {
  if (isFaulty("readlink")) return -1;
  return hasAnswer("readlink") ? answer(text, size) : real_readlink(path, text, size);
}

extern "C" ssize_t real_getxattr(const char* path, const char* name, void* value,
                                 size_t size) __asm__("__real_getxattr");
extern "C" ssize_t caught_getxattr(const char* path, const char* name, void* value,
                                   size_t size) __asm__("__wrap_getxattr");
extern "C" ssize_t caught_getxattr(const char* path, const char* name, void* value, size_t size) {
  if (isFaulty("getxattr")) return -1;
  return hasAnswer("getxattr") ? answer(value, size) : real_getxattr(path, name, value, size);
}

/// Nobody waits for the disk.
extern "C" int caught_fsync(int number) __asm__("__wrap_fsync");
extern "C" int caught_fsync(int) { return isFaulty("fsync") ? -1 : 0; }

/// One that fails has closed all the same, as on Linux.
extern "C" int real_close(int number) __asm__("__real_close");
extern "C" int caught_close(int number) __asm__("__wrap_close");
extern "C" int caught_close(int number) {
  const bool fails = isFaulty("close");
  const int error = errno;
  const int result = real_close(number);
  if (!fails) return result;
  errno = error;
  return -1;
}
