// Who may use a file is said in three places: its owner and group, its permissions, and an access
// control list, which Linux keeps as an extended attribute. A list names users and groups beside
// the owning ones, and the group's bits of the permissions are then the mask of them all; so the
// list goes first, and the permissions are never set without it to what they were with it.

#include <algorithm>
#include <array>
#include <cerrno>
#include <optional>
#include <string_view>
#include <vector>

#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include "files/descriptor.h"
#include "files/file_access.h"

namespace zel {
namespace {

constexpr const char* kList = "system.posix_acl_access";
constexpr mode_t kPermissions = 07777;
constexpr mode_t kSpecialBits = S_ISUID | S_ISGID | S_ISVTX;

/// What vouches for the old bytes, and so is not true of the new ones.
constexpr std::array<std::string_view, 3> kOfTheOldBytes = {"security.capability", "security.evm",
                                                            "security.ima"};

/// The attribute's bytes. Nothing when there are none or they cannot be read: errno tells which.
std::optional<std::string> attribute(const std::string& path, const char* name) {
  const auto size = ::getxattr(path.c_str(), name, nullptr, 0);
  if (size < 0) return std::nullopt;
  std::string value(static_cast<std::size_t>(size), '\0');
  const auto read = ::getxattr(path.c_str(), name, value.data(), value.size());
  if (read < 0) return std::nullopt;
  value.resize(static_cast<std::size_t>(read));
  return value;
}

/// Each name ends with a '\0' in what the system gives.
std::vector<std::string> attributeNames(const std::string& path) {
  const auto size = ::listxattr(path.c_str(), nullptr, 0);
  if (size <= 0) return {};
  std::string list(static_cast<std::size_t>(size), '\0');
  const auto read = ::listxattr(path.c_str(), list.data(), list.size());
  if (read <= 0) return {};
  list.resize(static_cast<std::size_t>(read));
  std::vector<std::string> names;
  for (std::size_t begin = 0; begin < list.size(); begin += names.back().size() + 1)
    names.emplace_back(list.c_str() + begin);
  return names;
}

bool isUnknown(int error) { return error == ENODATA || error == ENOTSUP; }

bool put(int number, const char* name, const std::string& value) {
  return ::fsetxattr(number, name, value.data(), value.size(), 0) == 0;
}

/// A list is a version of four bytes and entries of eight, little-endian: a tag of two bytes,
/// permissions of two, of which the first counts, and the number of a user or a group.
class AccessList {
 public:
  explicit AccessList(std::string& bytes) : bytes_(bytes) {}

  /// For a file whose group is not the old one: the old group's members are among the others now,
  /// and the new group's were.
  void leaveGroup() {
    char* const group = permissionsOf(kOwningGroup);
    char* const others = permissionsOf(kOthers);
    if (group == nullptr || others == nullptr) return;
    const char* const mask = permissionsOf(kMask);
    *group = static_cast<char>(*group & *others & (mask == nullptr ? *group : *mask));
    *others = *group;
  }

 private:
  static constexpr char kOwningGroup = 0x04;
  static constexpr char kMask = 0x10;
  static constexpr char kOthers = 0x20;
  static constexpr std::size_t kHead = 4;
  static constexpr std::size_t kEntry = 8;

  char* permissionsOf(char tag) {
    for (std::size_t at = kHead; at + kEntry <= bytes_.size(); at += kEntry)
      if (bytes_[at] == tag) return &bytes_[at + 2];
    return nullptr;
  }

  std::string& bytes_;
};

/// The permissions of a file without a list.
mode_t permissionsFor(const struct stat& made, const struct stat& old) {
  const mode_t mode = old.st_mode & kPermissions;
  if (made.st_gid == old.st_gid) return mode;
  const mode_t everybody = (mode & (mode >> 3)) & S_IRWXO;
  return (mode & (S_IRWXU | S_ISVTX)) | (everybody << 3) | everybody;
}

/// The list is on the new file, and its permissions follow from it.
mode_t permissionsByList(int number, mode_t permissions) {
  struct stat made {};
  if (::fstat(number, &made) != 0) return permissions & S_IRWXU;
  return (made.st_mode & ~kSpecialBits & kPermissions) | (permissions & kSpecialBits);
}

/// Brings the list over, and takes one away that came from the folder. Returns the permissions to
/// set: without its list a file is the owner's alone.
mode_t keepList(int number, const std::string& path, mode_t permissions, bool same_group) {
  auto list = attribute(path, kList);
  if (!list && isUnknown(errno)) {
    const bool is_plain = ::fremovexattr(number, kList) == 0 || isUnknown(errno);
    return is_plain ? permissions : permissions & S_IRWXU;
  }
  if (list && !same_group) AccessList(*list).leaveGroup();
  if (!list || !put(number, kList, *list)) return permissions & S_IRWXU;
  return permissionsByList(number, permissions);
}

/// One that cannot be kept is lost.
void keepOtherAttributes(int number, const std::string& path) {
  for (const std::string& name : attributeNames(path)) {
    if (name == kList || std::ranges::find(kOfTheOldBytes, name) != kOfTheOldBytes.end()) continue;
    if (const auto value = attribute(path, name.c_str())) put(number, name.c_str(), *value);
  }
}

}  // namespace

int takeAfter(int number, const std::string& path, const struct stat& old) {
  constexpr auto kSameUser = static_cast<uid_t>(-1);
  const auto give = [&](uid_t user) {
    return retried([&] { return ::fchown(number, user, old.st_gid); }) == 0;
  };
  static_cast<void>(give(old.st_uid) || give(kSameUser));
  struct stat made {};
  if (::fstat(number, &made) != 0) return errno;
  const mode_t mode = keepList(number, path, permissionsFor(made, old), made.st_gid == old.st_gid);
  if (::fstat(number, &made) != 0) return errno;
  const bool is_other = (made.st_mode & kPermissions) != mode;
  if (is_other && retried([&] { return ::fchmod(number, mode); }) != 0) return errno;
  keepOtherAttributes(number, path);
  return 0;
}

}  // namespace zel
