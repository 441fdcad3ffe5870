#pragma once

namespace zel {

/// Whether standard error is a terminal, where a person looks on.
bool errorIsTerminal();

}  // namespace zel
