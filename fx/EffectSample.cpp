#include "fx/EffectSample.h"

#include "forms/Stretch.h"
#include "fx/Contrast.h"
#include "fx/KernelTable.h"
#include "fx/PointFX.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <string>

namespace mirelle {
namespace {

// The sample is drawn larger by this and shrunk, which smooths its edges.
constexpr int kSmoothing = 4;
// A smudger carries the picture along by some two hundred pixels, which only a larger one survives.
constexpr int kSmudgerEnlargement = 20;

struct Ink {
    double red = 0;
    double green = 0;
    double blue = 0;
};

Ink Mixed(const Ink& from, const Ink& to, double share) {
    const auto mix = [share](double a, double b) { return a + (b - a) * share; };
    return {mix(from.red, to.red), mix(from.green, to.green), mix(from.blue, to.blue)};
}

// Everything below is in parts of the side: x to the right, y down.

constexpr double kHorizon = 0.64;

Ink Sky(double x, double y) {
    constexpr Ink high{34, 84, 190};
    constexpr Ink low{255, 206, 150};
    constexpr Ink sun{255, 246, 190};
    const bool inSun = std::hypot(x - 0.71, y - 0.27) < 0.16;
    return inSun ? sun : Mixed(high, low, y / kHorizon);
}

bool InMountains(double x, double y) {
    const double peak = std::max(0.34 - std::fabs(x - 0.92), 0.26 - std::fabs(x - 0.55));
    return y > kHorizon - 0.7 * peak;
}

bool InMeadow(double x, double y) {
    return y > kHorizon + 0.07 * std::cos(5.0 * x);
}

// The house: a wall with a door, and a roof over it.
bool InRoof(double x, double y) {
    return y < 0.56 && y > 0.34 + 1.1 * std::fabs(x - 0.26);
}
bool InWall(double x, double y) {
    return std::fabs(x - 0.26) < 0.15 && y >= 0.56 && y < 0.78;
}
bool InDoor(double x, double y) {
    return std::fabs(x - 0.30) < 0.05 && y >= 0.63 && y < 0.78;
}

Ink InkAt(double x, double y) {
    if (InDoor(x, y)) return {36, 22, 20};
    if (InWall(x, y)) return {240, 232, 214};
    if (InRoof(x, y)) return {206, 44, 38};
    if (InMeadow(x, y)) return Mixed({122, 190, 60}, {16, 62, 34}, (y - 0.56) / 0.44);
    if (InMountains(x, y)) return {92, 86, 140};
    return Sky(x, y);
}

Bitmap Drawn(int side) {
    Bitmap drawn(side, side);
    const auto byte = [](double value) {
        return static_cast<std::uint8_t>(std::lround(std::clamp(value, 0.0, 255.0)));
    };
    for (int row = 0; row < side; ++row) {
        for (int column = 0; column < side; ++column) {
            const Ink ink = InkAt((column + 0.5) / side, (row + 0.5) / side);
            drawn.At(column, row) = {byte(ink.blue), byte(ink.green), byte(ink.red), 0};
        }
    }
    return drawn;
}

Bitmap ShrunkTo(int side, const Bitmap& picture) {
    Bitmap shrunk(side, side);
    StretchHalftone(picture, {0, 0, picture.Width(), picture.Height()}, shrunk, {0, 0, side, side});
    return shrunk;
}

Bitmap AfterKernel(Kernel kernel, const KernelArguments& arguments, const Bitmap& source) {
    Bitmap result(source.Width(), source.Height());
    (ChosenKernels().*kernel)({source.Pixels(), result.Pixels(), source.Width(), source.Height()}, arguments);
    return result;
}

Bitmap AfterPoint(const PointButton& button, const Bitmap& source) {
    PixelFrame from;
    PixelFrame to;
    from.SizeFor(source.Width(), source.Height());
    to.SizeFor(source.Width(), source.Height());
    GetBitmapBits(source, from);
    (ChosenPoints().*button.effect)(from, to, button.arguments);
    Bitmap result(source.Width(), source.Height());
    SetBitmapBits(result, to);
    return result;
}

Bitmap AfterContrast(const Variant& percent, const Bitmap& source) {
    Bitmap result(source.Width(), source.Height());
    Contrast(percent).Apply(source.Pixels(), result.Pixels());
    return result;
}

Bitmap AfterSmudger(Kernel blur, int side) {
    Bitmap picture = Drawn(side * kSmudgerEnlargement);
    for (int pass = 0; pass < kSmudgerPasses; ++pass)
        picture = AfterKernel(blur, {}, picture);
    return ShrunkTo(side, picture);
}

// What a control does to the sample; null where it does nothing.
using Effect = std::function<Bitmap(int side)>;

Effect EffectOf(std::string_view control) {
    for (const KernelButton& button : kKernelButtons) {
        if (button.control != control) continue;
        return
            [&button](int side) { return AfterKernel(button.kernel, button.arguments, EffectSample(side)); };
    }
    for (const PointButton& button : kPointButtons) {
        if (button.control != control) continue;
        return [&button](int side) { return AfterPoint(button, EffectSample(side)); };
    }
    const auto contrast = [](const Variant& percent) {
        return [percent](int side) { return AfterContrast(percent, EffectSample(side)); };
    };
    if (control == "cmdCont") return contrast(std::string(kProposedContrast));
    if (control == "cmdCont33") return contrast(Integer(kFastContrast));
    const auto smudger = [](Kernel blur) { return [blur](int side) { return AfterSmudger(blur, side); }; };
    if (control == "cmdPointalism") return smudger(&KernelSet::FXBlurMore);
    if (control == "cmdPointalismVert") return smudger(&KernelSet::FXBlurMoreVert);
    return nullptr;
}

} // namespace

Bitmap EffectSample(int side) {
    return ShrunkTo(side, Drawn(side * kSmoothing));
}

bool HasEffectSample(std::string_view control) {
    return EffectOf(control) != nullptr;
}

Bitmap SampleAfter(std::string_view control, int side) {
    const Effect effect = EffectOf(control);
    return effect ? effect(side) : Bitmap();
}

} // namespace mirelle
