#include "tools/starter/Tile.h"

namespace mirelle::starter {
namespace {

std::uint8_t ByteOf(double level) {
    return static_cast<std::uint8_t>(std::floor(std::clamp(level, 0.0, 1.0) * 255 + 0.5));
}

// The direction to the lamp: left, up, towards the eye.
constexpr double kLampX = -0.45;
constexpr double kLampY = -0.55;
constexpr double kLampZ = 0.70;

} // namespace

Tile Lit(const Tile& tile, const Field& height, double strength, double gloss) {
    Tile lit;
    for (int y = 0; y < kSide; ++y) {
        for (int x = 0; x < kSide; ++x) {
            const double slopeX = (height.At(x + 1, y) - height.At(x - 1, y)) / 2;
            const double slopeY = (height.At(x, y + 1) - height.At(x, y - 1)) / 2;
            const double length = std::sqrt(slopeX * slopeX + slopeY * slopeY + 1);
            const double facing = (-slopeX * kLampX - slopeY * kLampY + kLampZ) / length / kLampZ;
            const double shade = 1 + (facing - 1) * strength;
            const double glint = std::max(facing - 1, 0.0);
            lit.At(x, y) = tile.At(x, y) * std::max(shade, 0.15) + Grey(gloss * glint * glint);
        }
    }
    return lit;
}

Bitmap BitmapOf(const Tile& tile, int margin) {
    Bitmap bitmap(kSide + 2 * margin, kSide + 2 * margin);
    for (int y = 0; y < bitmap.Height(); ++y) {
        for (int x = 0; x < bitmap.Width(); ++x) {
            const Tone tone = tile.At(x - margin, y - margin);
            bitmap.At(x, y) = {ByteOf(tone.blue), ByteOf(tone.green), ByteOf(tone.red), 0};
        }
    }
    return bitmap;
}

Tile TileOf(const Bitmap& bitmap, int margin) {
    Tile tile;
    for (int y = 0; y < kSide; ++y) {
        for (int x = 0; x < kSide; ++x) {
            const Pixel pixel = bitmap.At(x + margin, y + margin);
            tile.At(x, y) = {pixel.red / 255.0, pixel.green / 255.0, pixel.blue / 255.0};
        }
    }
    return tile;
}

} // namespace mirelle::starter
