// Pictures computed in the plainest way, for tests to recognise pixels by.
#pragma once

#include "forms/Picture.h"

namespace mirelle::test {

// Every pixel tells where it is: blue is x, green is y (both modulo 256), red a mark of the picture.
inline Bitmap Chart(int width, int height, std::uint8_t mark = 0) {
    Bitmap bitmap(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            bitmap.At(x, y) = {static_cast<std::uint8_t>(x), static_cast<std::uint8_t>(y), mark, 0};
        }
    }
    return bitmap;
}

inline Picture ChartPicture(int width, int height, std::uint8_t mark = 0) {
    return Picture(Chart(width, height, mark));
}

// The area of a bitmap from (left, top) on; it must lie inside.
inline Bitmap Cut(const Bitmap& source, int left, int top, int width, int height) {
    Bitmap cut(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            cut.At(x, y) = source.At(left + x, top + y);
    }
    return cut;
}

} // namespace mirelle::test
