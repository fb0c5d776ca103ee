#include "fx/plain/PlainFrame.h"
#include "fx/plain/PlainKernels.h"

namespace mirelle::plain {
namespace {

// The remembered pixels of the stronger blur, and one step of it. A column or the picture starts anew where y
// is 0, and nowhere else: across, the last pixel of a row counts for the first of the next.
struct BlurMoreStep {
    Triple p1;
    Triple p2;
    Triple c;
    Triple out;

    void operator()(const PlainFrame& picture, int x, int y) {
        picture.Read(c, x, y);
        if (y == 0) {
            p1 = c;
            p2 = c;
        }
        EachChannel([&](Channel channel) {
            ResumeNext([&] {
                out[channel] = Rnd((((c[channel] + p1[channel]).Value() / 2.0) + p2[channel].Value()) / 2.0);
            });
        });
        p2 = p1;
        p1 = c;
        EachChannel([&](Channel channel) { LimitBelow(out[channel]); });
        picture.Store(x, y, out);
    }
};

} // namespace

// Where a channel is 0 the division fails, and what the channel gave at the previous pixel stands.
void FXGlow(const KernelFrame& frame, const KernelArguments& arguments) {
    const PlainFrame picture(frame);
    const double factor = arguments.factor;
    Triple v;
    picture.EachPixel([&](int x, int y) {
        for (const Channel channel : {kGreen, kBlue, kRed}) {
            const Integer c = picture.S(x, y, channel);
            ResumeNext([&] { v[channel] = Rnd(std::fabs(Divide(765.0, c)) * factor); });
        }
        EachChannel([&](Channel channel) { Clamp(v[channel]); });
        picture.Store(x, y, v);
    });
}

// Where the product leaves 16 bits, what the channel gave at the previous pixel stands. The store is limited
// without changing the value that is kept.
void FXSilk(const KernelFrame& frame, const KernelArguments&) {
    const PlainFrame picture(frame);
    Triple c;
    Triple p;
    Triple out;
    picture.EachPixel([&](int x, int y) {
        picture.Read(c, x, y);
        if (y == 0) p = c;
        EachChannel([&](Channel channel) {
            ResumeNext([&] {
                const Integer t = c[channel] * p[channel];
                out[channel] = Rnd(std::fabs(255.0 - t.Value() / 10.0));
            });
        });
        p = c;
        for (const Channel channel : {kRed, kBlue, kGreen}) {
            Integer stored = out[channel];
            Clamp(stored);
            picture.Store(x, y, channel, stored);
        }
    });
}

// The remembered pixel is set in row 0 alone: from there on the last pixel of a row counts for the first of
// the next.
void FXBlur(const KernelFrame& frame, const KernelArguments&) {
    const PlainFrame picture(frame);
    Triple c;
    Triple p;
    Triple out;
    picture.EachPixel([&](int x, int y) {
        picture.Read(c, x, y);
        if (y == 0) p = c;
        EachChannel([&](Channel channel) {
            ResumeNext([&] { out[channel] = Rnd((c[channel] + p[channel]).Value() / 2.0); });
        });
        p = c;
        EachChannel([&](Channel channel) { LimitBelow(out[channel]); });
        picture.Store(x, y, out);
    });
}

void FXBlurMore(const KernelFrame& frame, const KernelArguments&) {
    const PlainFrame picture(frame);
    BlurMoreStep step;
    picture.EachPixel([&](int x, int y) { step(picture, x, y); });
}

void FXBlurMoreVert(const KernelFrame& frame, const KernelArguments&) {
    const PlainFrame picture(frame);
    BlurMoreStep step;
    for (int x = 0; x < picture.Width(); ++x) {
        for (int y = 0; y < picture.Height(); ++y)
            step(picture, x, y);
    }
}

} // namespace mirelle::plain
