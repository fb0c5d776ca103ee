#include "codecs/jpeg/Transform.h"

#include "codecs/jpeg/Share.h"
#include "codecs/jpeg/Symbols.h"
#include "codecs/jpeg/TransformBlocks.h"
#include "forms/Numbers.h"

#include <vector>

namespace mirelle::jpeg {
namespace {

// The least number of blocks that is worth a thread.
constexpr std::size_t kShortestSlice = 512;

// Looks at blocks while they are still near: counts their AC symbols and puts their DC values side by side.
void LookAtBlocks(Component& component, std::size_t first, std::size_t end, SymbolCounts& counts) {
    for (std::size_t block = first; block < end; ++block) {
        const std::int16_t* values = &component.Coefficients[64 * block];
        CountAcSymbols(values, component.NonZero[block], counts);
        component.DcValues[block] = values[0];
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
    component.DcValues = Array<std::int16_t>(blocksAcross * blocksDown);
    component.AcSymbols = {};

    const TransposedFactors factors = Transposed(table);
    const TransformBlockRow transform = WaysToTransform()[0];
    const std::size_t rowBytes = static_cast<std::size_t>(plane.xa) * view.pixelBytes;
    const Slices slices(blocksDown, kShortestSlice / blocksAcross + 1);
    std::vector<SymbolCounts> counted(slices.Number());
    RunShared(slices, [&](std::size_t slice) {
        SymbolCounts counts{};
        Array<std::uint8_t> scratch(8 * rowBytes);
        for (std::size_t down = slices.Begin(slice); down < slices.End(slice); ++down) {
            BlockRow row{{}, view.pixelBytes, index, blocksAcross};
            for (std::size_t i = 0; i < 8; ++i) {
                const std::span<std::uint8_t> spare = scratch;
                row.pixels[i] =
                    view.Row(static_cast<int>(8 * down + i), plane.xa, spare.subspan(i * rowBytes, rowBytes));
            }
            const std::size_t first = down * blocksAcross;
            transform(row, factors, &component.Coefficients[64 * first], &component.NonZero[first]);
            LookAtBlocks(component, first, first + blocksAcross, counts);
        }
        counted[slice] = counts;
    });
    for (const SymbolCounts& counts : counted) {
        for (std::size_t symbol = 0; symbol < counts.size(); ++symbol)
            component.AcSymbols[symbol] += counts[symbol];
    }
}

} // namespace mirelle::jpeg
