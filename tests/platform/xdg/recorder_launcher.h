#pragma once

#include <string>
#include <vector>

#include "platform/xdg/launcher.h"

namespace zel::test {

/// Keeps what would be started, each command as its words with a blank between them.
class RecorderLauncher {
 public:
  Launcher launcher() {
    return [this](const std::string& program, const std::vector<std::string>& arguments) {
      std::string line = program;
      for (const std::string& argument : arguments) line += " " + argument;
      lines.push_back(line);
      return succeeds;
    };
  }

  std::vector<std::string> lines;
  bool succeeds = true;
};

}  // namespace zel::test
