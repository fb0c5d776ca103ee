#include "codecs/jpeg/Transform.h"

#include "codecs/jpeg/Colour.h"
#include "codecs/jpeg/ForwardDCT.h"
#include "codecs/jpeg/Tables.h"
#include "forms/Numbers.h"

#include <array>
#include <cstring>
#include <vector>

namespace mirelle::jpeg {
namespace {

// The order in which ForwardDCT leaves its outputs: row + 8 * column.
using TransposedFactors = std::array<std::int32_t, 64>;

constexpr std::array<std::uint8_t, 64> MakeTransposedPlaces() {
    std::array<std::uint8_t, 64> places{};
    for (std::size_t n = 0; n < 64; ++n)
        places[ZigZag[n]] = static_cast<std::uint8_t>(n / 8 + 8 * (n % 8));
    return places;
}
// Zig-zag position to the place of its value.
constexpr std::array<std::uint8_t, 64> kTransposedPlaces = MakeTransposedPlaces();

TransposedFactors Transposed(const QuantTable& table) {
    TransposedFactors factors{};
    for (std::size_t z = 0; z < 64; ++z)
        factors[kTransposedPlaces[z]] = table.Fdtbl[z];
    return factors;
}

// t * factor stays within 32 bits: t is an output of the transform, at most 64 * 2^23, over 2^15, and the
// largest factors belong to outputs that are as much smaller.
inline void Quantise(const Lanes& block, const TransposedFactors& factors,
                     std::array<std::int16_t, 64>& values) {
    for (std::size_t i = 0; i < 8; ++i) {
        for (std::size_t lane = 0; lane < 8; ++lane) {
            const std::int32_t t = (block.value[i][lane] + 16384) / 32768;
            values[8 * i + lane] = static_cast<std::int16_t>((t * factors[8 * i + lane] + 131072) / 262144);
        }
    }
}

inline std::uint64_t NonZeroBits(const std::int16_t* values) {
    std::uint64_t bits = 0;
    for (std::size_t k = 0; k < 64; ++k)
        bits |= static_cast<std::uint64_t>(values[k] != 0) << k;
    return bits;
}

template <std::size_t pixelBytes>
void TransformBlockRow(const std::array<const std::uint8_t*, 8>& rows, std::size_t blocks,
                       const ColourRow& colour, const TransposedFactors& factors, std::int16_t* out,
                       std::uint64_t* nonZero) {
    for (std::size_t block = 0; block < blocks; ++block, out += 64) {
        Lanes lanes;
        for (std::size_t row = 0; row < 8; ++row) {
            const std::uint8_t* pixel = rows[row] + 8 * pixelBytes * block;
            for (std::size_t lane = 0; lane < 8; ++lane) {
                lanes.value[row][lane] =
                    ColourValue(colour, pixel[pixelBytes * lane], pixel[pixelBytes * lane + 1],
                                pixel[pixelBytes * lane + 2]);
            }
        }
        ForwardDCT(lanes);
        std::array<std::int16_t, 64> values;
        Quantise(lanes, factors, values);
        for (std::size_t z = 0; z < 64; ++z)
            out[z] = values[kTransposedPlaces[z]];
        nonZero[block] = NonZeroBits(out);
    }
}

} // namespace

void TransformComponent(Component& component, std::size_t index, const QuantTable& table,
                        const PlaneSize& plane, const PlaneView& view) {
    const Long samples = Long(plane.xa) * Long(plane.ya);
    const auto blocksAcross = static_cast<std::size_t>(plane.xa / 8);
    const auto blocksDown = static_cast<std::size_t>(plane.ya / 8);
    component.Coefficients = Array<std::int16_t>(static_cast<std::size_t>(samples.Value()));
    component.NonZero = Array<std::uint64_t>(blocksAcross * blocksDown);

    const TransposedFactors factors = Transposed(table);
    const std::size_t rowBytes = static_cast<std::size_t>(plane.xa) * view.pixelBytes;
    std::vector<std::uint8_t> scratch(8 * rowBytes);
    for (std::size_t blockRow = 0; blockRow < blocksDown; ++blockRow) {
        std::array<const std::uint8_t*, 8> rows{};
        for (std::size_t row = 0; row < 8; ++row) {
            rows[row] = view.Row(static_cast<int>(8 * blockRow + row), plane.xa,
                                 std::span(scratch).subspan(row * rowBytes, rowBytes));
        }
        const std::size_t first = blockRow * blocksAcross;
        const auto transform = view.pixelBytes == 3 ? TransformBlockRow<3> : TransformBlockRow<4>;
        transform(rows, blocksAcross, kColourRows[index], factors, &component.Coefficients[64 * first],
                  &component.NonZero[first]);
    }
}

} // namespace mirelle::jpeg
