// A file is replaced by writing a new one beside it and renaming that over it, so that whoever
// looks at the path, at any moment and after a crash too, finds the older or the newer file whole.

#include <array>
#include <cerrno>
#include <new>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "files/descriptor.h"
#include "files/file_access.h"
#include "files/leftovers.h"
#include "files/temporary_name.h"
#include "files/whole_file.h"

namespace zel {
namespace {

constexpr int kMostLinks = 40;  // which Linux follows when it opens a file
constexpr int kMostTemporaryNames = 100;
constexpr int kMostLooks = 100;
constexpr mode_t kModeOfNewFile = 0666;  // less what the umask takes away
constexpr mode_t kHiddenMode = S_IRUSR | S_IWUSR;

/// A path can hold no '\0': the system would take another file.
bool isPath(const std::string& path) {
  return !path.empty() && path.find('\0') == std::string::npos;
}

/// Returns 0 or the error.
int writeAll(int number, std::string_view bytes) {
  while (!bytes.empty()) {
    const auto written = retried([&] { return ::write(number, bytes.data(), bytes.size()); });
    if (written < 0) return errno;
    if (written == 0) return EIO;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return 0;
}

/// The folder with its "/", or nothing for the current one.
std::string folderOf(const std::string& path) { return path.substr(0, path.rfind('/') + 1); }

/// Where a chain of symbolic links ends, whether or not there is a file; nothing for a loop.
std::optional<std::string> followLinks(std::string path) {
  for (int i = 0; i <= kMostLinks; ++i) {
    std::array<char, 4096> target{};
    const auto size = ::readlink(path.c_str(), target.data(), target.size());
    if (size < 0) return path;
    if (static_cast<std::size_t>(size) == target.size()) return std::nullopt;
    const std::string_view link(target.data(), static_cast<std::size_t>(size));
    path = (link.starts_with('/') ? std::string() : folderOf(path)).append(link);
  }
  return std::nullopt;
}

bool isSameFile(const struct stat& one, const struct stat& other) {
  return one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}

/// A new file in a folder, which goes away again unless it is renamed. Until then it is locked, so
/// that nobody takes it for the leftover of a killed save.
class TemporaryFile {
 public:
  /// `mode` is that of the new file, or kHiddenMode where that comes from an older file.
  TemporaryFile(const std::string& folder, mode_t mode) {
    for (int i = 0; i < kMostTemporaryNames && error_ == EEXIST; ++i) {
      const std::string name = newTemporaryName();
      error_ = name.empty() ? EIO : create(folder + name, mode);
    }
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile() {
    descriptor_.close();
    if (!path_.empty()) ::unlink(path_.c_str());
  }

  /// 0, or why there is no file.
  int error() const { return error_; }
  int number() const { return descriptor_.number(); }

  /// Lets others use it who may use a new file. Returns 0 or the error, and so do finish and
  /// renameTo.
  int unhide() const {
    const bool hidden = mode_ != kHiddenMode;
    return !hidden || setPermissions(mode_) == 0 ? 0 : errno;
  }

  /// Another descriptor keeps the lock.
  int finish() {
    lock_.reset(::fcntl(number(), F_DUPFD_CLOEXEC, 0));
    if (!lock_) return errno;
    const int error = retried([this] { return ::fsync(number()); }) == 0 ? 0 : errno;
    const int close_error = descriptor_.close();
    return error == 0 ? close_error : error;
  }

  int renameTo(const std::string& path) {
    if (::rename(path_.c_str(), path.c_str()) != 0) return errno;
    path_.clear();
    return 0;
  }

 private:
  /// Returns 0 or the error: EEXIST where the name is taken, or was taken away.
  int create(std::string path, mode_t mode) {
    path_ = std::move(path);
    descriptor_.reset(openFile(path_, O_WRONLY | O_CREAT | O_EXCL, mode));
    int error = descriptor_ ? 0 : errno;
    if (error == 0 && mode != kHiddenMode) error = hide();
    if (error == 0 && isHeld()) return 0;
    if (descriptor_) ::unlink(path_.c_str());
    descriptor_.close();
    path_.clear();
    return error == 0 ? EEXIST : error;
  }

  /// The file is empty yet. Keeps its permissions, which the system made of the umask and of the
  /// folder's list. Some file systems have the same for all files. Returns 0 or the error.
  int hide() {
    struct stat made {};
    if (::fstat(number(), &made) != 0) return errno;
    constexpr mode_t kPermissionBits = 07777;
    if (setPermissions(kHiddenMode) == 0) mode_ = made.st_mode & kPermissionBits;
    return 0;
  }

  int setPermissions(mode_t mode) const {
    return retried([&] { return ::fchmod(number(), mode); });
  }

  /// Whether it is locked, and not taken away before that. Where there are no locks, nobody takes
  /// it away.
  bool isHeld() const {
    if (::flock(number(), LOCK_EX | LOCK_NB) != 0) return errno != EWOULDBLOCK;
    struct stat made {};
    return ::fstat(number(), &made) != 0 || made.st_nlink > 0;
  }

  int error_ = EEXIST;
  mode_t mode_ = kHiddenMode;  // of a new file
  std::string path_;
  Descriptor descriptor_;
  Descriptor lock_;
};

/// So that the renaming outlives a power cut. Some folders may be written and not read, and some
/// file systems cannot do this: the new file is in its place all the same.
void syncFolder(const std::string& folder) {
  const std::string here = ".";
  const Descriptor descriptor(openFile(folder.empty() ? here : folder, O_RDONLY | O_DIRECTORY));
  if (descriptor) retried([&] { return ::fsync(descriptor.number()); });
}

mode_t modeOf(NewFile file) { return file == NewFile::as_any_other ? kModeOfNewFile : kHiddenMode; }

/// What a file is to hold; nothing where a write is only tried.
using Content = std::optional<std::string_view>;

/// `old` is null where there is no file yet, or one that the new one does not take after: that gets
/// `mode` then. Returns 0 or the error.
int replaceFile(const std::string& path, Content bytes, const struct stat* old, mode_t mode) {
  const std::string folder = folderOf(path);
  removeLeftovers(path);
  TemporaryFile file(folder, old == nullptr ? mode : kHiddenMode);
  int error = file.error();
  if (!bytes) return error;
  if (error == 0) error = writeAll(file.number(), *bytes);
  if (error == 0) error = old == nullptr ? file.unhide() : takeAfter(file.number(), path, *old);
  if (error == 0) error = file.finish();
  if (error == 0) error = file.renameTo(path);
  if (error == 0) syncFolder(folder);
  return error;
}

WriteResult resultOf(bool existed, int error) { return {existed, error == 0, error}; }

/// A link that leads nowhere is there: its target is not made.
WriteResult writeNewFile(const std::string& path, Content bytes, NewFile file) {
  struct stat link {};
  if (::lstat(path.c_str(), &link) == 0) return resultOf(false, ENOENT);
  return resultOf(false, replaceFile(path, bytes, nullptr, modeOf(file)));
}

WriteResult replaceTarget(const std::string& path, Content bytes, NewFile file) {
  const auto target = followLinks(path);
  if (!target) return resultOf(true, ELOOP);
  struct stat old {};
  struct stat found {};
  // They differ where another save comes between the two looks, and for a name that is no path.
  for (int i = 0; i == 0 || !isSameFile(found, old); ++i) {
    if (i == kMostLooks) return resultOf(true, ENOENT);
    if (::stat(path.c_str(), &old) != 0 || ::stat(target->c_str(), &found) != 0)
      return resultOf(true, errno);
    if (!S_ISREG(old.st_mode)) return resultOf(true, ENOTSUP);
  }
  if (::faccessat(AT_FDCWD, target->c_str(), W_OK, AT_EACCESS) != 0) return resultOf(true, errno);
  const bool takes_after = file != NewFile::always_for_its_user_alone;
  return resultOf(true, replaceFile(*target, bytes, takes_after ? &old : nullptr, kHiddenMode));
}

WriteResult writeAnyFile(const std::string& path, Content bytes, NewFile file) {
  struct stat old {};
  if (::stat(path.c_str(), &old) != 0)
    return errno == ENOENT ? writeNewFile(path, bytes, file) : resultOf(false, errno);
  if (S_ISDIR(old.st_mode)) return resultOf(false, EISDIR);
  if (!S_ISREG(old.st_mode)) return resultOf(true, ENOTSUP);
  return replaceTarget(path, bytes, file);
}

WriteResult writeOrTry(const std::string& path, Content bytes, NewFile new_file) {
  if (!isPath(path)) return resultOf(false, path.empty() ? ENOENT : EINVAL);
  try {
    return writeAnyFile(path, bytes, new_file);
  } catch (const std::bad_alloc&) {  // before the new file has its place
    return resultOf(fileExists(path), ENOMEM);
  }
}

/// A regular file, open for reading; nothing else is waited for, nor even opened where that can be
/// told before.
Descriptor openRegularFile(const std::string& path, struct stat& status) {
  if (!isPath(path) || ::stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode))
    return Descriptor();
  const int number = openFile(path, O_RDONLY | O_NONBLOCK);
  if (number >= 0 && ::fstat(number, &status) == 0 && S_ISREG(status.st_mode))
    return Descriptor(number);
  const Descriptor other(number);
  return Descriptor();
}

}  // namespace

bool fileExists(const std::string& path) {
  struct stat status {};
  if (!isPath(path)) return false;
  return ::lstat(path.c_str(), &status) == 0 || (errno != ENOENT && errno != ENOTDIR);
}

bool createMissingFile(const std::string& path) {
  if (!isPath(path)) return false;
  Descriptor descriptor(openFile(path, O_WRONLY | O_CREAT | O_EXCL, kModeOfNewFile));
  return descriptor && descriptor.close() == 0;
}

void removeEmptyFile(const std::string& path) {
  struct stat status {};
  const bool is_there = isPath(path) && ::lstat(path.c_str(), &status) == 0;
  if (is_there && S_ISREG(status.st_mode) && status.st_size == 0) ::unlink(path.c_str());
}

std::optional<std::string> readWholeFile(const std::string& path) {
  struct stat status {};
  const Descriptor descriptor = openRegularFile(path, status);
  if (!descriptor || status.st_size > static_cast<off_t>(kMaxWholeFile)) return std::nullopt;
  std::string bytes;
  bytes.reserve(static_cast<std::size_t>(status.st_size));
  std::string block(std::size_t{1} << 16, '\0');
  for (;;) {
    const auto size =
        retried([&] { return ::read(descriptor.number(), block.data(), block.size()); });
    if (size < 0 || bytes.size() + static_cast<std::size_t>(size) > kMaxWholeFile)
      return std::nullopt;
    if (size == 0) return bytes;
    bytes.append(block, 0, static_cast<std::size_t>(size));
  }
}

WriteResult writeWholeFile(const std::string& path, std::string_view bytes, NewFile new_file) {
  return writeOrTry(path, bytes, new_file);
}

int obstacleToWriting(const std::string& path) {
  return writeOrTry(path, std::nullopt, NewFile::as_any_other).error;
}

}  // namespace zel
