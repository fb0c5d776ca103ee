// What loops that a compiler turns into vector code ask of it, each thing empty where it is not to be had.
//
// MIRELLE_VERSIONS before a function has it compiled once for every generation of the processor, from the
// same source; the program takes the best one when it starts. Its work is on whole numbers, or compiled
// without fused products and sums, so that all versions give the same results. It needs GCC on x86-64 Linux.
// Builds that define MIRELLE_ONE_VERSION or use a sanitizer, whose runtime is not up when the choice is made,
// have the plainest one alone.
//
// MIRELLE_INLINE makes a helper part of each version; MIRELLE_LAMBDA does so for a lambda, behind its
// parameters. MIRELLE_INDEPENDENT before a loop says that no pass of it reads what another one writes.
#pragma once

#include <cstddef>

#if defined(__GNUC__) && !defined(__clang__) && defined(__x86_64__) && defined(__GLIBC__) &&                 \
    !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__) && !defined(MIRELLE_ONE_VERSION)
#define MIRELLE_VERSIONS __attribute__((target_clones("default", "arch=x86-64-v3", "arch=x86-64-v4")))
#else
#define MIRELLE_VERSIONS
#endif

#if defined(__clang__)
#define MIRELLE_INLINE __attribute__((always_inline)) inline
#define MIRELLE_LAMBDA __attribute__((always_inline))
#define MIRELLE_INDEPENDENT _Pragma("clang loop vectorize(assume_safety)")
#elif defined(__GNUC__)
#define MIRELLE_INLINE __attribute__((always_inline)) inline
#define MIRELLE_LAMBDA __attribute__((always_inline))
#define MIRELLE_INDEPENDENT _Pragma("GCC ivdep")
#elif defined(_MSC_VER)
#define MIRELLE_INLINE __forceinline
#define MIRELLE_LAMBDA
#define MIRELLE_INDEPENDENT __pragma(loop(ivdep))
#else
#define MIRELLE_INLINE inline
#define MIRELLE_LAMBDA
#define MIRELLE_INDEPENDENT
#endif
