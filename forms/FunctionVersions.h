// Versions of one function for the processors that a program may meet.
//
// A function marked MIRELLE_VERSIONED is compiled once for every processor and once for those with AVX2;
// which one runs is chosen when the program starts. Its source is plain C++ that the compiler turns into
// vector code, so the versions give the same results. Compilers that know no such versions, and builds that
// define MIRELLE_PLAIN_VERSIONS or use a sanitizer (whose runtime is not up when the choice is made), have
// the plain one alone.
#pragma once

#if defined(__GNUC__) && !defined(__clang__) && defined(__x86_64__) && defined(__linux__) &&                 \
    !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__) && !defined(MIRELLE_PLAIN_VERSIONS)
#define MIRELLE_VERSIONED __attribute__((target_clones("avx2", "default")))
#else
#define MIRELLE_VERSIONED
#endif
