// Replaces the global operator new of this test program by one that fails when it is told to.

#include "failing_new.h"

#include <cstdlib>
#include <new>

namespace {

bool is_counting = false;
bool fails_for_good = false;
long fails_at = 0;
long calls = 0;

bool isFaulty(const void* caller) {
  if (!is_counting || !zel::test::may_fail(caller)) return false;
  ++calls;
  return fails_for_good ? calls >= fails_at : calls == fails_at;
}

void* allocate(std::size_t size, const void* caller) {
  if (!isFaulty(caller))
    if (void* const memory = std::malloc(size == 0 ? 1 : size)) return memory;
  throw std::bad_alloc();
}

}  // namespace

namespace zel::test {

bool (*may_fail)(const void* caller) = [](const void*) { return true; };

long withFailingMemory(long first, bool lasts, const std::function<void()>& attempt) {
  fails_at = first;
  fails_for_good = lasts;
  calls = 0;
  is_counting = true;
  attempt();
  is_counting = false;
  return calls;
}

long failEachAllocation(bool lasts, const std::function<void()>& attempt,
                        const std::function<void()>& look) {
  long first = 1;
  while (withFailingMemory(first, lasts, attempt) >= first) {
    look();
    ++first;
  }
  look();
  return first - 1;
}

}  // namespace zel::test

void* operator new(std::size_t size) { return allocate(size, __builtin_return_address(0)); }
/// The library's own would return to the library, whoever calls it.
void* operator new[](std::size_t size) { return allocate(size, __builtin_return_address(0)); }

void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }
