#pragma once

#include <string>

struct stat;

namespace zel {

/// Gives a new file, open as `number` and not yet readable for others, what a POSIX system keeps
/// beside the bytes of an older one: owner and group where that is allowed, permissions, access
/// control list and extended attributes. What cannot be kept gives nobody more than before.
/// Returns 0, or the system's number of the error.
int takeAfter(int number, const std::string& path, const struct stat& old);

}  // namespace zel
