#include "codecs/jpeg/TransformBlocks.h"

#include "codecs/jpeg/Colour.h"
#include "codecs/jpeg/ForwardDCT.h"
#include "codecs/jpeg/Tables.h"

#include <bit>
#include <cstring>

namespace mirelle::jpeg {
namespace {

constexpr std::array<std::uint8_t, 64> MakeTransposedPlaces() {
    std::array<std::uint8_t, 64> places{};
    for (std::size_t n = 0; n < 64; ++n)
        places[ZigZag[n]] = static_cast<std::uint8_t>(n / 8 + 8 * (n % 8));
    return places;
}
// Zig-zag position to the place of its value.
constexpr std::array<std::uint8_t, 64> kTransposedPlaces = MakeTransposedPlaces();

// Where a byte of a pixel stands in a 32-bit word that was loaded from memory.
constexpr unsigned ShiftOf(unsigned byte) {
    return std::endian::native == std::endian::little ? 8 * byte : 24 - 8 * byte;
}

// Eight pixels side by side.
template <std::size_t pixelBytes, std::size_t component>
MIRELLE_INLINE void ConvertColours(const std::uint8_t* pixels, std::int32_t (&values)[8]) {
    for (std::size_t i = 0; i < 8; ++i) {
        std::uint32_t word = 0;
        std::memcpy(&word, pixels + pixelBytes * i, pixelBytes);
        const auto blue = static_cast<std::int32_t>(word >> ShiftOf(0) & 0xFF);
        const auto green = static_cast<std::int32_t>(word >> ShiftOf(1) & 0xFF);
        const auto red = static_cast<std::int32_t>(word >> ShiftOf(2) & 0xFF);
        values[i] = ColourValue(kColourRows[component], blue, green, red);
    }
}

// t * factor stays within 32 bits: t is an output of the transform, at most 64 * 2^23, over 2^15, and the
// largest factors belong to outputs that are as much smaller.
MIRELLE_INLINE void Quantise(const Lanes& block, const TransposedFactors& factors,
                             std::array<std::int16_t, 64>& values) {
    for (std::size_t i = 0; i < 8; ++i) {
        for (std::size_t lane = 0; lane < 8; ++lane) {
            const std::int32_t t = (block.value[i][lane] + 16384) / 32768;
            values[8 * i + lane] = static_cast<std::int16_t>((t * factors[8 * i + lane] + 131072) / 262144);
        }
    }
}

// Bit k for value k. Flags of one byte each come first, as many at once as the compiler can; then eight bytes
// at a time are gathered: the product moves byte i's lowest bit to bit 56 + i.
MIRELLE_INLINE std::uint64_t NonZeroBits(const std::int16_t* values) {
    std::array<std::uint8_t, 64> flags;
    for (std::size_t k = 0; k < 64; ++k)
        flags[k] = values[k] != 0 ? 1 : 0;
    std::uint64_t bits = 0;
    for (std::size_t i = 0; i < 64; i += 8) {
        std::uint64_t eight = 0;
        for (std::size_t byte = 0; byte < 8; ++byte)
            eight |= std::uint64_t{flags[i + byte]} << (8 * byte);
        bits |= (eight * 0x0102040810204080U >> 56) << i;
    }
    return bits;
}

template <std::size_t pixelBytes, std::size_t component>
MIRELLE_INLINE void TransformRow(const BlockRow& row, const TransposedFactors& factors, std::int16_t* values,
                                 std::uint64_t* nonZero) {
    for (std::size_t block = 0; block < row.blocks; ++block) {
        Lanes lanes;
        for (std::size_t i = 0; i < 8; ++i) {
            ConvertColours<pixelBytes, component>(row.pixels[i] + 8 * pixelBytes * block, lanes.value[i]);
        }
        ForwardDCT(lanes);
        std::array<std::int16_t, 64> quantised;
        Quantise(lanes, factors, quantised);
        for (std::size_t z = 0; z < 64; ++z)
            values[64 * block + z] = quantised[kTransposedPlaces[z]];
    }
    // Not until here: just written, a value could not be read together with its neighbours without a wait.
    for (std::size_t block = 0; block < row.blocks; ++block)
        nonZero[block] = NonZeroBits(values + 64 * block);
}

using Transform = void (*)(const BlockRow& row, const TransposedFactors& factors, std::int16_t* values,
                           std::uint64_t* nonZero, Registers registers);

template <std::size_t pixelBytes, std::size_t component>
void TransformInVersion(const BlockRow& row, const TransposedFactors& factors, std::int16_t* values,
                        std::uint64_t* nonZero, Registers registers) {
    // Eight values fill 32 bytes; with wider registers GCC spends more on arranging them than it saves.
    InVersion<Registers::Of32Bytes>(registers, [=]() MIRELLE_LAMBDA {
        TransformRow<pixelBytes, component>(row, factors, values, nonZero);
    });
}

// By the bytes of a pixel, from 3 on, and by component.
constexpr std::array<std::array<Transform, 3>, 2> kTransforms = {{
    {TransformInVersion<3, 0>, TransformInVersion<3, 1>, TransformInVersion<3, 2>},
    {TransformInVersion<4, 0>, TransformInVersion<4, 1>, TransformInVersion<4, 2>},
}};

} // namespace

TransposedFactors Transposed(const QuantTable& table) {
    TransposedFactors factors{};
    for (std::size_t z = 0; z < 64; ++z)
        factors[kTransposedPlaces[z]] = table.Fdtbl[z];
    return factors;
}

void TransformBlocks(const BlockRow& row, const TransposedFactors& factors, std::int16_t* values,
                     std::uint64_t* nonZero, Registers registers) {
    kTransforms[row.pixelBytes - 3][row.component](row, factors, values, nonZero, registers);
}

} // namespace mirelle::jpeg
