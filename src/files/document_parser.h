#pragma once

#include <string_view>

#include "files/document.h"

namespace zel {

enum class ParseOutcome {
  complete,
  section_missing,  // one of the three main sections
  failed,           // an error inside a section
};

/// Reads the text of a document. The view's pairs are applied and the graphs stored as they come,
/// and stay when the parse ends early; the header changes when its section was read whole. Takes
/// time and memory in proportion to the text, whatever it holds.
ParseOutcome parseDocument(std::string_view text, MainView& view, GraphTable& graphs,
                           DocumentHeader& header);

}  // namespace zel
