#pragma once

#include <string>
#include <string_view>

/// Text files, read and written whole. In memory the text is UTF-8, in the file Windows-1252; a
/// character that the code page lacks is written as "?".
namespace zel {

/// Whether the file was there and could be read (memory for it included); otherwise `text` is
/// unchanged. Reading a file that does not exist creates it empty: this is meant.
bool readTextFile(const std::string& path, std::string& text);

/// Writes the text whole or not at all. Returns whether the file was there before the write, false
/// after an error: a new file is written and gives false, and this is meant.
bool writeTextFile(const std::string& path, std::string_view text);

}  // namespace zel
