#include "fx/plain/PlainFrame.h"
#include "fx/plain/PlainKernels.h"

namespace mirelle::plain {

// Four rows are read and written at each step, so that each row is written up to four times and the last
// value stands.
void FXFlatten(const KernelFrame& frame, const KernelArguments&) {
    const PlainFrame picture(frame);
    Triple a;
    Triple b;
    Triple c;
    Triple d;
    const auto scaled = [](Integer difference) { return Rnd(difference.Value() * 2.5); };
    for (int y = 4; y < picture.Height(); ++y) {
        for (int x = 0; x < picture.Width(); ++x) {
            picture.Read(a, x, y - 3);
            picture.Read(b, x, y - 2);
            picture.Read(c, x, y - 1);
            picture.Read(d, x, y);
            EachChannel([&](Channel channel) {
                ResumeNext([&] { a[channel] = scaled(a[channel] - c[channel]); });
                ResumeNext([&] { b[channel] = scaled(b[channel] - b[channel]); });
                // With the a of two lines above.
                ResumeNext([&] { c[channel] = scaled(c[channel] - a[channel]); });
                ResumeNext([&] { d[channel] = scaled(d[channel] - d[channel]); });
            });
            for (Triple* values : {&a, &b, &c, &d}) {
                EachChannel([&](Channel channel) { Clamp((*values)[channel]); });
            }
            picture.Store(x, y - 3, a);
            picture.Store(x, y - 2, b);
            picture.Store(x, y - 1, c);
            picture.Store(x, y, d);
        }
    }
}

void FXFlatten2(const KernelFrame& frame, const KernelArguments&) {
    const PlainFrame picture(frame);
    Triple c;
    Triple n;
    Triple v;
    picture.EachPixel([&](int x, int y) {
        picture.Read(c, x, y);
        picture.Read(n, x + 1, y + 1);
        EachChannel([&](Channel channel) {
            ResumeNext([&] { v[channel] = Rnd(std::fabs((c[channel] - n[channel]).Value() / 2.0) + 100.0); });
            LimitBelow(v[channel]);
        });
        picture.Store(x, y, v);
    });
}

// No clamp: a value above 255 does not fit the byte, which stays 0.
void FXEmboss(const KernelFrame& frame, const KernelArguments& arguments) {
    const PlainFrame picture(frame);
    const Integer offset = arguments.amounts[0];
    Triple c;
    Triple n;
    Triple v;
    picture.EachPixel([&](int x, int y) {
        picture.Read(c, x, y);
        picture.Read(n, x + 1, y + 1);
        EachChannel([&](Channel channel) {
            ResumeNext([&] { v[channel] = Magnitude(c[channel] - n[channel] - offset); });
        });
        picture.Store(x, y, v);
    });
}

} // namespace mirelle::plain
