#include "cli/session.h"

#include <ostream>

#include "cli/console/input_output.h"
#include "files/whole_file.h"

namespace zel {

int Session::load(const std::string& path, const Console& console) {
  std::string message;
  if (isStandardStream(path) ? loadStandardInput(console, message) : loadFile(path, message))
    return kExitDone;
  return console.fail(openFailureMessage(message));
}

bool Session::loadFile(const std::string& path, std::string& message) {
  return fileExists(path) && loadDocument(path, view, graphs, header, message);
}

bool Session::loadStandardInput(const Console& console, std::string& message) {
  const auto bytes = readStandardInput(console);
  return bytes && loadDocumentBytes(*bytes, view, graphs, header, message);
}

int Session::loadIfGiven(const std::optional<std::string>& path, const Console& console) {
  return path ? load(*path, console) : kExitDone;
}

std::optional<GraphDef> Session::graphInUse(char letter, const Console& console) const {
  auto def = graphs.graph(letter);
  if (def && def->defined) return def;
  console.err << inLanguage("No hay un gráfico ", "There is no graph ") << letter << '\n';
  return std::nullopt;
}

}  // namespace zel
