#include "forms/Numbers.h"
#include "forms/RunTimeError.h"
#include "tests/codecs/reference/PlainJpeg.h"

#include <algorithm>
#include <cmath>

namespace mirelle::reference {
namespace {

int RoundedUp(int value) {
    return (value + 7) / 8 * 8;
}

struct Rect {
    std::int64_t x, y, width, height;
};

// A 24-bit buffer of blue, green, red bytes, rows from the top.
struct Buffer24 {
    int width, height, stride;
    std::vector<std::uint8_t> bytes;

    Buffer24(int w, int h)
        : width(w), height(h), stride((w * 24 + 31) / 32 * 4),
          bytes(static_cast<std::size_t>(stride) * static_cast<std::size_t>(h)) {}
    std::uint8_t& At(std::int64_t x, std::int64_t y, int channel) {
        return bytes[static_cast<std::size_t>(y * stride + x * 3 + channel)];
    }
};

// One byte of the mean over the source area under the destination pixel (column, row): source pixels are
// to.width by to.height units large, destination pixels from.width by from.height.
template <class ByteAt>
std::uint8_t MeanUnder(ByteAt byteAt, const Rect& from, const Rect& to, std::int64_t column,
                       std::int64_t row) {
    std::int64_t sum = 0;
    for (std::int64_t v = row * from.height / to.height; v * to.height < (row + 1) * from.height; ++v) {
        const std::int64_t high = std::min((v + 1) * to.height, (row + 1) * from.height) -
                                  std::max(v * to.height, row * from.height);
        for (std::int64_t u = column * from.width / to.width; u * to.width < (column + 1) * from.width; ++u) {
            const std::int64_t wide = std::min((u + 1) * to.width, (column + 1) * from.width) -
                                      std::max(u * to.width, column * from.width);
            sum += high * wide * byteAt(from.x + u, from.y + v);
        }
    }
    const std::int64_t area = from.width * from.height;
    return static_cast<std::uint8_t>((2 * sum + area) / (2 * area));
}

template <class ByteAt>
void StretchBlt(ByteAt byteAt, const Rect& from, Buffer24& buffer, const Rect& to) {
    for (std::int64_t row = 0; row < to.height && to.y + row < buffer.height; ++row) {
        for (std::int64_t column = 0; column < to.width && to.x + column < buffer.width; ++column) {
            for (int channel = 0; channel < 3; ++channel) {
                buffer.At(to.x + column, to.y + row, channel) =
                    MeanUnder([&](std::int64_t x, std::int64_t y) { return byteAt(x, y, channel); }, from, to,
                              column, row);
            }
        }
    }
}

} // namespace

std::int32_t ColourValue(int component, int blue, int green, int red) {
    switch (component) {
    case 0:
        return 19595 * red + 38470 * green + 7471 * blue - 8388608;
    case 1:
        return -11059 * red - 21709 * green + 32768 * blue;
    default:
        return 32768 * red - 27439 * green - 5329 * blue;
    }
}

void ForwardDCT(std::array<std::int32_t, 64>& block) {
    const auto transform = [&block](std::size_t first, std::size_t step) {
        const auto x = [&](std::size_t i) -> std::int32_t& { return block[first + i * step]; };
        const std::int32_t a0 = x(0) + x(7), a7 = x(0) - x(7);
        const std::int32_t a1 = x(1) + x(6), a6 = x(1) - x(6);
        const std::int32_t a2 = x(2) + x(5), a5 = x(2) - x(5);
        const std::int32_t a3 = x(3) + x(4), a4 = x(3) - x(4);
        const std::int32_t s0 = a0 + a3, s1 = a1 + a2, d0 = a0 - a3, d1 = a1 - a2;
        const std::int32_t y0 = s0 + s1;
        const std::int32_t y4 = y0 / 2 - s1;
        const std::int32_t y6 = d0 / 8 + d0 / 4 + d0 / 32 - d1;
        const std::int32_t y2 = d0 - (y6 / 16 + y6 / 4 + y6 / 32);
        const std::int32_t b = a7 - (a4 / 4 + a4 / 32 + a4 / 64);
        const std::int32_t c = a4 + (b / 16 + b / 2);
        const std::int32_t e = b - (c / 4 + c / 32 + c / 64);
        const std::int32_t f = a6 - (a5 / 32 + a5 / 16);
        const std::int32_t g = a5 + (f / 8 + f / 16);
        const std::int32_t h = f - (g / 32 + g / 16);
        const std::int32_t y3 = e - g;
        const std::int32_t y5 = c - h;
        const std::int32_t u = c + h;
        const std::int32_t v = e + g;
        const std::int32_t y1 = v + u;
        const std::int32_t y7 = y1 / 2 - u;
        x(0) = y0;
        x(1) = y1;
        x(2) = y2;
        x(3) = y3;
        x(4) = y4;
        x(5) = y5;
        x(6) = y6;
        x(7) = y7;
    };
    for (std::size_t column = 0; column < 8; ++column)
        transform(column, 8);
    for (std::size_t row = 0; row < 8; ++row)
        transform(8 * row, 1);
}

PlainJpeg::PlainJpeg() {
    SetSamplingFrequencies(2, 2, 1, 1, 1, 1);
    Quality(75);
}

void PlainJpeg::Quality(int value) {
    QualityValue = value < 1 || value > 100 ? 75 : value;
    int scale = 0;
    if (QualityValue < 50) {
        scale = 5000 / QualityValue;
    } else if (QualityValue < 100) {
        scale = 200 - 2 * QualityValue;
    }
    const auto zigZag = WalkedZigZag();
    for (std::size_t n = 0; n < 64; ++n) {
        const auto z = static_cast<std::size_t>(zigZag[n]);
        QuantTables[0].Qk[z] = std::clamp((kNaturalLuminance[n] * scale + 50) / 100, 1, 255);
        QuantTables[1].Qk[z] = std::clamp((kNaturalChrominance[n] * scale + 50) / 100, 1, 255);
    }
    ScaleQuantTable(QuantTables[0], P);
    ScaleQuantTable(QuantTables[1], P);
}

void PlainJpeg::SetSamplingFrequencies(int h1, int v1, int h2, int v2, int h3, int v3) {
    const auto require = [](int factor) {
        if (factor < 1 || factor > 4) throw RunTimeError(ErrorNumber::CodecFailure, "Invalid Sampling Value");
    };
    require(h1);
    require(v1);
    if (h2 == 0 && v2 == 0 && h3 == 0 && v3 == 0) {
        Components = {{1, 1, 1, 0, {}}};
    } else {
        for (const int factor : {h2, v2, h3, v3})
            require(factor);
        Components = {{1, h1, v1, 0, {}}, {2, h2, v2, 1, {}}, {3, h3, v3, 1, {}}};
    }
    Nf = static_cast<int>(Components.size());
    Hmax = Vmax = 0;
    for (const ComponentRecord& component : Components) {
        Hmax = std::max(Hmax, component.Hi);
        Vmax = std::max(Vmax, component.Vi);
    }
}

PlainJpeg::Plane PlainJpeg::PlaneOf(const ComponentRecord& component, int w8, int h8) const {
    const int xi = static_cast<int>(std::ceil(double(component.Hi) * w8 / Hmax));
    const int yi = static_cast<int>(std::ceil(double(component.Vi) * h8 / Vmax));
    return {xi, yi, RoundedUp(xi), RoundedUp(yi)};
}

int PlainJpeg::SampleHDC(const Bitmap& surface, int width, int height, int x, int y) {
    P = 8;
    X = width;
    Y = height;
    const int w8 = RoundedUp(width);
    const int h8 = RoundedUp(height);
    Buffer24 buffer(w8, h8);
    const auto surfaceByte = [&](std::int64_t column, std::int64_t row, int channel) {
        const Pixel& pixel =
            surface.At(static_cast<int>(std::clamp<std::int64_t>(column, 0, surface.Width() - 1)),
                       static_cast<int>(std::clamp<std::int64_t>(row, 0, surface.Height() - 1)));
        return channel == 0 ? pixel.blue : channel == 1 ? pixel.green : pixel.red;
    };
    const auto bufferByte = [&](std::int64_t column, std::int64_t row, int channel) {
        return buffer.At(column, row, channel);
    };
    int previousXi = 0;
    int previousYi = 0;
    for (int i = 0; i < Nf; ++i) {
        const auto [xi, yi, xa, ya] = PlaneOf(Components[static_cast<std::size_t>(i)], w8, h8);
        if (xa != previousXi || ya != previousYi) {
            if (xi == X && yi == Y) {
                StretchBlt(surfaceByte, {x, y, xi, yi}, buffer, {0, 0, xi, yi});
            } else {
                StretchBlt(surfaceByte, {x, y, w8, h8}, buffer, {0, 0, xi, yi});
            }
            if (xi < xa) StretchBlt(bufferByte, {xi, 0, 1, yi}, buffer, {xi + 1, 0, xa - xi, yi});
            if (yi < ya) StretchBlt(bufferByte, {0, yi, xa, 1}, buffer, {0, yi + 1, xa, ya - yi});
        }
        previousXi = xi;
        previousYi = yi;
        TransformComponent(buffer.bytes, i, xa, ya, buffer.stride);
    }
    return 0;
}

int PlainJpeg::SampleDATA(std::span<const std::uint8_t> data, int columns, int rows, int width, int height,
                          int x, int y) {
    P = 8;
    X = width;
    Y = height;
    const int w8 = RoundedUp(width);
    const int h8 = RoundedUp(height);
    std::vector<std::uint8_t> buffer;
    int previousXi = 0;
    int previousYi = 0;
    for (int i = 0; i < Nf; ++i) {
        const auto [xi, yi, xa, ya] = PlaneOf(Components[static_cast<std::size_t>(i)], w8, h8);
        const int stepX = static_cast<int>(std::floor(double(w8) / xi + 0.5));
        const int stepY = static_cast<int>(std::floor(double(h8) / yi + 0.5));
        if (xi != previousXi || yi != previousYi) {
            buffer.assign(static_cast<std::size_t>(xa) * 3 * static_cast<std::size_t>(ya), 0);
            std::size_t rowStart = 0;
            for (int r = y + height - 1; r >= y; r -= stepY) {
                std::size_t at = rowStart;
                for (int c = x; c <= x + width - 1; c += stepX) {
                    for (int channel = 0; channel < 3; ++channel) {
                        if (c < 0 || c >= columns || r < 0 || r >= rows || at >= buffer.size()) {
                            throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
                        }
                        buffer[at++] = data[static_cast<std::size_t>(channel + 3 * (c + columns * r))];
                    }
                }
                rowStart += static_cast<std::size_t>(xa) * 3;
            }
        }
        previousXi = xi;
        previousYi = yi;
        TransformComponent(buffer, i, xa, ya, xa * 3);
    }
    return 0;
}

void PlainJpeg::TransformComponent(const std::vector<std::uint8_t>& buffer, int index, int xa, int ya,
                                   int stride) {
    static const std::array<int, 64> zigZag = WalkedZigZag();
    ComponentRecord& component = Components[static_cast<std::size_t>(index)];
    const auto& factors = QuantTables[static_cast<std::size_t>(component.Tqi)].Fdtbl;
    component.Coefficients.assign(static_cast<std::size_t>(xa) * static_cast<std::size_t>(ya), 0);
    std::size_t base = 0;
    for (int top = 0; top < ya; top += 8) {
        for (int left = 0; left < xa; left += 8) {
            std::array<std::int32_t, 64> block{};
            for (int n = 0; n < 64; ++n) {
                const auto at = static_cast<std::size_t>((top + n / 8) * stride + (left + n % 8) * 3);
                block[static_cast<std::size_t>(n)] =
                    ColourValue(index, buffer[at], buffer[at + 1], buffer[at + 2]);
            }
            ForwardDCT(block);
            for (std::size_t n = 0; n < 64; ++n) {
                const auto z = static_cast<std::size_t>(zigZag[n]);
                const std::int32_t t = (block[n] + 16384) / 32768;
                component.Coefficients[base + z] =
                    static_cast<std::int16_t>((t * factors[z] + 131072) / 262144);
            }
            base += 64;
        }
    }
}

} // namespace mirelle::reference
