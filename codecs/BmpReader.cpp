#include "codecs/BmpReader.h"

#include "codecs/LittleEndian.h"

namespace mirelle {
namespace {

constexpr std::size_t kFileHeaderSize = 14;
constexpr std::size_t kPixelsOffsetField = 10;

Bitmap ReadFrom(std::span<const std::uint8_t> dib, const DibHeader& header, std::size_t pixels,
                DibAlpha alpha) {
    if (pixels > dib.size()) throw RunTimeError(ErrorNumber::InvalidPicture);
    return ReadDibPixels(header, ReadDibPalette(dib, header, pixels), dib.subspan(pixels), alpha);
}

} // namespace

Bitmap ReadBmp(std::span<const std::uint8_t> file, DibAlpha alpha) {
    if (U16At(file, 0) != ('B' | ('M' << 8))) throw RunTimeError(ErrorNumber::InvalidPicture);
    const std::size_t told = U32At(file, kPixelsOffsetField);
    const std::span<const std::uint8_t> dib = PartOf(file, kFileHeaderSize, file.size() - kFileHeaderSize);
    const DibHeader header = ReadDibHeader(dib);
    // Some writers leave the pixels' place at 0.
    const bool isUsable = told >= kFileHeaderSize + header.paletteOffset;
    return ReadFrom(dib, header, isUsable ? told - kFileHeaderSize : header.endOfPalette, alpha);
}

Bitmap ReadDib(std::span<const std::uint8_t> dib, DibAlpha alpha) {
    const DibHeader header = ReadDibHeader(dib);
    return ReadFrom(dib, header, header.endOfPalette, alpha);
}

} // namespace mirelle
