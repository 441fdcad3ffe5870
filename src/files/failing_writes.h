#pragma once

namespace zel {

/// What becomes of a write to a pipe that nobody reads any more.
enum class ClosedPipe { ends_process, fails };

/// From now on a write past the largest size that the process may give a file fails like any other,
/// and does not end the process. Programs that are started know nothing of it, and what whoever
/// started this process has ignored stays ignored. On Windows no write ends a process.
void letWritesFail(ClosedPipe closed_pipe);

}  // namespace zel
