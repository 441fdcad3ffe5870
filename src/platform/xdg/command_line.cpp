#include "platform/command_line.h"

namespace zel {

std::string commandLine(int argument_count, const char* const* arguments) {
  std::string line;
  for (int i = 1; i < argument_count; ++i) {
    if (i > 1) line += ' ';
    line += arguments[i];
  }
  return line;
}

}  // namespace zel
