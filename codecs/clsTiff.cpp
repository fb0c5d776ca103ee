#include "codecs/clsTiff.h"

#include "codecs/CBitmap.h"
#include "codecs/tiff/BinaryFile.h"
#include "codecs/tiff/ColorMap.h"
#include "codecs/tiff/LongArray.h"
#include "codecs/tiff/PackBits.h"
#include "codecs/tiff/PadAndFlipRows.h"
#include "codecs/tiff/SwapBytes.h"
#include "forms/Numbers.h"
#include "forms/RunTimeError.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>
#include <utility>

namespace mirelle {
namespace {

// "II" and "MM", which read alike in either order, and the number behind them (TIFF 6.0, section 2).
constexpr std::int16_t kLittleEndian = 0x4949;
constexpr std::int16_t kBigEndian = 0x4D4D;
constexpr std::int16_t kVersion = 42;
constexpr std::int64_t kEntryLength = 12;

constexpr std::int32_t kUncompressed = 1;
constexpr std::int32_t kPackBits = -32763; // 32773 as a signed SHORT

struct FileHeader {
    bool isBigEndian = false;
    std::int32_t directory = 0; // counted from 0
};

// Nothing where the file is no TIFF file.
std::optional<FileHeader> ReadHeader(tiff::BinaryFile& file) {
    FileHeader header;
    const std::int16_t byteOrder = file.Int16();
    std::int16_t version = file.Int16();
    header.directory = file.Int32();
    if (byteOrder != kLittleEndian && byteOrder != kBigEndian) return std::nullopt;
    header.isBigEndian = byteOrder == kBigEndian;
    if (header.isBigEndian) tiff::SwapBytesInt(version);
    if (version != kVersion) return std::nullopt;
    if (header.isBigEndian) tiff::SwapBytesLong(header.directory);
    return header;
}

// BYTE, ASCII, SHORT, SBYTE and UNDEFINED: their values are read as two bytes, all others' as four.
bool IsShort(std::int16_t type) {
    constexpr std::array<std::int16_t, 5> kShortTypes = {1, 2, 3, 6, 7};
    return std::ranges::find(kShortTypes, type) != kShortTypes.end();
}

void SwapRedAndBlue(tiff::ByteArray& image) {
    const std::int64_t last = tiff::UpperBound(image) - 1;
    for (std::int64_t i = 0; i <= last; i += 3) {
        if (i + 2 > tiff::UpperBound(image)) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
        std::swap(image[static_cast<std::size_t>(i)], image[static_cast<std::size_t>(i + 2)]);
    }
}

} // namespace

struct clsTiff::Entry {
    std::int16_t tag = 0;
    std::int16_t type = 0;
    std::int32_t count = 0;
    std::int32_t value = 0;
};

struct clsTiff::Load {
    tiff::BinaryFile file;
    FileHeader header;
    tiff::LongArray StripOffsets = {};
    tiff::LongArray StripByteCounts = {};
    tiff::ByteArray Palette = {}; // red, green, blue
    tiff::ByteArray Image = {};   // all strips
};

const clsTiff::TagRow clsTiff::kTags[] = {
    {256, &clsTiff::TakeWidth},           {257, &clsTiff::TakeHeight},
    {258, &clsTiff::TakeBitsPerSample},   {259, &clsTiff::TakeCompression},
    {262, &clsTiff::TakePhotometric},     {273, &clsTiff::TakeStripOffsets},
    {277, &clsTiff::TakeSamplesPerPixel}, {278, &clsTiff::TakeRowsPerStrip},
    {279, &clsTiff::TakeStripByteCounts}, {320, &clsTiff::TakeColorMap},
};

void clsTiff::LoadTIFF(const std::string& FileName) {
    picSmall_.Picture = Picture();
    WithinMemory([&] { ReadAndShow(FileName); });
}

void clsTiff::ReadAndShow(const std::string& FileName) {
    const std::vector<std::uint8_t> bytes = files_.ReadFile(FileName);
    tiff::BinaryFile file(bytes);
    const std::optional<FileHeader> header = ReadHeader(file);
    if (!header) return;
    Load load{file, *header};
    ReadDirectory(load);
    FindBitsPerPixel();
    ReadStrips(load);
    files_.OverwriteStart(files_.DumpFile(), load.Image);
    Show(load);
}

void clsTiff::ReadDirectory(Load& load) {
    const bool isBigEndian = load.header.isBigEndian;
    std::int64_t position = std::int64_t{load.header.directory} + 1;
    load.file.Seek(position);
    std::int16_t count = load.file.Int16();
    if (isBigEndian) tiff::SwapBytesInt(count);
    position += 2;
    for (int i = 0; i < count; ++i, position += kEntryLength) {
        load.file.Seek(position);
        Entry entry;
        entry.tag = load.file.Int16();
        entry.type = load.file.Int16();
        entry.count = load.file.Int32();
        if (isBigEndian) {
            tiff::SwapBytesInt(entry.tag);
            tiff::SwapBytesInt(entry.type);
            tiff::SwapBytesLong(entry.count);
        }
        // The value stays in the file's order, whatever that is.
        entry.value = IsShort(entry.type) ? load.file.Int16() : load.file.Int32();
        for (const TagRow& row : kTags)
            if (row.tag == entry.tag) (this->*row.take)(load, entry);
    }
}

void clsTiff::TakeWidth(Load&, const Entry& entry) {
    Width = entry.value;
}

void clsTiff::TakeHeight(Load&, const Entry& entry) {
    Height = entry.value;
}

// Of several values it is their count that is taken.
void clsTiff::TakeBitsPerSample(Load&, const Entry& entry) {
    BitsPerSample = entry.count == 1 ? entry.value : entry.count;
}

void clsTiff::TakeCompression(Load&, const Entry& entry) {
    CompressionValue = entry.value;
}

void clsTiff::TakePhotometric(Load&, const Entry& entry) {
    Photometric = ToInteger(entry.value);
}

void clsTiff::TakeSamplesPerPixel(Load&, const Entry& entry) {
    SamplesPerPixel = entry.value;
}

void clsTiff::TakeRowsPerStrip(Load&, const Entry& entry) {
    RowsPerStrip = entry.value;
}

void clsTiff::TakeStripOffsets(Load& load, const Entry& entry) {
    load.StripOffsets = entry.count == 1 ? tiff::LongArray::Of(entry.value)
                                         : tiff::LongArray::From(load.file, std::int64_t{entry.value} + 1,
                                                                 entry.count, load.header.isBigEndian);
}

void clsTiff::TakeStripByteCounts(Load& load, const Entry& entry) {
    load.StripByteCounts = entry.count == 1 ? tiff::LongArray::Of(entry.value)
                                            : tiff::LongArray::From(load.file, std::int64_t{entry.value} + 1,
                                                                    entry.count, load.header.isBigEndian);
}

void clsTiff::TakeColorMap(Load& load, const Entry& entry) {
    HasColorMap = CBitmap::kTrue;
    load.Palette = tiff::ReadColorMap(load.file, entry.value, entry.count, limits_.longestArray);
}

void clsTiff::FindBitsPerPixel() {
    if (BitsPerSample != 3) {
        BitsPerPixelValue = Long(SamplesPerPixel) * Long(BitsPerSample);
    } else if (SamplesPerPixel == 1) {
        BitsPerPixelValue = 8;
    } else if (SamplesPerPixel == 3) {
        BitsPerPixelValue = 24;
    }
}

void clsTiff::ReadStrips(Load& load) const {
    if (load.StripOffsets.UpperBound() != load.StripByteCounts.UpperBound()) return;
    tiff::Resize(load.Image, 1, limits_.longestArray);
    tiff::NoOperations noOperations(load.file.Bytes());
    std::int64_t position = 0;
    Long rowsLeft = Height;
    for (std::int32_t i = 0; i <= load.StripOffsets.UpperBound(); ++i) {
        const tiff::StripPlace place{load.StripOffsets[i], load.StripByteCounts[i]};
        tiff::CheckLength(place.length, limits_.longestArray);
        load.file.Seek(place.offset + 1);
        if (CompressionValue == kPackBits) {
            const bool isFull = rowsLeft > RowsPerStrip;
            const tiff::ByteArray strip =
                tiff::DecodePackBits(noOperations, place, 8, isFull ? RowsPerStrip : rowsLeft.Value(), Width,
                                     limits_.longestArray);
            rowsLeft = isFull ? rowsLeft - Long(RowsPerStrip) : Long(0);
            const std::int64_t end = position + tiff::UpperBound(strip) + 1;
            tiff::Resize(load.Image, end, limits_.longestArray);
            std::ranges::copy(strip, load.Image.begin() + position);
            position = end;
        } else {
            const std::int64_t end = position + place.length;
            tiff::Resize(load.Image, end, limits_.longestArray);
            load.file.Fill(std::span(load.Image).subspan(static_cast<std::size_t>(position)));
            position = end;
        }
    }
}

void clsTiff::Show(Load& load) {
    if (CompressionValue != kPackBits && CompressionValue != kUncompressed) return;
    CBitmap bitmap(picSmall_);
    if (BitsPerPixelValue == 24) {
        SwapRedAndBlue(load.Image);
        tiff::PadAndFlipRows(load.Image, Height, Long(Width) * Long(3), limits_.longestArray);
        bitmap.CreateTrueColorDIB(std::move(load.Image), Width, Height, CBitmap::kFalse, CBitmap::k24Bits);
    } else if (BitsPerPixelValue == 8) {
        tiff::PadAndFlipRows(load.Image, Height, Width, limits_.longestArray);
        if (HasColorMap != 0) {
            bitmap.SetPaletteFromBytes(load.Palette);
        } else {
            bitmap.BuildGreyPalette(8, 0);
        }
        bitmap.CreatePaletteDIB(load.Image, Width, Height, CBitmap::kFalse, 1);
    } else if (BitsPerPixelValue == 1) {
        tiff::PadAndFlipRows(load.Image, Height, BytesPerRow(), limits_.longestArray);
        bitmap.SetMonoPalette(Photometric);
        bitmap.CreateMonoDIB(load.Image, Width, Height, CBitmap::kFalse, 0);
    } else {
        return;
    }
    // A picture that is too large, or has no room in memory, leaves the box as it is: it would show a blank.
    const bool isPicture = Width > 0 && Height > 0;
    if (isPicture && (bitmap.BitmapHandle.IsEmpty() || IsTooLarge(Width, Height, limits_.mostPixels)))
        throw RunTimeError(ErrorNumber::OutOfMemory);
    std::int32_t width = Width;
    std::int32_t height = Height;
    bitmap.DrawBitmapToPicture(width, height, picSmall_, CBitmap::kTrue, 0, 0, CBitmap::kFalse);
}

std::int32_t clsTiff::BytesPerRow() const {
    return (Long(Width) * Long(BitsPerPixelValue) + Long(7)) / Long(8);
}

void clsTiff::SwapBytesLong(std::int32_t& value) {
    tiff::SwapBytesLong(value);
}

} // namespace mirelle
