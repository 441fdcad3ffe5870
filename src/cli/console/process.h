#pragma once

#include <string>
#include <vector>

/// What a process gets from its system.
namespace zel {

/// The command line's arguments without the program's name, in UTF-8.
std::vector<std::string> processArguments(int argc, char** argv);

/// Standard streams that carry bytes: nothing is made of line ends or control characters, and a
/// console shows UTF-8 until the program ends. To be called before anything is read or written.
void useByteStreams();

}  // namespace zel
