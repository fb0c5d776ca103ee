#include "codecs/tiff/NoOperations.h"

#include "forms/RunTimeError.h"

#include <algorithm>
#include <limits>

namespace mirelle::tiff {
namespace {

constexpr std::int64_t kBlock = 64;
constexpr std::uint16_t kMostBlocks = std::numeric_limits<std::uint16_t>::max();

} // namespace

std::int64_t NoOperations::EndOf(std::int64_t position, std::int64_t stride) {
    // Few rows are longer.
    for (std::int64_t step = 0; step < kBlock; ++step, position += stride)
        if (!HoldsOne(position)) return position;
    Rows* const rows = RowsOf(stride);
    const bool areKnown = rows != nullptr && !rows->fullBlocks.empty();
    std::int64_t walked = 0;
    while (HoldsOne(position)) {
        std::int64_t fullBlocks = 0;
        if (areKnown && position / stride % kBlock == 0) {
            const std::int64_t block = position / (kBlock * stride) * stride + position % stride;
            fullBlocks = rows->fullBlocks[static_cast<std::size_t>(block)];
        }
        position += stride * std::max<std::int64_t>(1, kBlock * fullBlocks);
        ++walked;
    }
    if (rows != nullptr) rows->walked += walked;
    return position;
}

bool NoOperations::HoldsOne(std::int64_t position) const {
    const auto at = static_cast<std::size_t>(position);
    return at < bytes_.size() && bytes_[at] == kNoOperation;
}

NoOperations::Rows* NoOperations::RowsOf(std::int64_t stride) {
    Rows* rows = nullptr;
    ResumeNext([&] {
        WithinMemory([&] {
            rows = &rows_[stride];
            if (rows->walked <= static_cast<std::int64_t>(bytes_.size())) return;
            rows->walked = 0;
            if (rows->fullBlocks.empty()) rows->fullBlocks = FullBlocks(stride);
        });
    });
    return rows;
}

std::vector<std::uint16_t> NoOperations::FullBlocks(std::int64_t stride) const {
    const auto width = static_cast<std::size_t>(stride);
    const std::size_t count = (bytes_.size() / (std::size_t{kBlock} * width) + 1) * width;
    std::vector<std::uint16_t> blocks(count, 1);
    std::int64_t position = 0;
    for (std::size_t first = 0; first < count; first += width) {
        for (std::int64_t step = 0; step < kBlock; ++step) {
            for (std::size_t i = first; i < first + width; ++i, ++position)
                if (!HoldsOne(position)) blocks[i] = 0;
        }
    }
    for (std::size_t i = count - width; i-- > 0;)
        if (blocks[i] != 0)
            blocks[i] = static_cast<std::uint16_t>(std::min<int>(blocks[i + width] + 1, kMostBlocks));
    return blocks;
}

} // namespace mirelle::tiff
