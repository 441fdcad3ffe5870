#include "cli/session.h"

#include <ostream>

namespace zel {

int Session::load(const std::string& path, const Console& console) {
  std::string message;
  if (loadDocument(path, view, graphs, header, message)) return kExitDone;
  return console.fail(openFailureMessage(message));
}

int Session::loadIfGiven(const std::string& path, const Console& console) {
  return path.empty() ? kExitDone : load(path, console);
}

std::optional<GraphDef> Session::graphInUse(char letter, const Console& console) const {
  auto def = graphs.graph(letter);
  if (def && def->defined) return def;
  console.err << inLanguage("No hay un gráfico ", "There is no graph ") << letter << '\n';
  return std::nullopt;
}

}  // namespace zel
