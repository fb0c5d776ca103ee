#include "forms/FunctionVersions.h"

#include <algorithm>
#include <cstdlib>

namespace mirelle {
namespace {

Registers Allowed() noexcept {
    const char* const wish = std::getenv("MIRELLE_REGISTERS");
    const int bytes = wish != nullptr ? std::atoi(wish) : 0;
    if (bytes <= 0 || bytes >= 64) return Registers::Of64Bytes;
    return bytes >= 32 ? Registers::Of32Bytes : Registers::Of16Bytes;
}

} // namespace

Registers WidestRegisters() noexcept {
#if defined(__GNUC__) && defined(__x86_64__)
    const bool has32Bytes =
        __builtin_cpu_supports("avx2") && __builtin_cpu_supports("bmi") && __builtin_cpu_supports("bmi2");
    if (!has32Bytes) return Registers::Of16Bytes;
    const bool has64Bytes = __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512bw") &&
                            __builtin_cpu_supports("avx512dq") && __builtin_cpu_supports("avx512vl");
    return has64Bytes ? Registers::Of64Bytes : Registers::Of32Bytes;
#else
    return Registers::Of16Bytes;
#endif
}

Registers RegistersInUse() noexcept {
    static const Registers registers = std::min(WidestRegisters(), Allowed());
    return registers;
}

} // namespace mirelle
