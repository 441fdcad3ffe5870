#include "cli/session.h"

namespace zel {

int Session::load(const std::string& path, const Console& console) {
  std::string message;
  if (loadDocument(path, view, graphs, header, message)) return kExitDone;
  return console.fail(openFailureMessage(message));
}

int Session::loadIfGiven(const std::string& path, const Console& console) {
  return path.empty() ? kExitDone : load(path, console);
}

}  // namespace zel
