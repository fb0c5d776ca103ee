#include "fx/plain/PlainFrame.h"
#include "fx/plain/PlainKernels.h"

namespace mirelle::plain {
namespace {

// Adds an amount a channel, then limits and stores; the frame that the shifts share.
template <class Limit>
void AddAmounts(const KernelFrame& frame, const Triple& amounts, Limit&& limit) {
    const PlainFrame picture(frame);
    Triple c;
    picture.EachPixel([&](int x, int y) {
        EachChannel([&](Channel channel) {
            ResumeNext([&] { c[channel] = picture.S(x, y, channel) + amounts[channel]; });
            limit(c[channel]);
        });
        picture.Store(x, y, c);
    });
}

Triple OneAmount(const KernelArguments& arguments, Channel channel) {
    Triple amounts;
    amounts[channel] = arguments.amounts[0];
    return amounts;
}

Triple SameAmount(const KernelArguments& arguments) {
    return {arguments.amounts[0], arguments.amounts[0], arguments.amounts[0]};
}

void CopyAllBut(const KernelFrame& frame, Channel missing) {
    const PlainFrame picture(frame);
    picture.EachPixel([&](int x, int y) {
        EachChannel([&](Channel channel) {
            picture.Store(x, y, channel, channel == missing ? Integer(0) : picture.S(x, y, channel));
        });
    });
}

} // namespace

void FXNegate(const KernelFrame& frame, const KernelArguments&) {
    const PlainFrame picture(frame);
    picture.EachPixel([&](int x, int y) {
        EachChannel(
            [&](Channel channel) { picture.Store(x, y, channel, Integer(255) - picture.S(x, y, channel)); });
    });
}

void FXIncoherence(const KernelFrame& frame, const KernelArguments&) {
    const PlainFrame picture(frame);
    picture.EachPixel([&](int x, int y) {
        picture.Store(x, y, kRed, picture.S(x, y, kBlue));
        picture.Store(x, y, kGreen, picture.S(x, y, kGreen));
        picture.Store(x, y, kBlue, picture.S(x, y, kRed));
    });
}

void FXNoRed(const KernelFrame& frame, const KernelArguments&) {
    CopyAllBut(frame, kRed);
}
void FXNoGreen(const KernelFrame& frame, const KernelArguments&) {
    CopyAllBut(frame, kGreen);
}
void FXNoBlue(const KernelFrame& frame, const KernelArguments&) {
    CopyAllBut(frame, kBlue);
}

// No lower limit here: a sum below 0 does not fit the byte.
void FXLighten(const KernelFrame& frame, const KernelArguments& arguments) {
    AddAmounts(frame, SameAmount(arguments), LimitAbove);
}

void FXDarken(const KernelFrame& frame, const KernelArguments& arguments) {
    const PlainFrame picture(frame);
    const Integer amount = arguments.amounts[0];
    Triple c;
    picture.EachPixel([&](int x, int y) {
        EachChannel([&](Channel channel) {
            ResumeNext([&] { c[channel] = picture.S(x, y, channel) - amount; });
            LimitBelow(c[channel]);
        });
        picture.Store(x, y, c);
    });
}

void FXShiftRed(const KernelFrame& frame, const KernelArguments& arguments) {
    AddAmounts(frame, OneAmount(arguments, kRed), Clamp);
}
void FXShiftGreen(const KernelFrame& frame, const KernelArguments& arguments) {
    AddAmounts(frame, OneAmount(arguments, kGreen), Clamp);
}
void FXShiftBlue(const KernelFrame& frame, const KernelArguments& arguments) {
    AddAmounts(frame, OneAmount(arguments, kBlue), Clamp);
}

void FXShiftRGB(const KernelFrame& frame, const KernelArguments& arguments) {
    const auto& [red, green, blue] = arguments.amounts;
    AddAmounts(frame, {blue, green, red}, Clamp);
}

void FXVivid(const KernelFrame& frame, const KernelArguments&) {
    const PlainFrame picture(frame);
    Triple v;
    picture.EachPixel([&](int x, int y) {
        EachChannel([&](Channel channel) {
            const Integer c = picture.S(x, y, channel);
            ResumeNext([&] {
                v[channel] = Rnd(0.6 * Magnitude((Integer(255) - (c + c + c)) * Integer(2)).Value());
            });
            Clamp(v[channel]);
        });
        picture.Store(x, y, v);
    });
}

void FXNegateMore(const KernelFrame& frame, const KernelArguments&) {
    const PlainFrame picture(frame);
    Triple v;
    picture.EachPixel([&](int x, int y) {
        EachChannel([&](Channel channel) {
            const Integer c = picture.S(x, y, channel);
            ResumeNext([&] { v[channel] = Rnd(std::fabs((c + c + c).Value() / 1.2)); });
            Clamp(v[channel]);
            picture.Store(x, y, channel, Integer(255) - v[channel]);
        });
    });
}

void FXNeonNegate(const KernelFrame& frame, const KernelArguments& arguments) {
    const PlainFrame picture(frame);
    const Integer level = arguments.amounts[0];
    Triple v;
    picture.EachPixel([&](int x, int y) {
        EachChannel([&](Channel channel) {
            const Integer c = picture.S(x, y, channel);
            ResumeNext([&] { v[channel] = Rnd(std::fabs((level - (c + c + c)).Value() * 1.2)); });
            Clamp(v[channel]);
            picture.Store(x, y, channel, Integer(255) - v[channel]);
        });
    });
}

} // namespace mirelle::plain
