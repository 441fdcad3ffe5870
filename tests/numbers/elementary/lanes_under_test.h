#pragma once

#include <span>

#include "numbers/elementary/functions.h"

/// Sweeps as the block program makes them, for each instruction set.
namespace zel::test {

inline constexpr std::size_t kLanesUnderTest = 16;

/// `values` are as many as `xs`, a multiple of the lanes. The machine has the instruction set.
void sweep(InstructionSet set, Elementary function, std::span<const double> xs,
           std::span<double> values);
void sweepPower(InstructionSet set, std::span<const double> xs, std::span<const double> ys,
                std::span<double> values);

}  // namespace zel::test
