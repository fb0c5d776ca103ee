#include "codecs/jpeg/Scans.h"

#include "codecs/jpeg/BitWriter.h"
#include "codecs/jpeg/BlockEncoder.h"
#include "codecs/jpeg/Markers.h"
#include "codecs/jpeg/Share.h"
#include "forms/FunctionVersions.h"

#include <utility>

namespace mirelle::jpeg {
namespace {

using CodesByTable = std::array<ComponentCodes, 2>;

// The least number of blocks that is worth a thread.
constexpr std::size_t kShortestSlice = 2048;

// Codes all slices side by side and writes them one behind the other.
template <class Code>
void WriteSlices(OutBuffer& out, const Slices& slices, const Code& code) {
    std::vector<BitString> coded(slices.Number());
    RunShared(slices, [&](std::size_t slice) {
        BitString bits;
        code(slices.Begin(slice), slices.End(slice), bits);
        coded[slice] = std::move(bits);
    });
    BitWriter writer(out);
    for (const BitString& bits : coded)
        writer.Write(bits);
    writer.Flush();
}

// The DC value that the first difference after `blocks` blocks is taken from.
int LastDcOf(const Component& component, std::size_t blocks) {
    return blocks == 0 ? 0 : component.DcValues[blocks - 1];
}

MIRELLE_INLINE void EncodeBlockOf(BitString& out, const Component& component, std::size_t block, int& lastDc,
                                  const ComponentCodes& codes) {
    EncodeBlock(out, component.DcValues[block], component.BlockSymbols[block], lastDc, codes);
}

void WriteScanSingle(OutBuffer& out, const Component& component, const ComponentCodes& codes) {
    const Slices slices(component.Blocks(), kShortestSlice);
    WriteSlices(out, slices, [&](std::size_t first, std::size_t end, BitString& bits) {
        InBestVersion<Registers::Of32Bytes>([=, &bits, &component, &codes]() MIRELLE_LAMBDA {
            int lastDc = LastDcOf(component, first);
            for (std::size_t block = first; block < end; ++block)
                EncodeBlockOf(bits, component, block, lastDc, codes);
        });
    });
}

struct InterleavedComponent {
    const Component& component;
    const ComponentCodes& codes;
    InterleavedBlocks blocks;
};

MIRELLE_INLINE void EncodeMcuRow(BitString& bits, const std::vector<InterleavedComponent>& parts,
                                 std::int32_t row, std::int32_t across) {
    std::array<int, 3> lastDc{};
    for (std::size_t i = 0; i < parts.size(); ++i) {
        lastDc[i] = LastDcOf(parts[i].component, parts[i].blocks.BlocksAbove(row));
    }
    for (std::int32_t column = 0; column < across; ++column) {
        for (std::size_t i = 0; i < parts.size(); ++i) {
            const InterleavedComponent& part = parts[i];
            part.blocks.ForEachInMcu(row, column, [&](std::size_t block) MIRELLE_LAMBDA {
                if (block == kDummyBlock) {
                    EncodeDummyBlock(bits, part.codes);
                } else {
                    EncodeBlockOf(bits, part.component, block, lastDc[i], part.codes);
                }
            });
        }
    }
}

void WriteScanInterleaved(OutBuffer& out, const Frame& frame, const ScanGroup& group,
                          const CodesByTable& codes) {
    const McuCount mcus = CountMcus(frame);
    const auto rows = static_cast<std::size_t>(mcus.down);
    std::vector<InterleavedComponent> parts;
    std::size_t blocksInRow = 0;
    for (std::size_t k = group.first; k <= group.last; ++k) {
        const Component& component = frame.Components[k];
        parts.push_back({component, codes[TableOf(k)], InterleavedBlocks(frame, component)});
        blocksInRow += parts.back().blocks.BlocksAbove(1);
    }
    const Slices slices(rows, kShortestSlice / blocksInRow + 1);
    WriteSlices(out, slices, [&](std::size_t first, std::size_t end, BitString& bits) {
        InBestVersion<Registers::Of32Bytes>([=, &bits, &parts, &mcus]() MIRELLE_LAMBDA {
            for (std::size_t row = first; row < end; ++row)
                EncodeMcuRow(bits, parts, static_cast<std::int32_t>(row), mcus.across);
        });
    });
}

} // namespace

void WriteScans(OutBuffer& out, const Frame& frame, const std::vector<ScanGroup>& groups,
                const HuffmanTables& tables) {
    const auto codesOf = [&tables](std::size_t t) {
        return ComponentCodes{SymbolCodes(tables.DcTables[t]), SymbolCodes(tables.AcTables[t])};
    };
    const CodesByTable codes = {codesOf(0), codesOf(1)};
    for (const ScanGroup& group : groups) {
        WriteSOS(out, frame, group);
        if (group.IsInterleaved()) {
            WriteScanInterleaved(out, frame, group, codes);
        } else {
            WriteScanSingle(out, frame.Components[group.first], codes[TableOf(group.first)]);
        }
    }
}

} // namespace mirelle::jpeg
