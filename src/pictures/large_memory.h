#pragma once

#include <algorithm>
#include <cstddef>
#include <new>
#include <vector>

#include "pictures/pause.h"

namespace zel {

/// Tells the system that so much memory will be used as a whole. Where it has large pages, it gives
/// those at the first touch: a picture then costs four page faults and not two thousand.
void expectWholeUse(void* memory, std::size_t bytes);

/// The allocator of vectors as large as a picture.
template <class Number>
struct LargeMemory {
  using value_type = Number;

  LargeMemory() = default;
  template <class Other>
  explicit(false) LargeMemory(const LargeMemory<Other>&) {}

  static constexpr std::size_t kLargePage = std::size_t{1} << 21;
  static constexpr bool isLarge(std::size_t count) { return count >= kLargePage / sizeof(Number); }

  Number* allocate(std::size_t count) {
    if (count > std::size_t(-1) / 2 / sizeof(Number)) throw std::bad_array_new_length();
    const std::size_t bytes = count * sizeof(Number);
    if (!isLarge(count)) return static_cast<Number*>(::operator new(bytes));
    const std::size_t pages = (bytes + kLargePage - 1) / kLargePage * kLargePage;
    void* const memory = ::operator new (pages, std::align_val_t{kLargePage});
    expectWholeUse(memory, pages);
    return static_cast<Number*>(memory);
  }
  void deallocate(Number* memory, std::size_t count) {
    if (isLarge(count))
      ::operator delete (memory, std::align_val_t{kLargePage});
    else
      ::operator delete(memory);
  }

  bool operator==(const LargeMemory&) const = default;
};

template <class Number>
using LargeVector = std::vector<Number, LargeMemory<Number>>;

/// So many times the same number. The system hands memory over at its first touch and may take a
/// second for a large picture, so there is a pause at each large page.
template <class Number>
LargeVector<Number> filledVector(std::size_t size, Number number, const Pause& pause) {
  constexpr std::size_t kPart = LargeMemory<Number>::kLargePage / sizeof(Number);
  LargeVector<Number> numbers;
  numbers.reserve(size);
  for (;;) {
    numbers.resize(std::min(size, numbers.size() + kPart), number);
    if (numbers.size() == size) return numbers;
    pause();
  }
}

}  // namespace zel
