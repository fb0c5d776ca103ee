// A rectangle of pixels.
#pragma once

namespace mirelle {

// Half-open: Right() and Bottom() are the first column and row beyond it. x and y may be negative; an area
// without width or height holds no pixel.
struct PixelArea {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    int Right() const { return x + width; }
    int Bottom() const { return y + height; }
    bool IsEmpty() const { return width <= 0 || height <= 0; }

    friend bool operator==(const PixelArea&, const PixelArea&) = default;
};

} // namespace mirelle
