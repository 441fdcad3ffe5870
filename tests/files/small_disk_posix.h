#pragma once

#include <string>

#include <sched.h>
#include <sys/mount.h>

#include "files/child_posix.h"

namespace zel::test {

/// What a check gives that passed, and one whose file system only root can make.
inline constexpr int kPassed = 1;
inline constexpr int kCannotMount = 2;

/// Makes a folder an empty file system of this size ("size=64k"), for this process alone.
inline bool mountADisk(const std::string& folder, const char* size) {
  return ::unshare(CLONE_NEWNS) == 0 && ::mount("", "/", "", MS_REC | MS_PRIVATE, nullptr) == 0 &&
         ::mount("none", folder.c_str(), "tmpfs", 0, size) == 0;
}

/// The result of a check in a process of its own, in which a folder is an empty file system of
/// 64 kB.
template <class Check>
int onASmallDisk(const std::string& folder, Check check) {
  return inAChild([&] { return mountADisk(folder, "size=64k") ? check() : kCannotMount; });
}

}  // namespace zel::test
