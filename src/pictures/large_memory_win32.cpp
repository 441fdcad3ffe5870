#include "pictures/large_memory.h"

namespace zel {

/// Large pages need a right there that users seldom have.
void expectWholeUse(void*, std::size_t) {}

}  // namespace zel
