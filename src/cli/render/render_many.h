#pragma once

#include <string>
#include <vector>

#include "cli/console/console.h"
#include "cli/render/render_one.h"
#include "cli/view_options.h"

namespace zel {

/// Throws CLI::ValidationError where a picture would replace one of the documents, whichever way
/// the paths lead there.
void keepDocuments(const std::vector<RenderJob>& jobs);

/// The pictures of documents in a folder, each with its document's name and another ending. Throws
/// CLI::ValidationError where two would have one name, where one would replace a document, and for
/// standard input, which has no name.
std::vector<RenderJob> picturesInFolder(const std::vector<std::string>& files,
                                        const std::string& folder, const std::string& ending);

/// Draws all, on all cores. The failure of one does not keep the others: each has a line on
/// standard error, in their order. Returns the exit status.
int renderMany(const std::vector<RenderJob>& jobs, const WantedView& wanted,
               const Console& console);

}  // namespace zel
