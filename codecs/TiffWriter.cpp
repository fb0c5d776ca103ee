#include "codecs/TiffWriter.h"

#include "codecs/LittleEndian.h"

#include <algorithm>
#include <array>
#include <limits>
#include <new>

namespace mirelle {
namespace {

constexpr std::uint32_t kShort = 3; // field types, section 2
constexpr std::uint32_t kLong = 4;
constexpr std::uint32_t kRational = 5;

constexpr std::uint32_t kHeaderSize = 8;
constexpr std::uint32_t kEntryCount = 14;
constexpr std::uint32_t kEntrySize = 12;
constexpr std::uint32_t kDirectorySize = 2 + kEntryCount * kEntrySize + 4;
constexpr std::uint32_t kBitsSize = 3 * 2;
constexpr std::uint32_t kRationalSize = 8;
constexpr std::uint32_t kSamples = 3;
constexpr std::uint32_t kPixelsPerInch = 96;
// Strips are kept short for readers with little memory, but not so short as the 8 KiB of the recommendation,
// which would make thousands of them.
constexpr std::uint32_t kStripSize = 65536;

// Where everything stands in the file, from its start.
struct Layout {
    Layout(int width, int height)
        : rowSize(kSamples * static_cast<std::uint64_t>(width)), rowCount(static_cast<std::uint64_t>(height)),
          rowsPerStrip(
              std::clamp<std::uint64_t>(kStripSize / std::max<std::uint64_t>(rowSize, 1), 1, rowCount)),
          stripCount((rowCount + rowsPerStrip - 1) / rowsPerStrip), bits(kHeaderSize + kDirectorySize),
          horizontalResolution(bits + kBitsSize), verticalResolution(horizontalResolution + kRationalSize),
          stripOffsets(verticalResolution + kRationalSize), stripSizes(stripOffsets + 4 * stripCount),
          pixels(stripSizes + 4 * stripCount), size(pixels + rowSize * rowCount) {}

    std::uint64_t StripSize(std::uint64_t strip) const {
        return rowSize * std::min(rowsPerStrip, rowCount - strip * rowsPerStrip);
    }

    std::uint64_t rowSize;
    std::uint64_t rowCount;
    std::uint64_t rowsPerStrip;
    std::uint64_t stripCount;
    std::uint64_t bits;
    std::uint64_t horizontalResolution;
    std::uint64_t verticalResolution;
    std::uint64_t stripOffsets;
    std::uint64_t stripSizes;
    std::uint64_t pixels;
    std::uint64_t size;
};

struct Entry {
    std::uint32_t tag;
    std::uint32_t type;
    std::uint64_t count;
    std::uint64_t value; // or its offset, where it takes more than four bytes
};

std::array<Entry, kEntryCount> EntriesOf(const Bitmap& bitmap, const Layout& layout) {
    // A single strip's offset and size stand in the directory itself.
    const bool isOneStrip = layout.stripCount == 1;
    return {{
        {254, kLong, 1, 0}, // a full-size image
        {256, kLong, 1, static_cast<std::uint64_t>(bitmap.Width())},
        {257, kLong, 1, static_cast<std::uint64_t>(bitmap.Height())},
        {258, kShort, kSamples, layout.bits},
        {259, kShort, 1, 1}, // no compression
        {262, kShort, 1, 2}, // RGB
        {273, kLong, layout.stripCount, isOneStrip ? layout.pixels : layout.stripOffsets},
        {277, kShort, 1, kSamples},
        {278, kLong, 1, layout.rowsPerStrip},
        {279, kLong, layout.stripCount, isOneStrip ? layout.StripSize(0) : layout.stripSizes},
        {282, kRational, 1, layout.horizontalResolution},
        {283, kRational, 1, layout.verticalResolution},
        {284, kShort, 1, 1}, // samples side by side
        {296, kShort, 1, 2}, // resolution in inches
    }};
}

void Append(std::vector<std::uint8_t>& file, std::uint64_t value) {
    AppendU32(file, static_cast<std::uint32_t>(value));
}

void AppendDirectory(std::vector<std::uint8_t>& file, const Bitmap& bitmap, const Layout& layout) {
    AppendU16(file, kEntryCount);
    for (const Entry& entry : EntriesOf(bitmap, layout)) {
        AppendU16(file, entry.tag);
        AppendU16(file, entry.type);
        Append(file, entry.count);
        Append(file, entry.value); // a short one stands in the lower half, as the low byte comes first
    }
    AppendU32(file, 0); // no further directory
}

void AppendValues(std::vector<std::uint8_t>& file, const Layout& layout) {
    for (std::uint32_t sample = 0; sample < kSamples; ++sample)
        AppendU16(file, 8);
    for (int direction = 0; direction < 2; ++direction) {
        AppendU32(file, kPixelsPerInch);
        AppendU32(file, 1);
    }
    for (std::uint64_t strip = 0; strip < layout.stripCount; ++strip)
        Append(file, layout.pixels + strip * layout.rowsPerStrip * layout.rowSize);
    for (std::uint64_t strip = 0; strip < layout.stripCount; ++strip)
        Append(file, layout.StripSize(strip));
}

} // namespace

std::uint32_t TiffFileSize(int width, int height) {
    const Layout layout(width, height);
    if (layout.size > std::numeric_limits<std::uint32_t>::max()) throw RunTimeError(ErrorNumber::Overflow);
    return static_cast<std::uint32_t>(layout.size);
}

std::vector<std::uint8_t> TiffFile(const Bitmap& bitmap) {
    if (bitmap.IsEmpty()) throw RunTimeError(ErrorNumber::InvalidPicture);
    const std::uint32_t size = TiffFileSize(bitmap.Width(), bitmap.Height());
    const Layout layout(bitmap.Width(), bitmap.Height());
    std::vector<std::uint8_t> file;
    try {
        file.reserve(size);
    } catch (const std::bad_alloc&) {
        throw RunTimeError(ErrorNumber::OutOfMemory);
    }

    AppendU16(file, 'I' | ('I' << 8)); // the low byte first
    AppendU16(file, 42);
    AppendU32(file, kHeaderSize); // where the directory stands
    AppendDirectory(file, bitmap, layout);
    AppendValues(file, layout);

    std::size_t at = file.size();
    file.resize(size);
    for (const Pixel& pixel : bitmap.Pixels()) {
        file[at] = pixel.red;
        file[at + 1] = pixel.green;
        file[at + 2] = pixel.blue;
        at += kSamples;
    }
    return file;
}

} // namespace mirelle
