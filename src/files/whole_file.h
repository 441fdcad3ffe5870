#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// Regular files as bytes, read and written whole. Paths are the system's own bytes on POSIX and
/// UTF-8 on Windows. Pipes, devices and sockets are refused without a wait.
namespace zel {

/// In bytes; a longer file cannot be read.
inline constexpr std::size_t kMaxWholeFile = std::size_t{256} << 20;

/// Whether there is anything at the path. A symbolic link counts, wherever it leads, and so does
/// what may not be looked at.
bool fileExists(const std::string& path);

/// Makes an empty file where there is nothing; a symbolic link is something. False when it cannot.
bool createMissingFile(const std::string& path);

/// Takes a regular file away that is there and empty. Anything else stays.
void removeEmptyFile(const std::string& path);

/// Nothing when the file is missing, not regular, too long or cannot be read.
std::optional<std::string> readWholeFile(const std::string& path);

struct WriteResult {
  bool existed = false;  // the file was there before
  bool written = false;  // the bytes are there now
  int error = 0;         // the system's number of what stood in the way; 0 where nothing of it did

  bool operator==(const WriteResult&) const = default;
};

/// Who may use a file that is made where there was none, and with `always` also one that takes the
/// place of another. On Windows the folder says who.
enum class NewFile { as_any_other, for_its_user_alone, always_for_its_user_alone };

/// Replaces the file by a new one with its permissions, access control list and extended
/// attributes (on Windows its attributes and access control list), in one step: a failure leaves
/// the older file as it was and nothing else behind, and only a kill, or a disk that fails for
/// good, can leave a temporary file in the folder (".zel-...tmp", on POSIX for its user alone),
/// which the next write there takes away. A symbolic link stays and its target is replaced; one
/// that leads nowhere is not followed. What may not be written is not replaced.
WriteResult writeWholeFile(const std::string& path, std::string_view bytes,
                           NewFile new_file = NewFile::as_any_other);

/// What a write would fail at now, before there are bytes to be written: the system's number, or 0
/// where it would begin. The file is not touched; a temporary one comes and goes in its folder.
int obstacleToWriting(const std::string& path);

}  // namespace zel
