#include "fx/fast/FastKernels.h"
#include "fx/fast/PixelRuns.h"
#include "fx/plain/PlainKernels.h"

#include <limits>

namespace mirelle::fast {
namespace {

void Masked(const Pixel* source, Pixel* destination, std::size_t pixels, std::uint32_t mask) {
    InBestVersion([=]() MIRELLE_LAMBDA {
        EachWord(
            pixels, destination, [mask](std::size_t, std::uint32_t s) MIRELLE_LAMBDA { return s & mask; },
            source);
    });
}

// |255 - 3c| x 1.2, where more than 255 counts as 255. With d = |c - 85| it is 3.6 d, which ends in no half,
// so that adding one half and cutting rounds it: (36 d + 5) / 10 = (18 d + 2) / 5, as 36 d is even. From d =
// 71 on it is above 255, where the cut at 71 gives 256. 13108 / 65536 is 1 / 5 and less than 1 / 80000 more:
// up to 1280 that cuts down to the same whole number.
MIRELLE_INLINE std::uint16_t FromGreyLevel85(std::uint16_t c) {
    const std::uint16_t d = WideLeast(WideDistance(c, 85), 71);
    return WideLeast(HighProduct(static_cast<std::uint16_t>(18 * d + 2), 13108), 255);
}

void MadeVivid(const Pixel* source, Pixel* destination, std::size_t pixels) {
    InBestVersion([=]() MIRELLE_LAMBDA {
        EachWideByte(
            pixels, destination, [](std::uint16_t c) MIRELLE_LAMBDA { return FromGreyLevel85(c); }, source);
    });
}

void NeonNegated(const Pixel* source, Pixel* destination, std::size_t pixels) {
    InBestVersion([=]() MIRELLE_LAMBDA {
        EachWideByte(
            pixels, destination,
            [](std::uint16_t c)
                MIRELLE_LAMBDA { return static_cast<std::uint16_t>(255 - FromGreyLevel85(c)); },
            source);
    });
}

// 3c / 1.2 is 2c and half of c; from c = 102 on it is 255 or more.
void NegatedMore(const Pixel* source, Pixel* destination, std::size_t pixels) {
    InBestVersion([=]() MIRELLE_LAMBDA {
        EachByte(
            pixels, destination,
            [](std::size_t, std::uint8_t c) MIRELLE_LAMBDA {
                const std::uint8_t limited = Least(c, 102);
                return static_cast<std::uint8_t>(~(2 * limited + HalfToEven(limited)));
            },
            source);
    });
}

// Whether a channel and this amount add up within 16 bits.
bool CanAdd(int amount) {
    return amount <= std::numeric_limits<std::int16_t>::max() - 255;
}

void AddAmounts(const KernelFrame& frame, int red, int green, int blue) {
    ShiftPixels(frame.source.data(), frame.destination.data(), frame.source.size(),
                ChannelShift::Of(blue, green, red));
}

} // namespace

void FXNegate(const KernelFrame& frame, const KernelArguments&) {
    InvertPixels(frame.source.data(), frame.destination.data(), frame.source.size());
}

void FXIncoherence(const KernelFrame& frame, const KernelArguments&) {
    ExchangeChannels(frame.source.data(), frame.destination.data(), frame.source.size(), {2, 1, 0});
}

void FXNoRed(const KernelFrame& frame, const KernelArguments&) {
    Masked(frame.source.data(), frame.destination.data(), frame.source.size(), 0x00FFFF);
}
void FXNoGreen(const KernelFrame& frame, const KernelArguments&) {
    Masked(frame.source.data(), frame.destination.data(), frame.source.size(), 0xFF00FF);
}
void FXNoBlue(const KernelFrame& frame, const KernelArguments&) {
    Masked(frame.source.data(), frame.destination.data(), frame.source.size(), 0xFFFF00);
}

// A sum below 0 is not stored, which leaves the same 0 as a limit would.
void FXLighten(const KernelFrame& frame, const KernelArguments& arguments) {
    const int amount = arguments.amounts[0];
    if (!CanAdd(amount)) return plain::FXLighten(frame, arguments);
    AddAmounts(frame, amount, amount, amount);
}

// A difference above 255 is not stored, which leaves 0.
void FXDarken(const KernelFrame& frame, const KernelArguments& arguments) {
    const int amount = arguments.amounts[0];
    if (amount < 0) return plain::FXDarken(frame, arguments);
    AddAmounts(frame, -amount, -amount, -amount);
}

void FXShiftRed(const KernelFrame& frame, const KernelArguments& arguments) {
    const int amount = arguments.amounts[0];
    if (!CanAdd(amount)) return plain::FXShiftRed(frame, arguments);
    AddAmounts(frame, amount, 0, 0);
}
void FXShiftGreen(const KernelFrame& frame, const KernelArguments& arguments) {
    const int amount = arguments.amounts[0];
    if (!CanAdd(amount)) return plain::FXShiftGreen(frame, arguments);
    AddAmounts(frame, 0, amount, 0);
}
void FXShiftBlue(const KernelFrame& frame, const KernelArguments& arguments) {
    const int amount = arguments.amounts[0];
    if (!CanAdd(amount)) return plain::FXShiftBlue(frame, arguments);
    AddAmounts(frame, 0, 0, amount);
}

void FXShiftRGB(const KernelFrame& frame, const KernelArguments& arguments) {
    const auto& [red, green, blue] = arguments.amounts;
    if (!CanAdd(red) || !CanAdd(green) || !CanAdd(blue)) return plain::FXShiftRGB(frame, arguments);
    AddAmounts(frame, red, green, blue);
}

void FXVivid(const KernelFrame& frame, const KernelArguments&) {
    MadeVivid(frame.source.data(), frame.destination.data(), frame.source.size());
}

void FXNegateMore(const KernelFrame& frame, const KernelArguments&) {
    NegatedMore(frame.source.data(), frame.destination.data(), frame.source.size());
}

void FXNeonNegate(const KernelFrame& frame, const KernelArguments& arguments) {
    if (arguments.amounts[0] != 255) return plain::FXNeonNegate(frame, arguments);
    NeonNegated(frame.source.data(), frame.destination.data(), frame.source.size());
}

} // namespace mirelle::fast
