#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "files/document.h"

namespace zel {

enum class ParseOutcome {
  complete,
  section_missing,  // one of the three main sections
  failed,           // an error inside a section
};

/// The pairs of a section that are kept by their keys: of the header, of a graph's properties and
/// of its parameters. One more is an error inside the section.
inline constexpr std::size_t kMostPairs = 16384;

/// The line that ends a section.
inline constexpr std::string_view kTerminator = " ";

/// Reads the bytes of a document. The view's pairs are applied and the graphs stored as they come,
/// and stay when the parse ends early; the header is given when its section was read whole. Takes
/// time and memory in proportion to the bytes, whatever they hold.
ParseOutcome parseDocument(std::string_view bytes, MainView& view, GraphTable& graphs,
                           std::optional<DocumentHeader>& header);

}  // namespace zel
