#pragma once

#include <cstddef>

namespace zel::test {

/// How often this program has called operator new so far.
std::size_t allocationCount();

}  // namespace zel::test
