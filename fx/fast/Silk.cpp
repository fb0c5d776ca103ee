#include "fx/fast/FastKernels.h"
#include "fx/fast/KeptValues.h"

namespace mirelle::fast {
namespace {

// |255 - product / 10|, ties to even, where more than 255 counts as 255.
//
// With a = |2550 - product|, cut at 2550 (255), it is a / 10. Twenty steps of a make two of it, and of their
// two ties the one at 5 goes down and the one at 15 goes up, so its steps lie between 5 and 6 and between 14
// and 15: it is (a + 14) / 20 + (a + 5) / 20, both cut down. 3277 / 65536 is 1 / 20 and less than 1 / 300000
// more: up to 2564 that cuts down to the same whole number.
MIRELLE_INLINE std::uint16_t SilkOf(std::uint16_t product) {
    const std::uint16_t a = WideDistance(2550, WideLeast(product, 5100));
    return static_cast<std::uint16_t>(HighProduct(static_cast<std::uint16_t>(a + 14), 3277) +
                                      HighProduct(static_cast<std::uint16_t>(a + 5), 3277));
}

// All bits for a product above 32767.
MIRELLE_INLINE std::uint16_t TooLarge(std::uint16_t product) {
    return static_cast<std::uint16_t>(static_cast<std::int16_t>(product) >> 15);
}

MIRELLE_INLINE std::uint16_t Product(std::uint16_t a, std::uint16_t b) {
    return static_cast<std::uint16_t>(std::uint32_t{a} * std::uint32_t{b});
}

MIRELLE_INLINE void FillRun(std::uint8_t* values, std::uint8_t* failed, const std::uint8_t* c,
                            const std::uint8_t* p) {
    for (std::size_t block = 0; block < KeptValues::kRunBytes; block += kBlockBytes) {
        MIRELLE_INDEPENDENT
        for (std::size_t k = 0; k < kBlockBytes; k += 2) {
            const std::size_t i = block + k;
            const std::uint16_t even = Product(LowByte(TwoBytes(c + i)), LowByte(TwoBytes(p + i)));
            const std::uint16_t odd = Product(HighByte(TwoBytes(c + i)), HighByte(TwoBytes(p + i)));
            const auto fails = static_cast<std::uint16_t>(
                ((TooLarge(even) & 0x00FF) | (TooLarge(odd) & 0xFF00)) & ColorBits(k));
            SetTwoBytes(failed + i, fails);
            SetTwoBytes(values + i, static_cast<std::uint16_t>(Joined(SilkOf(even), SilkOf(odd)) & ~fails &
                                                               ColorBits(k)));
        }
    }
}

void Silk(const Pixel* source, Pixel* destination, std::size_t width, std::size_t pixels) {
    InBestVersion([=]() MIRELLE_LAMBDA {
        KeptValues kept;
        const auto fill = [](std::uint8_t* values, std::uint8_t* failed, const std::uint8_t* c,
                             const std::uint8_t* p) MIRELLE_LAMBDA { FillRun(values, failed, c, p); };
        // In row 0 the remembered pixel is the pixel itself, from there on the one before it.
        EachRun(kept, width, destination, fill, source, source);
        EachRun(kept, pixels - width, destination + width, fill, source + width, source + width - 1);
    });
}

} // namespace

void FXSilk(const KernelFrame& frame, const KernelArguments&) {
    Silk(frame.source.data(), frame.destination.data(), static_cast<std::size_t>(frame.width),
         frame.source.size());
}

} // namespace mirelle::fast
