#include "bench/Photograph.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <random>
#include <stdexcept>
#include <utility>
#include <vector>

namespace mirelle::bench {
namespace {

constexpr int kShapes = 160;
constexpr double kTurn = 6.283185307179586;

struct Ink {
    float blue = 0;
    float green = 0;
    float red = 0;
};

// A light that changes from left to right and from top to bottom in waves of many lengths, the shorter the
// weaker; each wave is the product of one of a column and one of a row.
class Ground {
public:
    Ground(int width, int height) {
        double strength = 40;
        for (Wave& wave : waves_) {
            const double length = 1700 / (strength * 0.15);
            wave.columns = Waves(width, length, strength);
            wave.rows = Waves(height, length * 1.3, 1);
            strength *= 0.6;
        }
    }
    Ink At(int x, int y) const {
        float light = 128;
        for (const Wave& wave : waves_)
            light += wave.columns[static_cast<std::size_t>(x)] * wave.rows[static_cast<std::size_t>(y)];
        const float warm = waves_[0].rows[static_cast<std::size_t>(y)] * 24;
        return {light - warm, light, light + warm};
    }

private:
    struct Wave {
        std::vector<float> columns;
        std::vector<float> rows;
    };
    static std::vector<float> Waves(int count, double length, double strength) {
        std::vector<float> values;
        for (int i = 0; i < count; ++i)
            values.push_back(static_cast<float>(strength * std::sin(i / length * kTurn + length)));
        return values;
    }
    std::array<Wave, 5> waves_;
};

// A disc or a tilted block, half covering what lies under it.
struct Shape {
    double x, y, radius, slope;
    Ink ink;
    bool disc;

    bool Covers(int column, int row) const {
        const double dx = column - x;
        const double dy = row - y;
        if (disc) return dx * dx + dy * dy < radius * radius;
        return std::fabs(dx + slope * dy) < radius * 0.6 && std::fabs(dy - slope * dx) < radius * 0.4;
    }
};

Shape RandomShape(std::mt19937& random, int width, int height) {
    const auto part = [&random] { return static_cast<double>(random() >> 8) / (1 << 24); };
    const auto tone = [&part] { return static_cast<float>(-90 + 180 * part()); };
    const double reach = std::min(width, height);
    const double x = part() * width;
    const double y = part() * height;
    const double radius = reach * (0.01 + 0.2 * part() * part());
    const double slope = part() - 0.5;
    return {x, y, radius, slope, {tone(), tone(), tone()}, random() % 2 == 0};
}

std::uint8_t Byte(float value) {
    return static_cast<std::uint8_t>(std::clamp(value, 0.0F, 255.0F));
}

void Tint(Bitmap& bitmap, const Shape& shape) {
    const auto limited = [](double place, int end) { return std::clamp(static_cast<int>(place), 0, end); };
    for (int y = limited(shape.y - shape.radius, bitmap.Height());
         y < limited(shape.y + shape.radius, bitmap.Height()); ++y) {
        for (int x = limited(shape.x - shape.radius, bitmap.Width());
             x < limited(shape.x + shape.radius, bitmap.Width()); ++x) {
            if (!shape.Covers(x, y)) continue;
            Pixel& pixel = bitmap.At(x, y);
            pixel = {Byte(static_cast<float>(pixel.blue) + shape.ink.blue),
                     Byte(static_cast<float>(pixel.green) + shape.ink.green),
                     Byte(static_cast<float>(pixel.red) + shape.ink.red), pixel.fourth};
        }
    }
}

// The sum of four even ones comes near enough to a normal distribution, here of about 2.3 steps.
float Noise(std::uint32_t bits) {
    const std::uint32_t sum = (bits & 7) + (bits >> 3 & 7) + (bits >> 6 & 7) + (bits >> 9 & 7);
    return static_cast<float>(sum) * 0.5F - 7;
}

void AddNoise(Bitmap& bitmap, std::mt19937& random) {
    for (Pixel& pixel : bitmap.Pixels()) {
        const auto light = static_cast<std::uint32_t>(random());
        const auto colour = static_cast<std::uint32_t>(random());
        pixel.blue = Byte(static_cast<float>(pixel.blue) + Noise(light) + Noise(colour) * 0.4F);
        pixel.green = Byte(static_cast<float>(pixel.green) + Noise(light));
        pixel.red = Byte(static_cast<float>(pixel.red) + Noise(light) + Noise(colour >> 12) * 0.4F);
    }
}

Bitmap Computed(int width, int height, unsigned seed) {
    std::mt19937 random(seed);
    const Ground ground(width, height);
    Bitmap bitmap = Bitmap::Unwritten(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const Ink ink = ground.At(x, y);
            bitmap.At(x, y) = {Byte(ink.blue), Byte(ink.green), Byte(ink.red), 255};
        }
    }
    for (int i = 0; i < kShapes; ++i)
        Tint(bitmap, RandomShape(random, width, height));
    AddNoise(bitmap, random);
    return bitmap;
}

Bitmap Tiled(const Bitmap& tile, int width, int height) {
    Bitmap bitmap = Bitmap::Unwritten(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            bitmap.At(x, y) = tile.At(x % tile.Width(), y % tile.Height());
            bitmap.At(x, y).fourth = 255;
        }
    }
    return bitmap;
}

struct Origin {
    unsigned seed = 1;
    Bitmap picture; // empty: the seed counts
};

Origin& TheOrigin() {
    static Origin origin;
    return origin;
}

} // namespace

void MakePhotographsFrom(unsigned seed) {
    TheOrigin().seed = seed;
}

void MakePhotographsFrom(Bitmap picture) {
    if (picture.IsEmpty()) throw std::runtime_error("a picture without pixels");
    TheOrigin().picture = std::move(picture);
}

Bitmap MakePhotograph(int width, int height) {
    const Origin& origin = TheOrigin();
    return origin.picture.IsEmpty() ? Computed(width, height, origin.seed)
                                    : Tiled(origin.picture, width, height);
}

const Picture& PhotographPicture() {
    static const Picture picture(MakePhotograph(kWidth, kHeight));
    return picture;
}

const Bitmap& Photograph() {
    return PhotographPicture().Pixels();
}

} // namespace mirelle::bench
