#include "codecs/jpeg/Scans.h"

#include "codecs/jpeg/BitWriter.h"
#include "codecs/jpeg/BlockEncoder.h"
#include "codecs/jpeg/Markers.h"

namespace mirelle::jpeg {
namespace {

using CodesByTable = std::array<ComponentCodes, 2>;

void WriteScanSingle(OutBuffer& out, const Component& component, const ComponentCodes& codes) {
    BitWriter writer(out);
    int lastDc = 0;
    for (std::size_t block = 0; block < component.NonZero.Size(); ++block) {
        EncodeBlock(writer, &component.Coefficients[64 * block], component.NonZero[block], lastDc, codes);
        writer.CheckLimit();
    }
    writer.Flush();
}

struct InterleavedComponent {
    const Component& component;
    const ComponentCodes& codes;
    InterleavedBlocks blocks;
    int lastDc = 0;
};

void WriteScanInterleaved(OutBuffer& out, const Frame& frame, const ScanGroup& group,
                          const CodesByTable& codes) {
    std::vector<InterleavedComponent> parts;
    for (std::size_t k = group.first; k <= group.last; ++k) {
        const Component& component = frame.Components[k];
        parts.push_back({component, codes[TableOf(k)], InterleavedBlocks(frame, component)});
    }
    BitWriter writer(out);
    const McuCount mcus = CountMcus(frame);
    for (std::int32_t row = 0; row < mcus.down; ++row) {
        for (std::int32_t column = 0; column < mcus.across; ++column) {
            for (InterleavedComponent& part : parts) {
                part.blocks.ForEachInMcu(row, column, [&](std::size_t block) {
                    if (block == kDummyBlock) {
                        EncodeDummyBlock(writer, part.codes);
                    } else {
                        EncodeBlock(writer, &part.component.Coefficients[64 * block],
                                    part.component.NonZero[block], part.lastDc, part.codes);
                    }
                    writer.CheckLimit();
                });
            }
        }
    }
    writer.Flush();
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
