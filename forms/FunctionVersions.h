// What loops that a compiler turns into vector code ask of it: to be compiled for the widest registers that
// the processor has, from one source.
//
// InBestVersion(work) runs a lambda that is compiled three times, for vector registers of 16, 32 and 64 bytes
// (every x86-64 processor's, AVX2's and AVX-512's), and takes the widest that there are. Loops over single
// bits gain too: the two wider versions have the bit steps of BMI and BMI2, and are for processors that have
// these.
//
//     InBestVersion([=]() MIRELLE_LAMBDA {
//         for (std::size_t i = 0; i < count; ++i)
//             to[i] = Blended(from[i], to[i], alpha);
//     });
//
// The lambda takes what it needs by value: bytes that are written could be part of anything that it refers
// to. Work is on whole numbers, or on floats without fused products and sums, so that all versions give the
// same results. InBestVersion<Registers::Of32Bytes> leaves out a version that would not be faster.
//
// A target whose sources use it is given mirelle_vector_code() in its CMakeLists.txt. GCC and Clang make the
// versions; what another compiler makes has the plainest alone.
//
// MIRELLE_INLINE makes a helper part of each version; MIRELLE_LAMBDA does so for a lambda, behind its
// parameters. MIRELLE_INDEPENDENT before a loop says that no pass of it reads memory that another one writes;
// a local variable may be carried on from pass to pass. MIRELLE_FETCH_TO_READ and MIRELLE_FETCH_TO_WRITE have
// the cache line of an address fetched while other work goes on; nothing but the time changes.
#pragma once

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

#if defined(__GNUC__)
#define MIRELLE_FETCH_TO_READ(address) __builtin_prefetch(address)
#define MIRELLE_FETCH_TO_WRITE(address) __builtin_prefetch(address, 1)
#else
#define MIRELLE_FETCH_TO_READ(address) static_cast<void>(address)
#define MIRELLE_FETCH_TO_WRITE(address) static_cast<void>(address)
#endif

namespace mirelle {

// The widest vector registers that a version uses, by their bytes.
enum class Registers { Of16Bytes = 16, Of32Bytes = 32, Of64Bytes = 64 };

// The widest that this processor, and a version for it, has.
Registers WidestRegisters() noexcept;

// Those that the program uses: the widest, or no wider ones than the environment variable MIRELLE_REGISTERS
// tells in bytes, if it is set. That changes nothing but the time. Asked once a run of the program.
Registers RegistersInUse() noexcept;

// Not there where a target lacks mirelle_vector_code(): 32 bytes are more than the stack on 64-bit Windows is
// aligned to, and GCC takes no notice; the assembler has to be told.
#if defined(MIRELLE_VECTOR_CODE)

// The lambda in one version, which the processor has to have. From a copy of its own, which nothing else can
// refer to.
template <class Work>
void In16Bytes(const Work& given) {
    const Work work = given;
    work();
}

#if defined(__GNUC__) && defined(__x86_64__)

template <class Work>
__attribute__((target("avx2,bmi,bmi2"))) void In32Bytes(const Work& given) {
    const Work work = given;
    work();
}
template <class Work>
__attribute__((target("avx2,bmi,bmi2,avx512f,avx512bw,avx512dq,avx512vl"))) void
In64Bytes(const Work& given) {
    const Work work = given;
    work();
}

template <Registers widest = Registers::Of64Bytes, class Work>
void InVersion(Registers registers, const Work& work) {
    if constexpr (widest == Registers::Of64Bytes) {
        if (registers == Registers::Of64Bytes) return In64Bytes(work);
    }
    if (registers >= Registers::Of32Bytes) return In32Bytes(work);
    In16Bytes(work);
}

#else

template <Registers widest = Registers::Of64Bytes, class Work>
void InVersion(Registers, const Work& work) {
    In16Bytes(work);
}

#endif

template <Registers widest = Registers::Of64Bytes, class Work>
void InBestVersion(const Work& work) {
    InVersion<widest>(RegistersInUse(), work);
}

#endif

} // namespace mirelle
