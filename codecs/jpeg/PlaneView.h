// Where the transform finds the pixels of a component's plane.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>

namespace mirelle::jpeg {

// Pixels somewhere in memory, with their blue, green and red byte first. The plane's corner lies at (x, y) of
// that memory and the plane may reach beyond it: there stands the nearest edge pixel.
struct PlaneView {
    const std::uint8_t* bytes = nullptr;
    std::size_t pixelBytes = 4;
    std::size_t stride = 0; // bytes from a row to the next
    int width = 0;          // of the memory, in pixels, at least 1
    int height = 0;
    int x = 0;
    int y = 0;

    // The first `count` pixels of a row of the plane. A row that reaches beyond the memory is put together in
    // `scratch`, which holds count * pixelBytes bytes.
    const std::uint8_t* Row(int row, int count, std::span<std::uint8_t> scratch) const {
        const std::int64_t inside = std::clamp<std::int64_t>(std::int64_t{y} + row, 0, height - 1);
        const std::uint8_t* start = bytes + static_cast<std::size_t>(inside) * stride;
        if (x >= 0 && std::int64_t{x} + count <= width)
            return start + static_cast<std::size_t>(x) * pixelBytes;
        for (int column = 0; column < count; ++column) {
            const auto at =
                static_cast<std::size_t>(std::clamp<std::int64_t>(std::int64_t{x} + column, 0, width - 1));
            std::memcpy(&scratch[static_cast<std::size_t>(column) * pixelBytes], start + at * pixelBytes,
                        pixelBytes);
        }
        return scratch.data();
    }
};

} // namespace mirelle::jpeg
