// Where PackBits' no-op codes end. Each of them moves on by as many bytes as the one before it, so that a
// strip can hold a long row of them, at any distance from one to the next. The strips of a file may share
// their bytes: a row that many strips go along has to be walked for the first of them alone.
#pragma once

#include <cstdint>
#include <map>
#include <span>
#include <vector>

namespace mirelle::tiff {

constexpr std::uint8_t kNoOperation = 128;

class NoOperations {
public:
    // The bytes of the whole file, which have to outlive this.
    explicit NoOperations(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

    std::span<const std::uint8_t> Bytes() const { return bytes_; }

    // The first of position, position + stride, position + 2 * stride ... that holds no no-op, or lies behind
    // the bytes. The position is 0 or more, the stride 1 or more.
    std::int64_t EndOf(std::int64_t position, std::int64_t stride);

private:
    // What is known of the rows of one stride: nothing until they were walked as far as there are bytes.
    struct Rows {
        std::int64_t walked = 0;
        // The places of a stride are taken in blocks of `kBlock` steps; of each the number of blocks from
        // it on that hold nothing but no-ops, in the order of their first places.
        std::vector<std::uint16_t> fullBlocks;
    };

    bool HoldsOne(std::int64_t position) const;
    // Nothing where there is no memory for it: then they are walked each time.
    Rows* RowsOf(std::int64_t stride);
    std::vector<std::uint16_t> FullBlocks(std::int64_t stride) const;

    std::span<const std::uint8_t> bytes_;
    std::map<std::int64_t, Rows> rows_;
};

} // namespace mirelle::tiff
