#pragma once

#include <optional>
#include <string>

#include "cli/console/console.h"
#include "engine/engine.h"
#include "files/document.h"
#include "graphs/graph_table.h"

namespace zel {

/// One document and one engine that can call its graphs.
struct Session {
  GraphTable graphs;
  MainView view;
  DocumentHeader header;
  Engine engine{[this](char letter) { return graphs.codeOf(letter); }};

  /// Loads a document, which must be there; "-" is standard input. A refusal is said on standard
  /// error. Returns the exit status.
  int load(const std::string& path, const Console& console);

  /// load, when there is a path.
  int loadIfGiven(const std::optional<std::string>& path, const Console& console);

  /// A graph in use; that there is none is said on standard error.
  std::optional<GraphDef> graphInUse(char letter, const Console& console) const;

 private:
  bool loadFile(const std::string& path, std::string& message);
  bool loadStandardInput(const Console& console, std::string& message);
};

}  // namespace zel
