#include "forms/Numbers.h"
#include "fx/fast/FastKernels.h"
#include "fx/fast/KeptValues.h"
#include "fx/plain/PlainKernels.h"

#include <cmath>

namespace mirelle::fast {
namespace {

// Added to a float of less than 2^12 it rounds it to a multiple of 1 / 1024; added to one of less than 2^22
// it rounds it to a whole number, a tie to the even one, that stands in the lowest bits.
constexpr float kToFractions = 12288.0F; // 1.5 x 2^13
constexpr float kToWhole = 12582912.0F;  // 1.5 x 2^23

// v = dividend / c as the fast form computes it, for c from `darkest` to 255; below that v is 255.
struct Division {
    float dividend;
    std::uint8_t darkest;
};

// One division serves three channels: b g r fits a float exactly, and dividend / (b g r) x (g r) is dividend
// / b but for an error of two or three steps of the last place. Rounding to 1 / 1024 first takes that error
// out of the ties.
MIRELLE_INLINE std::uint32_t QuotientsOf(std::uint32_t pixel, float dividend) {
    const auto channel = [](std::uint32_t value)
                             MIRELLE_LAMBDA { return static_cast<float>(static_cast<std::int32_t>(value)); };
    const float b = channel(pixel & 0xFF);
    const float g = channel(pixel >> 8 & 0xFF);
    const float r = channel(pixel >> 16);
    const float gr = g * r;
    const float share = dividend / (b * gr);
    const auto whole = [](float quotient) MIRELLE_LAMBDA {
        return std::bit_cast<std::uint32_t>((quotient + kToFractions) + (kToWhole - kToFractions));
    };
    return (whole(share * gr) & 0xFF) | whole(share * (b * r)) << 8 | whole(share * (b * g)) << 16;
}

MIRELLE_INLINE void FillRun(std::uint8_t* values, std::uint8_t* failed, const std::uint8_t* c,
                            const Division& division) {
    alignas(kBlockBytes) std::uint8_t bright[KeptValues::kRunBytes];
    for (std::size_t block = 0; block < KeptValues::kRunBytes; block += kBlockBytes) {
        MIRELLE_INDEPENDENT
        for (std::size_t k = 0; k < kBlockBytes; ++k) {
            bright[block + k] =
                static_cast<std::uint8_t>(Most(c[block + k], division.darkest) & kColorPattern[k]);
        }
    }
    MIRELLE_INDEPENDENT
    for (std::size_t i = 0; i < KeptValues::kRunPixels; ++i) {
        SetWord(values + 4 * i, QuotientsOf(Word(bright + 4 * i), division.dividend));
    }
    for (std::size_t block = 0; block < KeptValues::kRunBytes; block += kBlockBytes) {
        MIRELLE_INDEPENDENT
        for (std::size_t k = 0; k < kBlockBytes; ++k) {
            const std::size_t i = block + k;
            const auto fails = static_cast<std::uint8_t>((c[i] == 0 ? 255 : 0) & kColorPattern[k]);
            failed[i] = fails;
            values[i] = static_cast<std::uint8_t>(values[i] & kColorPattern[k] & ~fails);
        }
    }
}

void Glow(const Pixel* source, Pixel* destination, std::size_t pixels, Division division) {
    InBestVersion([=]() MIRELLE_LAMBDA {
        KeptValues kept;
        EachRun(
            kept, pixels, destination,
            [&](std::uint8_t* to, std::uint8_t* failed, const std::uint8_t* c)
                MIRELLE_LAMBDA { FillRun(to, failed, c, division); },
            source);
    });
}

// The division that gives what |765 / c| x factor rounds to, cut at 255, for every c from 1 to 255. Returns
// false where there is none: for quotients beyond 16 bits, or so near a tie that the float's error could
// decide.
bool DivisionFor(float factor, Division& division) {
    // More than a half of 1 / 1024 and the error; whole dividends keep half of 1 / 255 from any tie.
    constexpr double sureDistance = 1.0 / 600;
    division = {765.0F * factor, 1};
    if (!(division.dividend >= 1 && division.dividend <= 16384)) return false;
    for (int c = 255; c >= 1; --c) {
        const double quotient = std::fabs(765.0 / c) * static_cast<double>(factor);
        const double exact = static_cast<double>(division.dividend) / c;
        const double toTie = std::fabs(exact - std::floor(exact) - 0.5);
        const bool sure = toTie == 0 ? quotient == exact : toTie >= sureDistance;
        const double v = RoundHalfEven(quotient);
        if (!sure || v != RoundHalfEven(exact)) return false;
        if (v >= 255) {
            division.darkest = static_cast<std::uint8_t>(c);
            return v == 255;
        }
    }
    return true;
}

} // namespace

void FXGlow(const KernelFrame& frame, const KernelArguments& arguments) {
    Division division;
    if (!DivisionFor(arguments.factor, division)) return plain::FXGlow(frame, arguments);
    Glow(frame.source.data(), frame.destination.data(), frame.source.size(), division);
}

} // namespace mirelle::fast
