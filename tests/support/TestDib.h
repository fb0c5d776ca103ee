// Bitmap files put together field by field, right and wrong ones.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <span>
#include <vector>

namespace mirelle::test {

using FileBytes = std::vector<std::uint8_t>;

inline void Put(FileBytes& bytes, std::uint32_t value, int count) {
    for (int i = 0; i < count; ++i)
        bytes.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
}

inline void Put(FileBytes& bytes, std::span<const std::uint8_t> more) {
    bytes.insert(bytes.end(), more.begin(), more.end());
}

struct TestDib {
    std::uint32_t width = 1;
    std::uint32_t height = 1; // a negative number for rows from the top
    std::uint32_t bitCount = 24;
    std::uint32_t compression = 0;
    std::uint32_t coloursUsed = 0;
    std::uint32_t headerSize = 40;
    std::vector<std::uint32_t> masks = {};
    std::vector<std::uint32_t> palette = {}; // 0x00RRGGBB
    FileBytes pixels = {};
    std::uint32_t planes = 1;
};

// The header, the masks, the palette and the pixels.
inline FileBytes DibBytes(const TestDib& dib) {
    FileBytes bytes;
    Put(bytes, dib.headerSize, 4);
    const bool isCore = dib.headerSize == 12;
    Put(bytes, dib.width, isCore ? 2 : 4);
    Put(bytes, dib.height, isCore ? 2 : 4);
    Put(bytes, dib.planes, 2);
    Put(bytes, dib.bitCount, 2);
    if (!isCore) {
        Put(bytes, dib.compression, 4);
        Put(bytes, static_cast<std::uint32_t>(dib.pixels.size()), 4);
        Put(bytes, 0, 4);
        Put(bytes, 0, 4);
        Put(bytes, dib.coloursUsed, 4);
        Put(bytes, 0, 4);
        if (bytes.size() > dib.headerSize) bytes.resize(dib.headerSize);
    }
    for (const std::uint32_t mask : dib.masks)
        Put(bytes, mask, 4);
    if (bytes.size() < dib.headerSize) bytes.resize(dib.headerSize);
    for (const std::uint32_t colour : dib.palette)
        Put(bytes, colour, isCore ? 3 : 4);
    Put(bytes, dib.pixels);
    return bytes;
}

// The same behind a file header.
inline FileBytes BmpBytes(const TestDib& dib) {
    const FileBytes body = DibBytes(dib);
    FileBytes bytes = {'B', 'M'};
    Put(bytes, static_cast<std::uint32_t>(14 + body.size()), 4);
    Put(bytes, 0, 4);
    Put(bytes, static_cast<std::uint32_t>(14 + body.size() - dib.pixels.size()), 4);
    Put(bytes, body);
    return bytes;
}

struct TestIconEntry {
    int width = 1;
    int height = 1;
    std::uint32_t bitCount = 0;
    FileBytes picture = {};
};

// An ICO file (kind 1) or a CUR file (kind 2).
inline FileBytes IconBytes(const std::vector<TestIconEntry>& entries, std::uint32_t kind = 1) {
    FileBytes bytes;
    Put(bytes, 0, 2);
    Put(bytes, kind, 2);
    Put(bytes, static_cast<std::uint32_t>(entries.size()), 2);
    auto offset = static_cast<std::uint32_t>(6 + 16 * entries.size());
    for (const TestIconEntry& entry : entries) {
        Put(bytes, static_cast<std::uint32_t>(entry.width), 1);
        Put(bytes, static_cast<std::uint32_t>(entry.height), 1);
        Put(bytes, 0, 2);
        Put(bytes, 1, 2);
        Put(bytes, entry.bitCount, 2);
        Put(bytes, static_cast<std::uint32_t>(entry.picture.size()), 4);
        Put(bytes, offset, 4);
        offset += static_cast<std::uint32_t>(entry.picture.size());
    }
    for (const TestIconEntry& entry : entries)
        Put(bytes, entry.picture);
    return bytes;
}

} // namespace mirelle::test
