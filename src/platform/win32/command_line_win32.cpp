#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <algorithm>

#include "platform/command_line.h"
#include "platform/win32/text_encoding.h"

namespace zel {

/// The arguments are in the system's code page, which many names are not in.
std::string commandLine(int /*argument_count*/, const char* const* /*arguments*/) {
  std::wstring_view line = GetCommandLineW();
  const bool is_quoted = line.starts_with(L'"');
  const std::size_t end = is_quoted ? line.find(L'"', 1) : line.find_first_of(L" \t");
  line.remove_prefix(std::min(end, line.size()));
  if (is_quoted && !line.empty()) line.remove_prefix(1);
  line.remove_prefix(std::min(line.find_first_not_of(L" \t"), line.size()));
  return fromWide(line);
}

}  // namespace zel
