#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// Files as bytes, read and written whole. Paths are UTF-8.
namespace zel {

/// In bytes; a longer file cannot be read.
inline constexpr std::size_t kMaxWholeFile = std::size_t{256} << 20;

/// Whether there is something other than a folder at the path, links followed.
bool fileExists(const std::string& path);

/// Makes an empty file where there is none; otherwise changes nothing. False when it cannot.
bool createMissingFile(const std::string& path);

/// Nothing when the file is missing, too long or cannot be read.
std::optional<std::string> readWholeFile(const std::string& path);

struct WriteResult {
  bool existed = false;  // the file was there before
  bool written = false;  // the bytes are there now

  bool operator==(const WriteResult&) const = default;
};

/// Replaces the file by a new one with its permissions, in one step: a failure leaves the older
/// file as it was and nothing else behind, and only a kill can leave a temporary file (".zel-...")
/// in the folder. A symbolic link stays and its target is replaced or created. What may not be
/// written is not replaced. A device or FIFO is written in place.
WriteResult writeWholeFile(const std::string& path, std::string_view bytes);

}  // namespace zel
