// A bitmap of the system's own: what GDI draws into and GDI+ takes pictures from.
#pragma once

#include "desktop/encoders/IndexedBitmap.h"
#include "desktop/windows/System.h"
#include "forms/Picture.h"

namespace mirelle::windows {

class DeviceBitmap {
public:
    // Of 24 bits a pixel, as a picture's file has them. Raises error 7 where the system has no memory for it.
    explicit DeviceBitmap(const Bitmap& bitmap);
    // Of one byte a pixel, with a palette.
    explicit DeviceBitmap(const IndexedBitmap& bitmap);
    // Of 32 bits a pixel, all white.
    DeviceBitmap(int width, int height);
    ~DeviceBitmap();
    DeviceBitmap(const DeviceBitmap&) = delete;
    DeviceBitmap& operator=(const DeviceBitmap&) = delete;

    HBITMAP Handle() const { return handle_; }
    // What a bitmap of 32 bits shows; the fourth byte is 0.
    Bitmap Pixels() const;

private:
    void Make(WORD bits, const std::vector<Pixel>& palette = {});

    int width_;
    int height_;
    HBITMAP handle_ = nullptr;
    std::uint8_t* bytes_ = nullptr; // rows from the top, each of whole groups of four bytes
};

} // namespace mirelle::windows
