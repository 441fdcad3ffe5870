#include <io.h>

#include "cli/console/terminal.h"

namespace zel {

bool errorIsTerminal() {
  constexpr int kStandardError = 2;
  return _isatty(kStandardError) != 0;
}

}  // namespace zel
