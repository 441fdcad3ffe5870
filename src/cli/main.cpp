#include <iostream>
#include <string>
#include <vector>

#include "cli/cli.h"
#include "cli/interrupt.h"

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  zel::endOnInterrupt();
  return zel::runCli(std::vector<std::string>(argv + 1, argv + argc), std::cin, std::cout,
                     std::cerr);
}
