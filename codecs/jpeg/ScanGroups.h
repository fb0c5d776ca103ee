// Which components share a scan, and in which order a shared scan takes their blocks.
#pragma once

#include "codecs/jpeg/Frame.h"
#include "forms/FunctionVersions.h"

#include <array>
#include <cstddef>
#include <vector>

namespace mirelle::jpeg {

// Components first..last.
struct ScanGroup {
    std::size_t first = 0;
    std::size_t last = 0;

    bool IsInterleaved() const { return last > first; }
    friend bool operator==(const ScanGroup&, const ScanGroup&) = default;
};

// A group takes components as long as their blocks for one MCU number at most 10 (ITU T.81, B.2.3), and one
// component at least.
std::vector<ScanGroup> GroupComponents(const Frame& frame);

// The Huffman tables of a component, DC and AC alike.
constexpr std::size_t TableOf(std::size_t component) {
    return component == 0 ? 0 : 1;
}

// The MCUs of a frame: ITU T.81, A.2.3.
struct McuCount {
    std::int32_t across = 0;
    std::int32_t down = 0;
};
McuCount CountMcus(const Frame& frame);

// Stands for a block that the scan needs and the component lacks.
inline constexpr std::size_t kDummyBlock = static_cast<std::size_t>(-1);

// The blocks of one component in the order of an interleaved scan.
class InterleavedBlocks {
public:
    InterleavedBlocks(const Frame& frame, const Component& component);

    // Calls visit(index of the block, or kDummyBlock) for the blocks of one MCU. Both numbers count from 0.
    template <class Visit>
    MIRELLE_INLINE void ForEachInMcu(std::int32_t mcuRow, std::int32_t mcuColumn, Visit&& visit) const {
        const bool lastRow = mcuRow == mcus_.down - 1;
        const std::size_t real = mcuColumn == mcus_.across - 1 ? edge_ : h_;
        for (std::size_t r = 0; r < v_; ++r) {
            const std::size_t start = (static_cast<std::size_t>(mcuRow) * v_ + r) * perRow_ +
                                      static_cast<std::size_t>(mcuColumn) * h_;
            for (std::size_t c = 0; c < h_; ++c) {
                const bool isDummy = c >= real || (lastRow && start + c >= blocks_);
                visit(isDummy ? kDummyBlock : start + c);
            }
        }
    }

    // How many blocks stand in the MCU rows above one: those are complete, and the last of them is the one
    // whose DC value the row's first difference is taken from.
    std::size_t BlocksAbove(std::int32_t mcuRow) const {
        return static_cast<std::size_t>(mcuRow) * v_ * perRow_;
    }

private:
    McuCount mcus_;
    std::size_t h_;
    std::size_t v_;
    std::size_t perRow_; // blocks in a row of the scan
    std::size_t edge_;   // real blocks across in the last MCU of a row
    std::size_t blocks_; // blocks of the component
};

} // namespace mirelle::jpeg
