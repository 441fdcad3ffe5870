#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Text files, read and written whole. In memory the text is UTF-8, in the file Windows-1252; a
/// character that the code page lacks is written as "?".
namespace zel {

/// Whether there was something at the path. `text` is unchanged when that cannot be read (for want
/// of memory included). Reading where there is nothing creates an empty file: this is meant.
bool readTextFile(const std::string& path, std::optional<std::string>& text);

/// The same for the bytes of the file.
bool readTextBytes(const std::string& path, std::optional<std::string>& bytes);

/// Writes the text whole or not at all. Returns whether the file was there before the write, false
/// after an error: a new file is written and gives false, and this is meant.
bool writeTextFile(const std::string& path, std::string_view text);

}  // namespace zel
