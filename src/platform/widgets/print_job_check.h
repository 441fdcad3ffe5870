#pragma once

class QPrinter;

namespace zel {

/// Whether the page that a painter has just ended on this printer came through: a print server may
/// refuse the job, and the disk of a printed file may be full, of which the painter knows nothing.
bool hasTakenJob(const QPrinter& printer);

}  // namespace zel
