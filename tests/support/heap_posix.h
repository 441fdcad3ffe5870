#pragma once

#include <cstddef>
#include <cstdlib>

#include <malloc.h>

namespace zel::test {

/// The bytes that the program has asked for and not given back.
inline std::size_t heapInUse() {
  const struct mallinfo2 info = ::mallinfo2();
  return info.uordblks + info.hblkhd;
}

/// How often a test is to repeat what it does: ZEL_ROUNDS, or a few times.
inline int wantedRounds(int few) {
  const char* const text = std::getenv("ZEL_ROUNDS");
  return text == nullptr ? few : std::atoi(text);
}

}  // namespace zel::test
