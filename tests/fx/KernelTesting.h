// What kernel tests share: tests that run over every set of kernels, and small pictures to run them on.
#pragma once

#include "forms/Picture.h"
#include "fx/KernelTable.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <initializer_list>
#include <ostream>
#include <string>
#include <string_view>

namespace mirelle::test {

struct NamedKernelSet {
    std::string_view name;
    const KernelSet* set;

    friend void PrintTo(const NamedKernelSet& named, std::ostream* out) { *out << named.name; }
};

// The picture that a kernel gives. It starts as anything but black.
inline Bitmap Painted(const KernelSet& set, Kernel kernel, const Bitmap& source,
                      const KernelArguments& arguments = {}) {
    Bitmap destination(source.Width(), source.Height(), {0xA5, 0x5A, 0xC3, 0x3C});
    (set.*kernel)({source.Pixels(), destination.Pixels(), source.Width(), source.Height()}, arguments);
    return destination;
}

class KernelTest : public testing::TestWithParam<NamedKernelSet> {
protected:
    static Bitmap Run(Kernel kernel, const Bitmap& source, const KernelArguments& arguments = {}) {
        return Painted(*GetParam().set, kernel, source, arguments);
    }
    static Pixel RunOne(Kernel kernel, Pixel source, const KernelArguments& arguments = {}) {
        return Run(kernel, Bitmap(1, 1, source), arguments).At(0, 0);
    }
};

#define MIRELLE_KERNEL_TESTS(suite)                                                                          \
    INSTANTIATE_TEST_SUITE_P(                                                                                \
        Kernels, suite,                                                                                      \
        testing::Values(NamedKernelSet{"Plain", &kPlainKernels}, NamedKernelSet{"Fast", &kFastKernels}),     \
        [](const auto& test) { return std::string(test.param.name); })

// A pixel of three equal channels, with a fourth byte that must not come through.
constexpr Pixel Grey(std::uint8_t value) {
    return {value, value, value, 99};
}
// The same as a kernel writes it.
constexpr Pixel PaintedGrey(std::uint8_t value) {
    return {value, value, value, 0};
}
constexpr Pixel Rgb(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
    return {blue, green, red, 0};
}

// A picture of grey pixels from rows of values, all rows of one length.
inline Bitmap GreyRows(std::initializer_list<std::initializer_list<int>> rows) {
    Bitmap bitmap(static_cast<int>(rows.begin()->size()), static_cast<int>(rows.size()));
    int y = 0;
    for (const auto& row : rows) {
        int x = 0;
        for (const int value : row)
            bitmap.At(x++, y) = Grey(static_cast<std::uint8_t>(value));
        ++y;
    }
    return bitmap;
}

// The same picture with every fourth byte 0.
inline Bitmap WithoutFourth(Bitmap bitmap) {
    for (Pixel& pixel : bitmap.Pixels())
        pixel.fourth = 0;
    return bitmap;
}

} // namespace mirelle::test

namespace mirelle {

inline void PrintTo(const KernelButton& button, std::ostream* out) {
    *out << button.control;
}

inline void PrintTo(const Pixel& pixel, std::ostream* out) {
    *out << "red " << int{pixel.red} << ", green " << int{pixel.green} << ", blue " << int{pixel.blue}
         << ", fourth " << int{pixel.fourth};
}

inline void PrintTo(const Bitmap& bitmap, std::ostream* out) {
    *out << bitmap.Width() << " x " << bitmap.Height();
    for (int y = 0; y < bitmap.Height() && y < 12; ++y) {
        *out << "\n ";
        for (int x = 0; x < bitmap.Width() && x < 12; ++x) {
            const Pixel& pixel = bitmap.At(x, y);
            *out << ' ' << int{pixel.red} << '/' << int{pixel.green} << '/' << int{pixel.blue} << '/'
                 << int{pixel.fourth};
        }
    }
}

} // namespace mirelle
