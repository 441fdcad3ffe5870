#pragma once

/// Loops are compiled for several instruction sets of the processor family, and the best one that
/// the machine has is chosen at run time. All give the same bits. With ZEL_BASELINE there is but
/// one.

#if defined(__GNUC__)
#define ZEL_ALWAYS_INLINE __attribute__((always_inline)) inline
#define ZEL_INLINE_LAMBDA __attribute__((always_inline))
#else
#define ZEL_ALWAYS_INLINE inline
#define ZEL_INLINE_LAMBDA
#endif

#if defined(__GNUC__) && defined(__x86_64__) && !defined(ZEL_BASELINE)
#define ZEL_HAS_TARGETS 1
#if defined(_WIN32)
// Windows keeps the stack aligned to 16 bytes, so no wider register may be spilled.
#define ZEL_TARGET_V3 __attribute__((target("avx2,fma,bmi,bmi2,prefer-vector-width=128")))
#define ZEL_TARGET_V4 ZEL_TARGET_V3
#elif defined(__clang__)
#define ZEL_TARGET_V3 __attribute__((target("avx2,fma,bmi,bmi2")))
#define ZEL_TARGET_V4 ZEL_TARGET_V3
#else
#define ZEL_TARGET_V3 __attribute__((target("arch=x86-64-v3")))
#define ZEL_TARGET_V4 __attribute__((target("arch=x86-64-v4,prefer-vector-width=512")))
#endif
#else
#define ZEL_HAS_TARGETS 0
#endif

namespace zel {

/// The levels of x86-64 that loops are compiled for; any other processor is a baseline.
enum class InstructionSet { baseline, v3, v4 };

inline InstructionSet bestInstructionSet() {
#if ZEL_HAS_TARGETS
  __builtin_cpu_init();
  const bool has_v3 = __builtin_cpu_supports("avx2") != 0 && __builtin_cpu_supports("fma") != 0 &&
                      __builtin_cpu_supports("bmi") != 0 && __builtin_cpu_supports("bmi2") != 0;
  if (!has_v3) return InstructionSet::baseline;
  const bool has_v4 =
      __builtin_cpu_supports("avx512f") != 0 && __builtin_cpu_supports("avx512bw") != 0 &&
      __builtin_cpu_supports("avx512cd") != 0 && __builtin_cpu_supports("avx512dq") != 0 &&
      __builtin_cpu_supports("avx512vl") != 0;
  return has_v4 ? InstructionSet::v4 : InstructionSet::v3;
#else
  return InstructionSet::baseline;
#endif
}

}  // namespace zel
