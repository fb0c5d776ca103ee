#include "codecs/CBitmap.h"

#include "codecs/DibPixels.h"
#include "forms/Numbers.h"
#include "forms/RunTimeError.h"
#include "forms/Stretch.h"

#include <algorithm>

namespace mirelle {
namespace {

constexpr Pixel kWhite{255, 255, 255, 0};

// Greys of more bits than these are beyond any table.
constexpr int kMostGreyBits = 24;

BitmapInfoHeader HeaderOf(std::int32_t width, std::int32_t height, std::int16_t topDown, std::int16_t bits,
                          std::int32_t colorsUsed = 0) {
    BitmapInfoHeader header;
    header.Width = width;
    header.Height = height;
    ResumeNext([&] {
        if (topDown != CBitmap::kFalse) header.Height = Long(0) - Long(height);
    });
    header.BitCount = bits;
    header.ClrUsed = colorsUsed;
    return header;
}

} // namespace

void CBitmap::SetMonoPalette(std::int16_t photometric) {
    MonoHeader.Colors = {};
    if (photometric == 0) MonoHeader.Colors[0] = kWhite;
    if (photometric == 1) MonoHeader.Colors[1] = kWhite;
}

void CBitmap::SetPaletteFromBytes(std::span<const std::uint8_t> triples) {
    std::array<std::uint8_t, 3 * 256> copied{};
    std::copy_n(triples.begin(), std::min(triples.size(), copied.size()), copied.begin());
    for (std::size_t i = 0; i < PaletteHeader.Colors.size(); ++i)
        PaletteHeader.Colors[i] = {copied[3 * i + 2], copied[3 * i + 1], copied[3 * i], 0};
}

std::vector<std::uint8_t> CBitmap::BuildGreyPalette(std::int16_t BitCount, std::int16_t Flag) {
    const int bits = BitCount == 16 ? 8 : BitCount;
    if (bits < 0 || bits > kMostGreyBits) return {};
    const std::size_t entries = std::size_t{1} << bits;
    std::uint8_t step = 0; // a single entry has none
    if (entries > 1)
        step = static_cast<std::uint8_t>(RoundHalfEven(255.0 / static_cast<double>(entries - 1)));
    std::vector<Pixel> ramp(entries);
    std::vector<std::uint8_t> bytes;
    bytes.reserve(3 * entries);
    std::uint8_t grey = 0;
    for (Pixel& entry : ramp) {
        entry = {grey, grey, grey, 0};
        bytes.insert(bytes.end(), 3, grey);
        grey = static_cast<std::uint8_t>(grey + step);
    }
    if (BitCount == 1 && Flag == kTrue) std::ranges::copy(ramp, MonoHeader.Colors.begin());
    if (BitCount == 2) std::ranges::copy(ramp, fourGreys_.begin());
    if (BitCount == 4)
        std::ranges::copy(ramp, Flag == kTrue ? PaletteHeader.Colors.begin() : sixteenGreys_.begin());
    if (BitCount == 8) std::ranges::copy(ramp, PaletteHeader.Colors.begin());
    return bytes;
}

void CBitmap::CreateMonoDIB(std::span<const std::uint8_t> pixels, std::int32_t width, std::int32_t height,
                            std::int16_t TopDown, std::int32_t ColorsUsed) {
    MonoHeader.Header = HeaderOf(width, height, TopDown, 1, ColorsUsed);
    CreateDIBitmap(MonoHeader.Header, MonoHeader.Colors, pixels);
}

void CBitmap::CreatePaletteDIB(std::span<const std::uint8_t> pixels, std::int32_t width, std::int32_t height,
                               std::int16_t TopDown, std::int32_t ColorsUsed) {
    PaletteHeader.Header = HeaderOf(width, height, TopDown, 8, ColorsUsed);
    CreateDIBitmap(PaletteHeader.Header, PaletteHeader.Colors, pixels);
}

void CBitmap::CreateTrueColorDIB(std::vector<std::uint8_t> pixels, std::int32_t width, std::int32_t height,
                                 std::int16_t TopDown, std::int16_t Mode) {
    if (!pixels.empty()) pixels.back() = 0;
    BitmapInfoHeader& header = Mode == k32Bits ? TrueColor32Header : TrueColor24Header;
    header = HeaderOf(width, height, TopDown, Mode == k32Bits ? 32 : 24);
    CreateDIBitmap(header, {}, pixels);
}

void CBitmap::CreateDIBitmap(const BitmapInfoHeader& header, std::span<const Pixel> colors,
                             std::span<const std::uint8_t> pixels) {
    BitmapHandle = Picture();
    ResumeNext([&] {
        DibHeader dib;
        dib.width = header.Width;
        dib.isTopDown = header.Height < 0;
        dib.height = dib.isTopDown ? Long(0) - Long(header.Height) : Long(header.Height);
        dib.bitCount = header.BitCount;
        dib.masks = {0xFF0000, 0xFF00, 0xFF, 0};
        BitmapHandle = Picture(ReadDibPixels(dib, colors, pixels, DibAlpha::Dropped));
    });
}

void CBitmap::DrawBitmapToPicture(std::int32_t& width, std::int32_t& height, PictureBox& target,
                                  std::int16_t AutoSize, int x, int y, std::int16_t KeepTarget) {
    ResumeNext([&] { picSmall_.Picture = Picture(); });
    target.Cls();
    BitmapSize twips;
    if (AutoSize == kTrue) {
        ResumeNext([&] { twips = PixelsToTwips({width, height}); });
        if (KeepTarget == kFalse) {
            const BitmapSize pixels = TwipsToPixels(twips);
            target.SizeInPixels(pixels.width, pixels.height);
        }
    }
    // Boxes have no border: what a box is inside it is outside.
    BitmapSize drawing{target.PixelWidth(), target.PixelHeight()};
    if (KeepTarget != kFalse) {
        width = twips.width;
        height = twips.height;
        drawing = twips;
    }
    if (!BitmapHandle.IsEmpty()) {
        ResumeNext([&] { Stretch(target, {width, height}, x, y, drawing); });
        BitmapHandle = Picture();
    }
    ResumeNext([&] { target.Picture = target.Image(); });
}

void CBitmap::Stretch(PictureBox& target, BitmapSize from, int x, int y, BitmapSize drawing) const {
    const BitmapSize whole{BitmapHandle.Width(), BitmapHandle.Height()};
    if (x == 0 && y == 0 && from == whole && drawing == whole) {
        target.ShowImage(BitmapHandle); // which needs no second bitmap
        return;
    }
    StretchHalftone(BitmapHandle.Pixels(), {0, 0, from.width, from.height}, target.Paint(),
                    {x, y, drawing.width, drawing.height});
}

BitmapSize CBitmap::PixelsToTwips(BitmapSize pixels) {
    constexpr double kTwips = kTwipsPerPixel;
    return {ToLong(pixels.width * kTwips), ToLong(pixels.height * kTwips)};
}

BitmapSize CBitmap::TwipsToPixels(BitmapSize twips) {
    constexpr double kTwips = kTwipsPerPixel;
    return {ToLong(twips.width / kTwips), ToLong(twips.height / kTwips)};
}

} // namespace mirelle
