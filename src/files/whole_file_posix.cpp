// A file is replaced by writing a new one beside it and renaming that over it, so that whoever
// looks at the path, at any moment and after a crash too, finds the older or the newer file whole.

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "files/whole_file.h"

namespace zel {
namespace {

constexpr int kMostLinks = 40;
constexpr int kMostTemporaryNames = 100;
constexpr mode_t kModeOfNewFile = 0666;  // less what the umask takes away
constexpr mode_t kPermissions = 07777;

/// Owns a file descriptor.
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() { close(); }

  explicit operator bool() const { return number_ >= 0; }
  int number() const { return number_; }

  /// An interrupted close has closed all the same.
  bool close() {
    if (number_ < 0) return true;
    const bool closed = ::close(number_) == 0 || errno == EINTR;
    number_ = -1;
    return closed;
  }

 private:
  int number_;
};

/// Calls again while a signal interrupts the call.
template <class Call>
auto retried(Call call) {
  auto result = call();
  while (result < 0 && errno == EINTR) result = call();
  return result;
}

int openFile(const std::string& path, int flags, mode_t mode = 0) {
  return retried([&] { return ::open(path.c_str(), flags | O_CLOEXEC | O_NOCTTY, mode); });
}

/// A path can hold no '\0': the system would take another file.
bool isPath(const std::string& path) {
  return !path.empty() && path.find('\0') == std::string::npos;
}

bool writeAll(int number, std::string_view bytes) {
  while (!bytes.empty()) {
    const auto written = retried([&] { return ::write(number, bytes.data(), bytes.size()); });
    if (written <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

/// The folder with its "/", or nothing for the current one.
std::string folderOf(const std::string& path) { return path.substr(0, path.rfind('/') + 1); }

/// Where a chain of symbolic links ends, whether or not there is a file; nothing for a loop.
std::optional<std::string> followLinks(std::string path) {
  for (int i = 0; i < kMostLinks; ++i) {
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

/// The group's permissions must not pass to another group.
mode_t permissionsFor(const struct stat& made, const struct stat& old) {
  const mode_t mode = old.st_mode & kPermissions;
  if (made.st_gid == old.st_gid) return mode;
  const mode_t others = mode & S_IRWXO;
  return (mode & ~static_cast<mode_t>(S_IRWXG | S_ISUID | S_ISGID)) | (mode & (others << 3));
}

/// Gives the new file the permissions of the old one, and its owner where that is allowed.
bool takeAfter(int number, const struct stat& old) {
  constexpr auto kSameUser = static_cast<uid_t>(-1);
  static_cast<void>(::fchown(number, old.st_uid, old.st_gid) == 0 ||
                    ::fchown(number, kSameUser, old.st_gid) == 0);
  struct stat made {};
  if (::fstat(number, &made) != 0) return false;
  const mode_t mode = permissionsFor(made, old);
  return (made.st_mode & kPermissions) == mode || ::fchmod(number, mode) == 0;
}

/// A new file in a folder, which goes away again unless it is renamed.
class TemporaryFile {
 public:
  TemporaryFile(const std::string& folder, mode_t mode) : descriptor_(make(folder, mode)) {}
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile() {
    descriptor_.close();
    if (!path_.empty()) ::unlink(path_.c_str());
  }

  explicit operator bool() const { return static_cast<bool>(descriptor_); }
  int number() const { return descriptor_.number(); }

  bool finish() {
    const bool synced = retried([this] { return ::fsync(descriptor_.number()); }) == 0;
    return descriptor_.close() && synced;
  }

  bool renameTo(const std::string& path) {
    if (::rename(path_.c_str(), path.c_str()) != 0) return false;
    path_.clear();
    return true;
  }

 private:
  /// -1 when no file can be made; `path_` is then empty.
  int make(const std::string& folder, mode_t mode) {
    for (int i = 0; i < kMostTemporaryNames; ++i) {
      path_ = folder + ".zel-" + std::to_string(::getpid()) + "-" + std::to_string(i);
      const int number = openFile(path_, O_WRONLY | O_CREAT | O_EXCL, mode);
      if (number >= 0) return number;
      if (errno != EEXIST) break;
    }
    path_.clear();
    return -1;
  }

  std::string path_;
  Descriptor descriptor_;
};

/// So that the renaming outlives a power cut. Some folders may be written and not read, and some
/// file systems cannot do this: the new file is in its place all the same.
void syncFolder(const std::string& folder) {
  const Descriptor descriptor(openFile(folder.empty() ? "." : folder, O_RDONLY | O_DIRECTORY));
  if (descriptor) retried([&] { return ::fsync(descriptor.number()); });
}

/// `old` is null where there is no file yet.
bool replaceFile(const std::string& path, std::string_view bytes, const struct stat* old) {
  const std::string folder = folderOf(path);
  TemporaryFile file(folder, old == nullptr ? kModeOfNewFile : S_IRUSR | S_IWUSR);
  if (!file || !writeAll(file.number(), bytes)) return false;
  if (old != nullptr && !takeAfter(file.number(), *old)) return false;
  if (!file.finish() || !file.renameTo(path)) return false;
  syncFolder(folder);
  return true;
}

bool writeInPlace(const std::string& path, std::string_view bytes) {
  Descriptor descriptor(openFile(path, O_WRONLY));
  return descriptor && writeAll(descriptor.number(), bytes) && descriptor.close();
}

bool mayWrite(const std::string& path) {
  return ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0;
}

}  // namespace

bool fileExists(const std::string& path) {
  struct stat status {};
  return isPath(path) && ::stat(path.c_str(), &status) == 0 && !S_ISDIR(status.st_mode);
}

bool createMissingFile(const std::string& path) {
  if (!isPath(path)) return false;
  Descriptor descriptor(openFile(path, O_WRONLY | O_CREAT, kModeOfNewFile));
  return descriptor && descriptor.close();
}

std::optional<std::string> readWholeFile(const std::string& path) {
  if (!isPath(path)) return std::nullopt;
  const Descriptor descriptor(openFile(path, O_RDONLY));
  struct stat status {};
  if (!descriptor || ::fstat(descriptor.number(), &status) != 0) return std::nullopt;
  std::string bytes;
  if (S_ISREG(status.st_mode)) {
    if (status.st_size > static_cast<off_t>(kMaxWholeFile)) return std::nullopt;
    bytes.reserve(static_cast<std::size_t>(status.st_size));
  }
  std::string block(std::size_t{1} << 16, '\0');
  for (;;) {
    const auto size =
        retried([&] { return ::read(descriptor.number(), block.data(), block.size()); });
    if (size == 0) return bytes;
    if (size < 0 || bytes.size() + static_cast<std::size_t>(size) > kMaxWholeFile)
      return std::nullopt;
    bytes.append(block, 0, static_cast<std::size_t>(size));
  }
}

WriteResult writeWholeFile(const std::string& path, std::string_view bytes) {
  if (!isPath(path)) return {};
  struct stat old {};
  const bool is_there = ::stat(path.c_str(), &old) == 0;
  if (!is_there && errno != ENOENT) return {};
  if (is_there && S_ISDIR(old.st_mode)) return {};
  if (is_there && !S_ISREG(old.st_mode)) return {true, writeInPlace(path, bytes)};

  const auto target = followLinks(path);
  if (!target) return {is_there, false};
  if (!is_there) return {false, replaceFile(*target, bytes, nullptr)};
  struct stat found {};
  const bool is_target = ::stat(target->c_str(), &found) == 0 && isSameFile(found, old);
  if (!is_target || !mayWrite(*target)) return {true, false};
  return {true, replaceFile(*target, bytes, &old)};
}

}  // namespace zel
