#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/dictionary.h"

namespace zel {

/// The values that a kind of graph has beside its formula, under lower-case keys ("h", "r",
/// "inicio", "codigo1"), as texts. Their order is the order in which a document lists them.
using Parameters = KeyedDictionary<std::string>;

/// One graph of the document, and one slot of the graph table.
struct GraphDef {
  char nombre = '\0';                      // "a" to "z"
  std::string ecuacion;                    // the formula as the user sees it
  std::string codigo;                      // the compiled code of the main formula
  std::int32_t color = 0;                  // red in the low byte
  char tipo = '\0';                        // a character of the documents' code page, '\0' for none
  bool defined = false;                    // the slot is in use
  std::string carpeta;                     // written to documents, never read back
  std::shared_ptr<Parameters> parameters;  // shared by all copies; null in an empty slot
};

/// The kind as text; empty when there is none. A kind that no graph has is kept all the same.
std::string kindText(const GraphDef& def);

/// The value of a parameter; empty when the graph has no such key.
std::string parameter(const GraphDef& def, std::string_view key);

/// The line that lists show, "a(x)=x^2"; empty for a kind that is not known.
std::string displayText(const GraphDef& def);

/// The same in pieces that stay in the graph, for a text that is not to be copied.
std::vector<std::string_view> displayPieces(const GraphDef& def);

/// The radius of a circumference, the "a" of an ellipse or a hyperbola. Nothing where that text is
/// no number, and for every other kind.
std::optional<double> mainParameter(const GraphDef& def);

/// Whether the graph is drawn from "codigo1" and "codigo2"; false for a kind that is not known.
bool isTwoBranch(const GraphDef& def);

}  // namespace zel
