#include "tools/starter/Effects.h"

#include "fx/Contrast.h"
#include "gradient/FormGradient.h"
#include "gradient/GradientBands.h"

namespace mirelle::starter {
namespace {

constexpr std::int16_t kEmbossGrey = 100;
constexpr int kHalf = kSide / 2;

// The upper half, and below it the same upside down.
Tile MirroredDown(const Bitmap& half) {
    Bitmap whole(kSide, kSide);
    for (int y = 0; y < kSide; ++y)
        std::ranges::copy(half.Row(y < kHalf ? y : kSide - 1 - y), whole.Row(y).begin());
    return TileOf(whole);
}

Tile Turned(const Tile& tile) {
    Tile turned;
    for (int y = 0; y < kSide; ++y) {
        for (int x = 0; x < kSide; ++x)
            turned.At(x, y) = tile.At(y, x);
    }
    return turned;
}

Bitmap UpperHalf(const Tile& tile) {
    const Bitmap whole = BitmapOf(tile);
    Bitmap half(kSide, kHalf);
    for (int y = 0; y < kHalf; ++y)
        std::ranges::copy(whole.Row(y), half.Row(y).begin());
    return half;
}

std::int16_t ByteOf(double level) {
    return static_cast<std::int16_t>(std::floor(level * 255 + 0.5));
}

} // namespace

Tile WithKernel(const Tile& tile, Kernel kernel, const KernelArguments& arguments, int passes, int margin) {
    Bitmap source = BitmapOf(tile, margin);
    for (int pass = 0; pass < passes; ++pass) {
        Bitmap destination(source.Width(), source.Height());
        (kPlainKernels.*kernel)({source.Pixels(), destination.Pixels(), source.Width(), source.Height()},
                                arguments);
        source = std::move(destination);
    }
    return TileOf(source, margin);
}

Tile WithRelief(const Tile& tile, double strength) {
    const Tile relief = WithKernel(tile, &KernelSet::FXEmboss, {{kEmbossGrey}});
    Tile raised;
    for (int y = 0; y < kSide; ++y) {
        for (int x = 0; x < kSide; ++x)
            raised.At(x, y) = tile.At(x, y) + (relief.At(x, y) - Grey(kEmbossGrey / 255.0)) * -strength;
    }
    return raised;
}

Tile WithContrast(const Tile& tile, int percent) {
    Bitmap bitmap = BitmapOf(tile);
    Contrast(Variant(Integer(static_cast<std::int16_t>(percent)))).Apply(bitmap.Pixels(), bitmap.Pixels());
    return TileOf(bitmap);
}

Tile FadedThereAndBack(const Tile& first, const Tile& second) {
    Bitmap half = UpperHalf(first);
    DrawBands(half, UpperHalf(second), BandsOf({kSide, kHalf, kSide, kHalf}, 0, kHalf, kVertical));
    return MirroredDown(half);
}

Tile GradientThereAndBack(const GradientEnds& ends, bool across) {
    const GradientColors colors{ByteOf(ends.start.red),  ByteOf(ends.start.green),  ByteOf(ends.start.blue),
                                ByteOf(ends.finish.red), ByteOf(ends.finish.green), ByteOf(ends.finish.blue)};
    // The ramp has more steps than a tile has rows; every fourth of those ahead of its overshoot is taken.
    constexpr int kSteps = 1024;
    Bitmap ramp(1, kSteps);
    PaintFormGradient(ramp, colors, false);
    Bitmap half(kSide, kHalf);
    for (int y = 0; y < kHalf; ++y)
        std::ranges::fill(half.Row(y), ramp.At(0, y * kSteps / kHalf));
    const Tile down = MirroredDown(half);
    return across ? Turned(down) : down;
}

} // namespace mirelle::starter
