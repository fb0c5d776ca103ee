// The pixel frame of the point effects: the record of a device bitmap, and its bits as an array of bytes with
// three subscripts (channel, x, y), the channel running fastest, then x, then y, rows from the top.
//
// Sizing and use are apart: SizeFXBits sizes the arrays when a new picture comes, and the effects trust them.
// So an array can be larger or smaller than the picture of the moment; the bits are then copied flat, without
// regard to where rows begin, and a subscript beyond a bound raises error 9.
#pragma once

#include "forms/Picture.h"

#include <cstdint>
#include <span>
#include <utility>

namespace mirelle {

// A BITMAP record as GetObject fills it.
struct BitmapRecord {
    std::int32_t bmType = 0;
    std::int32_t bmWidth = 0;      // pixels
    std::int32_t bmHeight = 0;     // pixels
    std::int32_t bmWidthBytes = 0; // bytes of a row
    std::int16_t bmPlanes = 0;
    std::int16_t bmBitsPixel = 0;
    std::int32_t bmBits = 0; // 0: a device bitmap's bits have no address
};
static_assert(sizeof(BitmapRecord) == 24);

// Of a bitmap of that size. Raises error 6 when a row has more bytes than 32 bits count.
BitmapRecord RecordOf(int width, int height);

class PixelArray {
public:
    // Four bytes a pixel: 0 blue, 1 green, 2 red, 3 the fourth byte, which no effect writes.
    static constexpr int kChannels = 4;

    // As long as it has not been sized the array has no elements at all: every subscript raises error 9.
    PixelArray() = default;

    // Makes the array anew, all bytes 0, for the bits of a record. Raises error 11 for a record of no width
    // and 9 for one of no height or of other than 32 bits a pixel; the array keeps what it was then.
    // The bytes' memory is taken when they are first asked for (error 7 where it can't be had): sizing the
    // arrays for a large box that no effect ever works on costs nothing.
    void Redim(const BitmapRecord& record);

    int Width() const { return width_; }
    int Height() const { return height_; }
    bool IsEmpty() const { return width_ == 0; }

    // One byte. Raises error 9 beyond a bound.
    std::uint8_t& At(int channel, int x, int y);
    std::uint8_t At(int channel, int x, int y) const;

    // The elements of one y, and all of them; y in 0..Height()-1, unchecked.
    std::span<Pixel> Row(int y) { return OwnBytes().Row(y); }
    std::span<const Pixel> Row(int y) const { return Bytes().Row(y); }
    std::span<Pixel> Pixels() { return OwnBytes().Pixels(); }
    std::span<const Pixel> Pixels() const { return Bytes().Pixels(); }

    // The elements and a picture of the array's size can be one memory, which costs no copy: what is written
    // afterwards goes into a copy of the array's own.
    void Share(const Picture& picture);
    Picture Share();
    // For a writer who writes every element: they hold anything until then.
    void ForgetElements();

private:
    void CheckSubscripts(int channel, int x, int y) const;
    const Bitmap& Bytes() const;
    Bitmap& OwnBytes();

    int width_ = 0;
    int height_ = 0;
    // At most one of the two holds the elements; neither as long as all of them are 0 and nobody has asked.
    Picture shared_;
    mutable Bitmap own_;
};

// A record and the array that was sized by it.
struct PixelFrame {
    BitmapRecord info;
    PixelArray bytes;

    // GetObject, and the array made anew: one half of SizeFXBits. Raises as PixelArray::Redim.
    void SizeFor(int width, int height);
    // bmWidthBytes x bmHeight, the bytes that GetBitmapBits and SetBitmapBits are asked for.
    std::int64_t ByteCount() const { return std::int64_t{info.bmWidthBytes} * info.bmHeight; }
    // Whether the flat copies below, between the frame and a bitmap of that size, copy all that each of the
    // two holds, row by row.
    bool IsAllOf(int width, int height) const {
        return !bytes.IsEmpty() && bytes.Width() == width && bytes.Height() == height &&
               info.bmWidth == width && info.bmHeight == height &&
               info.bmWidthBytes == std::int64_t{PixelArray::kChannels} * width;
    }
};

// The flat copies between a bitmap and a frame, from byte 0 on: as many bytes as the frame's record tells,
// and no more than either side has. Raise error 9 while the array has no elements.
void GetBitmapBits(const Bitmap& from, PixelFrame& to);
void SetBitmapBits(Bitmap& to, const PixelFrame& from);
// The same from a picture, whose pixels the frame shares where they are all that it holds.
void GetBitmapBits(const Picture& from, PixelFrame& to);

} // namespace mirelle
