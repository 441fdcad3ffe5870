#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace zel {

/// The command-line program: `arguments` without the program's name. Returns the exit status.
int runCli(const std::vector<std::string>& arguments, std::istream& in, std::ostream& out,
           std::ostream& err);

}  // namespace zel
