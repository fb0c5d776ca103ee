// clsTiff: the program's own reader of TIFF files, for the little-endian ones.
//
// It reads the first directory of a file and all strips into one array of bytes, unpacks PackBits, and draws
// uncompressed and PackBits images of 1, 8 and 24 bits into the Material Image. Everything else is read,
// dumped and silently not shown. After TIFF Revision 6.0, with habits of its own that are kept: a big-endian
// file's values are not swapped, a missing SamplesPerPixel counts as 0, the photometric interpretation plays
// no part but with 1 bit, PackBits strips come out with a byte for each pixel.
//
// Every load leaves the strips, unpacked, in the file system's dump file.
//
// A load takes time and memory for the bytes of its file and for those that its strips come out with, and for
// nothing that a file merely claims, or tells again and again.
#pragma once

#include "codecs/PictureLimits.h"
#include "codecs/tiff/ByteArray.h"
#include "forms/PictureBox.h"
#include "forms/ports/FileSystem.h"

#include <cstdint>
#include <string>

namespace mirelle {

// What a load is held to, whatever the file claims.
struct TiffLimits {
    std::int64_t longestArray = tiff::kLongestArray; // in bytes
    std::int64_t mostPixels = kGreatestPixelCount;   // of a picture that is shown
};

class clsTiff {
public:
    clsTiff(PictureBox& picSmall, FileSystem& files, TiffLimits limits = {})
        : picSmall_(picSmall), files_(files), limits_(limits) {}

    // Clears the Material Image, reads the file and draws what it can. A file that is no TIFF, or of a
    // compression or depth that is not read, ends it silently. Raises what reading the file and writing the
    // dump raise, 9 for arrays without elements and images shorter than their rows, 6 for numbers that leave
    // their range, 7 for arrays that are too long, for a picture that is too large (the Material Image keeps
    // its size then) and where the memory can't be had, 63 for a place ahead of the file's start.
    void LoadTIFF(const std::string& FileName);

    static void SwapBytesLong(std::int32_t& value);

    // What the directories read so far have told; a file that leaves a tag out leaves the value as it was.
    std::int32_t ImageWidth() const { return Width; }
    std::int32_t ImageHeight() const { return Height; }
    std::int32_t BitsPerPixel() const { return BitsPerPixelValue; }
    std::int32_t Compression() const { return CompressionValue; } // PackBits from a SHORT is -32763

private:
    struct Entry; // of the directory
    struct Load;  // what lives for one load
    struct TagRow {
        std::int16_t tag;
        void (clsTiff::*take)(Load& load, const Entry& entry);
    };
    static const TagRow kTags[];

    void ReadAndShow(const std::string& FileName);
    void ReadDirectory(Load& load);
    void TakeWidth(Load& load, const Entry& entry);
    void TakeHeight(Load& load, const Entry& entry);
    void TakeBitsPerSample(Load& load, const Entry& entry);
    void TakeCompression(Load& load, const Entry& entry);
    void TakePhotometric(Load& load, const Entry& entry);
    void TakeStripOffsets(Load& load, const Entry& entry);
    void TakeSamplesPerPixel(Load& load, const Entry& entry);
    void TakeRowsPerStrip(Load& load, const Entry& entry);
    void TakeStripByteCounts(Load& load, const Entry& entry);
    void TakeColorMap(Load& load, const Entry& entry);
    void FindBitsPerPixel();
    void ReadStrips(Load& load) const;
    void Show(Load& load);
    std::int32_t BytesPerRow() const;

    std::int32_t Width = 0;
    std::int32_t Height = 0;
    std::int32_t BitsPerPixelValue = 0;
    std::int32_t CompressionValue = 0;
    std::int32_t SamplesPerPixel = 0;
    std::int32_t BitsPerSample = 0;
    std::int16_t Photometric = 0;
    std::int16_t HasColorMap = 0; // -1 once a colour map was seen
    std::int32_t RowsPerStrip = 0;

    PictureBox& picSmall_;
    FileSystem& files_;
    TiffLimits limits_;
};

} // namespace mirelle
