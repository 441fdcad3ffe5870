#pragma once

#include <chrono>
#include <thread>

namespace zel::test {

/// How long a test waits for what must come, in milliseconds: far longer than a busy machine takes.
inline constexpr int kPatience = 600000;

/// Waits for what another process does; false when it does not come.
template <class Condition>
bool waitUntil(const Condition& condition) {
  const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(kPatience);
  while (!condition()) {
    if (std::chrono::steady_clock::now() > end) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
  }
  return true;
}

}  // namespace zel::test
