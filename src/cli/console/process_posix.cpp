#include <algorithm>
#include <iostream>

#include "cli/console/process.h"

namespace zel {

std::vector<std::string> processArguments(int argc, char** argv) {
  return std::vector<std::string>(argv + std::min(argc, 1), argv + argc);
}

void useByteStreams() { std::ios::sync_with_stdio(false); }

}  // namespace zel
