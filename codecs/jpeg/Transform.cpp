#include "codecs/jpeg/Transform.h"

#include "codecs/jpeg/Share.h"
#include "codecs/jpeg/TransformBlocks.h"
#include "forms/Numbers.h"

#include <utility>
#include <vector>

namespace mirelle::jpeg {
namespace {

// The least number of blocks that is worth a thread.
constexpr std::size_t kShortestSlice = 512;

// Eight rows of pixels, from the view or, where that reaches beyond its memory, from `scratch`.
BlockRow RowOfBlocks(const PlaneView& view, std::size_t component, std::size_t down, int width,
                     std::span<std::uint8_t> scratch) {
    BlockRow row;
    row.pixelBytes = view.pixelBytes;
    row.component = component;
    row.blocks = static_cast<std::size_t>(width) / 8;
    const std::size_t rowBytes = scratch.size() / 8;
    for (std::size_t i = 0; i < 8; ++i) {
        row.pixels[i] =
            view.Row(static_cast<int>(8 * down + i), width, scratch.subspan(i * rowBytes, rowBytes));
    }
    return row;
}

} // namespace

void TransformComponent(Component& component, std::size_t index, const QuantTable& table,
                        const PlaneSize& plane, const PlaneView& view) {
    const Long samples = Long(plane.xa) * Long(plane.ya);
    const auto blocks = static_cast<std::size_t>(samples.Value() / 64);
    const auto blocksAcross = static_cast<std::size_t>(plane.xa / 8);
    const auto blocksDown = static_cast<std::size_t>(plane.ya / 8);
    Array<std::int16_t> dcValues(blocks);
    Array<std::span<const AcSymbol>> acSymbols(blocks);

    const TransposedFactors factors = Transposed(table);
    const Slices slices(blocksDown, kShortestSlice / blocksAcross + 1);
    std::vector<AcSymbolStore> stores(slices.Number());
    RunShared(slices, [&](std::size_t slice) {
        AcSymbolStore store;
        Array<std::uint8_t> scratch(64 * blocksAcross * view.pixelBytes);
        Array<std::int16_t> values(64 * blocksAcross);
        Array<std::uint64_t> nonZero(blocksAcross);
        for (std::size_t down = slices.Begin(slice); down < slices.End(slice); ++down) {
            const BlockRow row = RowOfBlocks(view, index, down, plane.xa, scratch);
            TransformBlocks(row, factors, values.Data(), nonZero.Data());
            const std::size_t first = down * blocksAcross;
            for (std::size_t across = 0; across < blocksAcross; ++across)
                dcValues[first + across] = values[64 * across];
            store.AddAll(values.Data(), nonZero, &acSymbols[first]);
        }
        stores[slice] = std::move(store);
    });

    component.DcValues = std::move(dcValues);
    component.BlockSymbols = std::move(acSymbols);
    component.AcStore = {};
    for (AcSymbolStore& store : stores)
        component.AcStore.Join(std::move(store));
}

} // namespace mirelle::jpeg
