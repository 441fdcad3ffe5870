#include <unistd.h>

#include "cli/console/terminal.h"

namespace zel {

bool errorIsTerminal() { return isatty(STDERR_FILENO) == 1; }

}  // namespace zel
