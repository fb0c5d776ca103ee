// Any bytes as a BMP file, as a bare bitmap and as an icon: a picture, or error 481 or 7.
#include "codecs/BmpReader.h"
#include "codecs/IconReader.h"
#include "forms/RunTimeError.h"

#include <cstdlib>

namespace {

using Bytes = std::span<const std::uint8_t>;

// Not more than this is made of a few bytes, so that a run has time for many files.
constexpr std::int64_t kPixelsOfInterest = 1 << 20;

mirelle::Bitmap RefusePng(Bytes) {
    throw mirelle::RunTimeError(mirelle::ErrorNumber::InvalidPicture);
}

template <class Reader>
void Try(Reader&& read) {
    try {
        if (read().IsEmpty()) std::abort();
    } catch (const mirelle::RunTimeError& error) {
        const bool isExpected = error.Number() == mirelle::ErrorNumber::InvalidPicture ||
                                error.Number() == mirelle::ErrorNumber::OutOfMemory;
        if (!isExpected) std::abort();
    }
}

bool IsOfInterest(Bytes dib) {
    bool isSmall = true;
    mirelle::ResumeNext([&] {
        const mirelle::DibHeader header = mirelle::ReadDibHeader(dib);
        isSmall = std::int64_t{header.width} * header.height <= kPixelsOfInterest;
    });
    return isSmall;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const Bytes file(data, size);
    const auto kept = mirelle::DibAlpha::Kept;
    if (size > 14 && IsOfInterest(file.subspan(14))) Try([&] { return mirelle::ReadBmp(file, kept); });
    if (IsOfInterest(file)) Try([&] { return mirelle::ReadDib(file, kept); });
    Try([&] { return mirelle::ReadIcon(file, RefusePng); });
    return 0;
}
