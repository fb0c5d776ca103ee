// CBitmap: from an array of bytes, with a header and a table of colours, to a bitmap that waits to be drawn,
// and from there into a picture box.
//
// The tables and headers, and the one bitmap that waits, stay from one call to the next: a table is set, a
// bitmap made, the bitmap drawn. They live as long as the object, which whoever shows a picture makes anew.
// Nothing is raised by any of these: a statement that fails is passed over.
#pragma once

#include "forms/Picture.h"
#include "forms/PictureBox.h"

#include <array>
#include <cstdint>
#include <span>
#include <vector>

namespace mirelle {

// BITMAPINFOHEADER, with the fields that are not left 0.
struct BitmapInfoHeader {
    std::int32_t Size = 40;
    std::int32_t Width = 0;
    std::int32_t Height = 0; // negative for rows from the top
    std::int16_t Planes = 1;
    std::int16_t BitCount = 0;
    std::int32_t ClrUsed = 0;

    friend bool operator==(const BitmapInfoHeader&, const BitmapInfoHeader&) = default;
};

// A header with its table: blue, green, red, 0 each.
template <std::size_t Entries>
struct BitmapInfo {
    BitmapInfoHeader Header;
    std::array<Pixel, Entries> Colors{};
};

// A size as the platform's calls take it, in one unit or the other.
struct BitmapSize {
    std::int32_t width = 0;
    std::int32_t height = 0;

    friend bool operator==(const BitmapSize&, const BitmapSize&) = default;
};

class CBitmap {
public:
    // What arguments that are truth values hold.
    static constexpr std::int16_t kTrue = -1;
    static constexpr std::int16_t kFalse = 0;
    // Modes of CreateTrueColorDIB.
    static constexpr std::int16_t k32Bits = 0;
    static constexpr std::int16_t k24Bits = 1;

    // Drawing anything, anywhere, clears the Material Image first.
    explicit CBitmap(PictureBox& picSmall) : picSmall_(picSmall) {}

    // The two colours of a 1-bit image: white and black for 0, black and white for 1, black twice else.
    void SetMonoPalette(std::int16_t photometric);
    // The 256 colours from triples of red, green and blue; black beyond the triples.
    void SetPaletteFromBytes(std::span<const std::uint8_t> triples);
    // A grey ramp of 2^BitCount entries (256 for 16), each a step of 255 / (entries - 1), rounded, above the
    // one before. 8 bits go to the 256 colours, 1 bit to the two of a 1-bit image where `Flag` is -1, 4 bits
    // to the first of the 256 where it is -1, 2 bits and 4 bits without it to tables that nothing reads.
    // Returns the ramp as bytes of red, green and blue.
    std::vector<std::uint8_t> BuildGreyPalette(std::int16_t BitCount, std::int16_t Flag);

    // Make the bitmap that waits from rows aligned to 4 bytes, the lowest first unless TopDown; none waits
    // where they are too few. Every number of a pixel shows its entry of the table, whatever ColorsUsed says.
    void CreateMonoDIB(std::span<const std::uint8_t> pixels, std::int32_t width, std::int32_t height,
                       std::int16_t TopDown, std::int32_t ColorsUsed);
    void CreatePaletteDIB(std::span<const std::uint8_t> pixels, std::int32_t width, std::int32_t height,
                          std::int16_t TopDown, std::int32_t ColorsUsed);
    // Blue, green, red (and a fourth byte with 32 bits). The last byte of the array is left out and counts as
    // 0.
    void CreateTrueColorDIB(std::vector<std::uint8_t> pixels, std::int32_t width, std::int32_t height,
                            std::int16_t TopDown, std::int16_t Mode);

    // Draws the bitmap that waits and frees it; then what the target shows becomes its Picture. With AutoSize
    // the target takes the size first, with KeepTarget too the size comes back in twips and the target stays
    // as large as it is. (x, y) is in pixels.
    void DrawBitmapToPicture(std::int32_t& width, std::int32_t& height, PictureBox& target,
                             std::int16_t AutoSize, int x, int y, std::int16_t KeepTarget);

    // Raise 6 where the result leaves 32 bits. Twips go to the nearest pixel, ties to the even one.
    static BitmapSize PixelsToTwips(BitmapSize pixels);
    static BitmapSize TwipsToPixels(BitmapSize twips);

    // The module's state.
    BitmapInfo<2> MonoHeader;
    BitmapInfo<256> PaletteHeader;
    BitmapInfoHeader TrueColor32Header, TrueColor24Header;
    Picture BitmapHandle; // the bitmap that waits to be drawn, empty where none does

private:
    void CreateDIBitmap(const BitmapInfoHeader& header, std::span<const Pixel> colors,
                        std::span<const std::uint8_t> pixels);
    void Stretch(PictureBox& target, BitmapSize from, int x, int y, BitmapSize drawing) const;

    PictureBox& picSmall_;
    std::array<Pixel, 4> fourGreys_{};
    std::array<Pixel, 16> sixteenGreys_{};
};

} // namespace mirelle
