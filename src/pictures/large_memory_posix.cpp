#include <sys/mman.h>

#include "pictures/large_memory.h"

namespace zel {

void expectWholeUse(void* memory, std::size_t bytes) {
#ifdef MADV_HUGEPAGE
  madvise(memory, bytes, MADV_HUGEPAGE);  // where it fails nothing is lost but time
#else
  static_cast<void>(memory);
  static_cast<void>(bytes);
#endif
}

}  // namespace zel
