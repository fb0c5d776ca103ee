// The versions of one lambda for the processor's vector registers.
#include "forms/FunctionVersions.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <numeric>
#include <vector>

namespace mirelle::test {
namespace {

std::vector<Registers> RegistersHere() {
    std::vector<Registers> here;
    for (const Registers registers : {Registers::Of16Bytes, Registers::Of32Bytes, Registers::Of64Bytes}) {
        if (registers <= WidestRegisters()) here.push_back(registers);
    }
    return here;
}

TEST(FunctionVersions, AreThereForWhatTheProcessorHas) {
#if defined(__GNUC__) && defined(__x86_64__)
    const bool has32Bytes =
        __builtin_cpu_supports("avx2") && __builtin_cpu_supports("bmi") && __builtin_cpu_supports("bmi2");
    EXPECT_EQ(WidestRegisters() >= Registers::Of32Bytes, has32Bytes);
#else
    EXPECT_EQ(WidestRegisters(), Registers::Of16Bytes);
#endif
}

// The program runs these tests with the variable unset, and with each of its values.
TEST(FunctionVersions, AreNoWiderThanTheEnvironmentTells) {
    const char* const told = std::getenv("MIRELLE_REGISTERS");
    const int bytes = told != nullptr ? std::atoi(told) : 64;
    EXPECT_EQ(static_cast<int>(RegistersInUse()), std::min(bytes, static_cast<int>(WidestRegisters())));
}

TEST(FunctionVersions, RunTheLambdaOnceWithWhatItHolds) {
    std::vector<int> runs;
    for (const Registers registers : RegistersHere())
        InVersion(registers,
                  [&runs, registers]() MIRELLE_LAMBDA { runs.push_back(static_cast<int>(registers)); });
    InVersion<Registers::Of32Bytes>(RegistersHere().back(), [&runs]() MIRELLE_LAMBDA { runs.push_back(1); });
    InBestVersion([&runs]() MIRELLE_LAMBDA { runs.push_back(2); });
    std::vector<int> expected;
    for (const Registers registers : RegistersHere())
        expected.push_back(static_cast<int>(registers));
    expected.insert(expected.end(), {1, 2});
    EXPECT_EQ(runs, expected);
}

// On Windows the stack is aligned to 16 bytes, and whatever a version keeps there must not rely on more.
// Calls from different depths come with different alignments.
template <std::size_t depth>
std::uint32_t SumAtDepth(Registers registers, const std::uint32_t* values) {
    volatile char taken[16 * depth + 1] = {};
    std::uint32_t sum = taken[depth];
    InVersion(registers, [values, result = &sum]() MIRELLE_LAMBDA {
        alignas(64) std::uint32_t kept[256];
        for (std::size_t i = 0; i < 256; ++i)
            kept[i] = values[i] * 3 + static_cast<std::uint32_t>(i);
        std::uint32_t total = 0;
        for (std::size_t i = 0; i < 256; ++i)
            total += kept[i] ^ kept[255 - i];
        *result += total;
    });
    return sum;
}

TEST(FunctionVersions, RunOnAStackOfAnyAlignment) {
    std::vector<std::uint32_t> values(256);
    std::iota(values.begin(), values.end(), 1U);
    const std::uint32_t expected = SumAtDepth<0>(Registers::Of16Bytes, values.data());
    for (const Registers registers : RegistersHere()) {
        EXPECT_EQ(SumAtDepth<0>(registers, values.data()), expected);
        EXPECT_EQ(SumAtDepth<1>(registers, values.data()), expected);
        EXPECT_EQ(SumAtDepth<2>(registers, values.data()), expected);
        EXPECT_EQ(SumAtDepth<3>(registers, values.data()), expected);
    }
}

// A fused product and sum would keep what the product's rounding takes off.
TEST(FunctionVersions, RoundEveryProductAndEverySum) {
    const float a = 1.0F + 0x1p-12F;
    std::vector<float> values(64, a);
    for (const Registers registers : RegistersHere()) {
        std::vector<float> rests(values.size(), 1.0F);
        InVersion(registers,
                  [from = values.data(), to = rests.data(), count = values.size()]() MIRELLE_LAMBDA {
                      for (std::size_t i = 0; i < count; ++i)
                          to[i] = from[i] * from[i] - (1.0F + 0x1p-11F);
                  });
        EXPECT_EQ(rests, std::vector<float>(values.size(), 0.0F)) << static_cast<int>(registers);
    }
}

} // namespace
} // namespace mirelle::test
