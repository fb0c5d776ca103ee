#include "fx/fast/FastKernels.h"
#include "fx/fast/PixelRuns.h"

namespace mirelle::fast {
namespace {

// What a blur remembers is pixels of the source, not of its result, so every pixel can be done for itself:
// the remembered pixels are the source again, moved by one and by two.

void Averaged(const Pixel* c, const Pixel* p, Pixel* destination, std::size_t pixels) {
    InBestVersion([=]() MIRELLE_LAMBDA {
        EachWord(
            pixels, destination,
            [](std::size_t, std::uint32_t cs, std::uint32_t ps) MIRELLE_LAMBDA { return MeanToEven(cs, ps); },
            c, p);
    });
}

// ((c + p1) / 2 + p2) / 2, which is a quarter of c + p1 + 2 p2; the halving between loses nothing in a float.
// Cut down it is the mean, cut down, of p2 and of the mean, cut down, of the other two. What both cuts took
// off are a half and a quarter: the half alone is a tie and goes to the even number, with the quarter it goes
// up.
MIRELLE_INLINE std::uint32_t QuarterToEven(std::uint32_t c, std::uint32_t p1, std::uint32_t p2) {
    const std::uint32_t quarter = c ^ p1;
    const std::uint32_t mean = MeanCutDown(c, p1);
    const std::uint32_t half = mean ^ p2;
    const std::uint32_t cut = MeanCutDown(mean, p2);
    return cut + (half & (quarter | cut) & kEveryLowBit);
}

void AveragedMore(const Pixel* c, const Pixel* p1, const Pixel* p2, Pixel* destination, std::size_t pixels) {
    InBestVersion([=]() MIRELLE_LAMBDA {
        EachWord(
            pixels, destination,
            [](std::size_t, std::uint32_t cs, std::uint32_t p1s, std::uint32_t p2s)
                MIRELLE_LAMBDA { return QuarterToEven(cs, p1s, p2s); },
            c, p1, p2);
    });
}

} // namespace

void FXBlur(const KernelFrame& frame, const KernelArguments&) {
    const Pixel* source = frame.source.data();
    Pixel* destination = frame.destination.data();
    const auto width = static_cast<std::size_t>(frame.width);
    CopyPixels(source, destination, width);
    Averaged(source + width, source + width - 1, destination + width, frame.source.size() - width);
}

void FXBlurMore(const KernelFrame& frame, const KernelArguments&) {
    const Pixel* source = frame.source.data();
    Pixel* destination = frame.destination.data();
    const auto width = static_cast<std::size_t>(frame.width);
    const std::size_t size = frame.source.size();
    CopyPixels(source, destination, width);
    if (size == width) return;
    // Row 0 leaves its last pixel in both places.
    const Pixel* last = source + width - 1;
    AveragedMore(last + 1, last, last, destination + width, 1);
    AveragedMore(last + 2, last + 1, last, destination + width + 1, size - width - 1);
}

void FXBlurMoreVert(const KernelFrame& frame, const KernelArguments&) {
    const auto width = static_cast<std::size_t>(frame.width);
    const auto row = [&](int y) { return frame.source.data() + static_cast<std::size_t>(y) * width; };
    CopyPixels(row(0), frame.destination.data(), width);
    for (int y = 1; y < frame.height; ++y) {
        Pixel* destination = frame.destination.data() + static_cast<std::size_t>(y) * width;
        AveragedMore(row(y), row(y - 1), y == 1 ? row(0) : row(y - 2), destination, width);
    }
}

} // namespace mirelle::fast
