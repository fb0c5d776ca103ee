#include "desktop/pictures/FourthBytes.h"

#include "forms/FunctionVersions.h"

#include <bit>
#include <cstring>

namespace mirelle {
namespace {

constexpr auto kColours = std::bit_cast<std::uint32_t>(Pixel{255, 255, 255, 0});

// As a number, which vector code takes many of at a time.
inline void PutColours(std::uint8_t* to, const std::uint8_t* from) {
    std::uint32_t pixel = 0;
    std::memcpy(&pixel, from, sizeof pixel);
    pixel &= kColours;
    std::memcpy(to, &pixel, sizeof pixel);
}

} // namespace

void ClearFourthBytes(std::span<Pixel> row) {
    InBestVersion([=]() MIRELLE_LAMBDA {
        auto* bytes = reinterpret_cast<std::uint8_t*>(row.data());
        for (std::size_t at = 0; at < row.size_bytes(); at += sizeof(Pixel))
            PutColours(bytes + at, bytes + at);
    });
}

void CopyWithFourthBytesClear(const std::uint8_t* from, std::span<Pixel> row) {
    InBestVersion([=]() MIRELLE_LAMBDA {
        auto* to = reinterpret_cast<std::uint8_t*>(row.data());
        for (std::size_t at = 0; at < row.size_bytes(); at += sizeof(Pixel))
            PutColours(to + at, from + at);
    });
}

} // namespace mirelle
