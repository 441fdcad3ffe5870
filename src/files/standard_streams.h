#pragma once

namespace zel {

/// Puts /dev/null in the place of a standard stream that is closed, so that no file or connection
/// that is opened later gets its number, and with it what the program reads and says. Reads and
/// writes of the stream fail as before. To be called first in a process. On Windows a file never
/// takes the place of a standard stream.
void fillStandardStreams();

}  // namespace zel
