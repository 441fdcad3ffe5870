#pragma once

#include <string>

namespace zel {

/// All that the program was started with behind its own name, as one text: the path of a document,
/// whose blanks need no quotes. Where a path is made of bytes it has the bytes that were given,
/// UTF-8 or not, and arguments are joined by a blank.
std::string commandLine(int argument_count, const char* const* arguments);

}  // namespace zel
