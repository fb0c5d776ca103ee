#include "bench/peers/Peers.h"
#include "bench/Photograph.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <map>
#include <memory>
#include <span>

#include <vips/vips8>

#include <vips/vector.h> // takes the types of the one above

namespace mirelle::bench {
namespace {

using vips::VImage;

using Effect = std::function<VImage(const VImage&)>;

constexpr int kBands = 3;
constexpr int kStrip = 16; // rows that are worked out at a time

// Effects that look at nothing but the byte go through a table of 256 values: quicker here than the library's
// own arithmetic, `linear`, which goes through floats.

std::uint8_t Byte(double value) {
    return static_cast<std::uint8_t>(std::clamp(value, 0.0, 255.0));
}

Effect Through(const std::vector<std::uint8_t>& table) {
    return [table](const VImage& image) {
        return image.maplut(VImage::new_from_memory(const_cast<std::uint8_t*>(table.data()), table.size(),
                                                    256, 1, static_cast<int>(table.size() / 256),
                                                    VIPS_FORMAT_UCHAR));
    };
}

Effect Each(const std::function<double(double)>& value) {
    std::vector<std::uint8_t> table;
    for (int byte = 0; byte < 256; ++byte)
        table.push_back(Byte(value(byte)));
    return Through(table);
}

// Bands stand in the order blue, green, red.
Effect Add(int blue, int green, int red) {
    std::vector<std::uint8_t> table;
    for (int byte = 0; byte < 256; ++byte)
        table.insert(table.end(), {Byte(byte + blue), Byte(byte + green), Byte(byte + red)});
    return Through(table);
}

Effect Only(double blue, double green, double red) {
    return [=](const VImage& image) {
        return image.boolean_const(VIPS_OPERATION_BOOLEAN_AND, {blue, green, red});
    };
}

struct Mask {
    int width;
    int height;
    std::vector<double> factors;
    double scale;
    double offset = 0;
};

Effect Convolve(Mask mask) {
    return [mask](const VImage& image) {
        VImage matrix = VImage::new_matrix(mask.width, mask.height, const_cast<double*>(mask.factors.data()),
                                           static_cast<int>(mask.factors.size()));
        matrix.set("scale", mask.scale);
        matrix.set("offset", mask.offset);
        return image.conv(matrix, VImage::option()->set("precision", VIPS_PRECISION_INTEGER));
    };
}

Effect Swap(int blue, int green, int red) {
    return [=](const VImage& image) { return VImage::bandjoin({image[blue], image[green], image[red]}); };
}

VImage Grey(const VImage& image) {
    return image.recomb(VImage::new_matrixv(kBands, 1, 0.071, 0.707, 0.222)).cast(VIPS_FORMAT_UCHAR);
}

VImage Invert(const VImage& image) {
    return image.invert();
}

VImage ShrinkAndZoom(const VImage& image) {
    return image.shrink(2, 2).zoom(2, 2);
}

Effect Flip(VipsDirection direction) {
    return [=](const VImage& image) { return image.flip(direction); };
}

Effect Contrast(double percent) {
    return Each([=](double c) { return c + (c - 127) * percent / 100; });
}

const std::map<std::string, Effect>& Effects() {
    static const std::map<std::string, Effect> effects{
        {"Blur", Convolve({2, 1, {1, 1}, 2})},
        {"Blur More", Convolve({3, 1, {2, 1, 1}, 4})},
        {"Blur Vertical", Convolve({1, 3, {2, 1, 1}, 4})},
        {"No Red", Only(255, 255, 0)},
        {"No Green", Only(255, 0, 255)},
        {"No Blue", Only(0, 255, 255)},
        {"Increase Red", Add(0, 0, 50)},
        {"Increase Green", Add(0, 50, 0)},
        {"Increase Blue", Add(50, 0, 0)},
        {"Increase RGB", Add(50, 100, 50)},
        {"Decrease Red", Add(0, 0, -50)},
        {"Decrease Green", Add(0, -50, 0)},
        {"Decrease Blue", Add(-50, 0, 0)},
        {"Decrease RGB", Add(-50, -100, -50)},
        {"Glow", Each([](double c) { return c > 0 ? 765 / c : 0; })},
        {"Bright", Each([](double c) { return c > 0 ? 7650 / c : 0; })},
        {"Vivid", Each([](double c) { return 0.6 * std::abs((255 - 3 * c) * 2); })},
        {"Flatten", Convolve({1, 3, {5, 0, -5}, 2})},
        {"Flatten2", Convolve({2, 2, {1, 0, 0, -1}, 2, 100})},
        {"Neon Negate", Each([](double c) { return 255 - std::min(std::abs((255 - 3 * c) * 1.2), 255.0); })},
        {"Negate", Invert},
        {"Negate More", Each([](double c) { return 255 - std::min(3 * c / 1.2, 255.0); })},
        {"Incoherence", Swap(2, 1, 0)},
        {"Pixelated", ShrinkAndZoom},
        {"Darken", Add(-50, -50, -50)},
        {"Lighten", Add(50, 50, 50)},
        {"Emboss", Convolve({2, 2, {1, 0, 0, -1}, 1, 100})},
        {"Invert", Invert},
        {"Flip Vertical", Flip(VIPS_DIRECTION_VERTICAL)},
        {"Flip Horizontal", Flip(VIPS_DIRECTION_HORIZONTAL)},
        {"Grey Scale", Grey},
        {"RGB>BGR", Swap(2, 1, 0)},
        {"RGB>BRG", Swap(1, 2, 0)},
        {"RGB>GBR", Swap(2, 0, 1)},
        {"RGB>GRB", Swap(0, 2, 1)},
        {"RGB>RBG", Swap(1, 0, 2)},
        {"Sliders", Add(10, -20, 30)},
        {"Contrast 30", Contrast(30)},
        {"Contrast 50", Contrast(50)},
        {"Contrast -75", Contrast(-75)},
        {"Contrast 12.5", Contrast(12.5)},
        {"Contrast 99.6", Contrast(99.6)},
        {"Contrast 640", Contrast(640)},
    };
    return effects;
}

void Start() {
    static const bool started = [] {
        if (VIPS_INIT("mirelle_bench") != 0) std::abort();
        vips_concurrency_set(1);
        vips_cache_set_max(0);
        return true;
    }();
    static_cast<void>(started);
}

// The photograph as libvips holds one: three bytes a pixel.
const VImage& Source() {
    static std::vector<std::uint8_t> bytes;
    static const VImage image = [] {
        bytes.reserve(std::size_t{kBands} * kWidth * kHeight);
        for (const Pixel& pixel : Photograph().Pixels())
            bytes.insert(bytes.end(), {pixel.blue, pixel.green, pixel.red});
        return VImage::new_from_memory(bytes.data(), bytes.size(), kWidth, kHeight, kBands, VIPS_FORMAT_UCHAR)
            .copy(VImage::option()->set("interpretation", VIPS_INTERPRETATION_sRGB));
    }();
    return image;
}

// Strip by strip in this thread, into memory that is there already: quicker on one core than the library's
// own writer, which hands tiles from thread to thread and asks for new memory.
void WorkOut(const VImage& pipeline, std::span<std::uint8_t> target) {
    const std::unique_ptr<VipsRegion, decltype(&g_object_unref)> region(vips_region_new(pipeline.get_image()),
                                                                        g_object_unref);
    const auto rowBytes = static_cast<std::size_t>(VIPS_IMAGE_SIZEOF_LINE(pipeline.get_image()));
    for (int top = 0; top < kHeight; top += kStrip) {
        const VipsRect strip{0, top, kWidth, std::min(kStrip, kHeight - top)};
        if (vips_region_prepare(region.get(), &strip) != 0) throw vips::VError();
        for (int row = top; row < top + strip.height; ++row) {
            std::memcpy(&target[static_cast<std::size_t>(row) * rowBytes],
                        VIPS_REGION_ADDR(region.get(), 0, row), rowBytes);
        }
    }
}

} // namespace

Run VipsRun(const std::string& effect) {
    const Effect& run = Effects().at(effect);
    Start();
    const auto target = std::make_shared<std::vector<std::uint8_t>>(kPictureBytes);
    return Timed([&run, target] { WorkOut(run(Source()), *target); });
}

std::string VersionOfVips() {
    Start();
    return std::string("libvips ") + vips_version_string() + ", one thread, vector code " +
           (vips_vector_isenabled() != 0 ? "on" : "off");
}

} // namespace mirelle::bench
