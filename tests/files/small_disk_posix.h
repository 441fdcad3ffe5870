#pragma once

#include <string>

#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>

#include "files/child_posix.h"

/// File systems for tests, which root alone can make and which end with the child that mounts them.
namespace zel::test {

/// What a check gives that passed, and one whose file system cannot be made.
inline constexpr int kPassed = 1;
inline constexpr int kCannotMount = 2;

/// Mounts an empty file system there, for this process alone; the size as in "size=64k".
inline bool mountADisk(const std::string& place, const char* size) {
  return ::unshare(CLONE_NEWNS) == 0 && ::mount("", "/", "", MS_REC | MS_PRIVATE, nullptr) == 0 &&
         ::mount("none", place.c_str(), "tmpfs", 0, size) == 0;
}

/// Runs a check that returns kPassed, or kCannotMount, in a process of its own.
template <class Check>
void expectToPass(Check check) {
  const int result = inAChild(check);
  if (result == kCannotMount) GTEST_SKIP() << "only root can mount a file system";
  EXPECT_EQ(result, kPassed);
}

}  // namespace zel::test
