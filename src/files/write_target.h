#pragma once

#include <string>
#include <vector>

namespace zel {

/// A file that is written on Windows, and what the new one takes over where it replaces another.
struct WriteTarget {
  std::wstring path;              // links followed
  unsigned long attributes = 0;   // FILE_ATTRIBUTE_...
  std::vector<char> access = {};  // a security descriptor; empty where the folder says who may
};

/// Fills it from an existing file, which `handle` has open, and the path that led there. Returns no
/// error or the system's: also where the file is none of a disk, or may not be written.
unsigned long describeTarget(void* handle, const wchar_t* path, WriteTarget& target);

}  // namespace zel
