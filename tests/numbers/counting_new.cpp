// Replaces the global operator new of this test program by one that counts. A source of its own, so
// that the compiler cannot see through it.

#include "counting_new.h"

#include <cstdlib>
#include <new>

namespace {

std::size_t allocations = 0;

}  // namespace

namespace zel::test {

std::size_t allocationCount() { return allocations; }

}  // namespace zel::test

void* operator new(std::size_t size) {
  ++allocations;
  if (void* const memory = std::malloc(size == 0 ? 1 : size)) return memory;
  throw std::bad_alloc();
}

void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
