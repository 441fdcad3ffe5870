#pragma once

#include <string>

#include "cli/console/console.h"
#include "cli/console/progress.h"
#include "cli/view_options.h"

namespace zel {

/// A document and the picture of it.
struct RenderJob {
  std::string file;    // "-" is standard input
  std::string out;     // "-" is standard output
  std::string ending;  // the picture's format: "svg", "png" or "pdf"
};

/// Draws a document and writes the picture whole, or says on standard error why there is none.
/// What is not wanted otherwise comes from the document. `progress` may be null. Returns the exit
/// status. Several threads may do different jobs at once.
int renderOne(const RenderJob& job, const WantedView& wanted, const Console& console,
              Progress* progress);

}  // namespace zel
