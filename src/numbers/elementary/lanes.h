#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "numbers/elementary/double_double.h"

namespace zel {

/// A function on many lanes: `first(i)` is the Candidate of lane i, and `settled(i)` its value
/// where the candidate leaves it in doubt. The loop over the first stage has no branch, so that it
/// is compiled to vectors; the lanes in doubt, one in some thousands, are settled one by one.
template <std::size_t count, class First, class Settled>
ZEL_ALWAYS_INLINE void computeLanes(double* __restrict result, const First& first,
                                    const Settled& settled) {
  alignas(64) std::array<double, count> others;
  std::uint64_t doubt = 0;
  for (std::size_t i = 0; i < count; ++i) {
    const Candidate candidate = first(i);
    result[i] = candidate.value;
    others[i] = candidate.other;
    doubt |= candidate.isSure() ? 0U : 1U;
  }
  if (doubt == 0) [[likely]]
    return;
  for (std::size_t i = 0; i < count; ++i)
    if (!(result[i] == others[i])) result[i] = settled(i);
}

}  // namespace zel
