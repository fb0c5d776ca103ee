// TIFF files put together field by field, right and wrong ones.
#pragma once

#include "tests/support/TestDib.h"

#include <cstdint>
#include <vector>

namespace mirelle::test {

constexpr std::uint32_t kShort = 3;
constexpr std::uint32_t kLong = 4;

struct TiffField {
    std::uint32_t tag = 0;
    std::uint32_t type = kShort;
    std::vector<std::uint32_t> values = {};
};

struct TestTiff {
    std::vector<TiffField> fields = {};
    std::vector<FileBytes> strips = {};
    bool isBigEndian = false;
    std::uint32_t stripFieldType = kLong; // of the fields that tell where the strips stand
    bool hasStripOffsets = true;
    bool hasStripByteCounts = true;
};

// Width, height, bits of a sample, compression, photometric interpretation, samples of a pixel, rows of a
// strip.
inline std::vector<TiffField> TiffFields(std::uint32_t width, std::uint32_t height, std::uint32_t bits,
                                         std::uint32_t compression, std::uint32_t photometric,
                                         std::uint32_t samples, std::uint32_t rowsPerStrip) {
    return {{256, kShort, {width}},       {257, kShort, {height}},      {258, kShort, {bits}},
            {259, kShort, {compression}}, {262, kShort, {photometric}}, {277, kShort, {samples}},
            {278, kShort, {rowsPerStrip}}};
}

class TiffMaker {
public:
    explicit TiffMaker(const TestTiff& tiff) : tiff_(tiff) {}

    // The header, the strips, the values that have no room in their fields, the directory.
    FileBytes Make() {
        bytes_ = tiff_.isBigEndian ? FileBytes{'M', 'M', 0, 42} : FileBytes{'I', 'I', 42, 0};
        Number(0, 4);
        TiffField offsets{273, tiff_.stripFieldType, {}};
        TiffField counts{279, tiff_.stripFieldType, {}};
        for (const FileBytes& strip : tiff_.strips) {
            offsets.values.push_back(static_cast<std::uint32_t>(bytes_.size()));
            counts.values.push_back(static_cast<std::uint32_t>(strip.size()));
            Put(bytes_, strip);
        }
        std::vector<TiffField> fields = tiff_.fields;
        if (tiff_.hasStripOffsets) fields.push_back(offsets);
        if (tiff_.hasStripByteCounts) fields.push_back(counts);
        FileBytes directory;
        for (const TiffField& field : fields)
            Put(directory, EntryOf(field));
        FileBytes header = tiff_.isBigEndian ? FileBytes{'M', 'M', 0, 42} : FileBytes{'I', 'I', 42, 0};
        const auto place = static_cast<std::uint32_t>(bytes_.size());
        Number(static_cast<std::uint32_t>(fields.size()), 2);
        Put(bytes_, directory);
        Number(0, 4);
        const FileBytes file = std::move(bytes_);
        bytes_ = std::move(header);
        Number(place, 4);
        bytes_.insert(bytes_.end(), file.begin() + 8, file.end());
        return bytes_;
    }

private:
    static int SizeOf(std::uint32_t type) { return type == 3 ? 2 : type == 1 || type == 2 ? 1 : 4; }

    void Number(std::uint32_t value, int size) { Number(bytes_, value, size); }
    void Number(FileBytes& bytes, std::uint32_t value, int size) const {
        for (int i = 0; i < size; ++i) {
            const int shift = 8 * (tiff_.isBigEndian ? size - 1 - i : i);
            bytes.push_back(static_cast<std::uint8_t>(value >> shift));
        }
    }

    FileBytes EntryOf(const TiffField& field) {
        FileBytes values;
        for (const std::uint32_t value : field.values)
            Number(values, value, SizeOf(field.type));
        FileBytes entry;
        Number(entry, field.tag, 2);
        Number(entry, field.type, 2);
        Number(entry, static_cast<std::uint32_t>(field.values.size()), 4);
        if (values.size() > 4) {
            Number(entry, static_cast<std::uint32_t>(bytes_.size()), 4);
            Put(bytes_, values);
        } else {
            values.resize(4);
            Put(entry, values);
        }
        return entry;
    }

    const TestTiff& tiff_;
    FileBytes bytes_;
};

inline FileBytes TiffBytes(const TestTiff& tiff) {
    return TiffMaker(tiff).Make();
}

// An entry of a directory as it stands there, whatever its count claims.
struct TiffEntry {
    std::uint32_t tag = 0;
    std::uint32_t type = kShort;
    std::uint32_t count = 1;
    std::uint32_t value = 0; // low byte first, as the reader takes it from files of either byte order
};

// The header, the directory at 8, at once behind the last entry the bytes that follow it. Where those begin:
// TiffEntriesEnd.
inline FileBytes TiffOfEntries(const std::vector<TiffEntry>& entries, const FileBytes& behind = {},
                               bool isBigEndian = false) {
    FileBytes bytes = isBigEndian ? FileBytes{'M', 'M'} : FileBytes{'I', 'I'};
    const auto number = [&](std::uint32_t value, int size) {
        for (int i = 0; i < size; ++i)
            bytes.push_back(static_cast<std::uint8_t>(value >> (8 * (isBigEndian ? size - 1 - i : i))));
    };
    number(42, 2);
    number(8, 4);
    number(static_cast<std::uint32_t>(entries.size()), 2);
    for (const TiffEntry& entry : entries) {
        number(entry.tag, 2);
        number(entry.type, 2);
        number(entry.count, 4);
        Put(bytes, entry.value, 4);
    }
    Put(bytes, behind);
    return bytes;
}

constexpr std::uint32_t TiffEntriesEnd(std::size_t entryCount) {
    return static_cast<std::uint32_t>(10 + 12 * entryCount);
}

} // namespace mirelle::test
