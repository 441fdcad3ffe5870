// A save locks its temporary file from the first moment until it has its place, and the system lets
// a lock go when its process ends. So a file that can be locked belongs to nobody any more, and one
// that is locked here while a save is about to lock it makes that save take another name.

#include <memory>
#include <string_view>

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "files/descriptor.h"
#include "files/leftovers.h"
#include "files/temporary_name.h"

namespace zel {
namespace {

struct CloseFolder {
  void operator()(DIR* folder) const { ::closedir(folder); }
};

/// A regular file of the user's own; root takes away what others left.
bool mayBeRemoved(const struct stat& status) {
  const uid_t user = ::geteuid();
  return S_ISREG(status.st_mode) && (status.st_uid == user || user == 0);
}

void removeUnlessHeld(int folder, const char* name) {
  struct stat status {};
  if (::fstatat(folder, name, &status, AT_SYMLINK_NOFOLLOW) != 0 || !mayBeRemoved(status)) return;
  constexpr int kFlags = O_WRONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
  const Descriptor descriptor(retried([&] { return ::openat(folder, name, kFlags); }));
  if (!descriptor || ::flock(descriptor.number(), LOCK_EX | LOCK_NB) != 0) return;
  if (::fstat(descriptor.number(), &status) == 0 && mayBeRemoved(status))
    ::unlinkat(folder, name, 0);
}

}  // namespace

void removeLeftovers(const std::filesystem::path& file) {
  const std::string& path = file.native();
  const std::size_t name_begin = path.rfind('/') + 1;
  const std::string folder = path.substr(0, name_begin);
  const std::string_view own_name = std::string_view(path).substr(name_begin);
  const std::unique_ptr<DIR, CloseFolder> names(::opendir(folder.empty() ? "." : folder.c_str()));
  if (!names) return;
  for (std::size_t i = 0; i < kMostNamesLookedAt; ++i) {
    const dirent* const entry = ::readdir(names.get());
    if (entry == nullptr) return;
    if (isTemporaryName(entry->d_name) && entry->d_name != own_name)
      removeUnlessHeld(::dirfd(names.get()), entry->d_name);
  }
}

}  // namespace zel
