// The photograph as another program puts a grab on the clipboard: an image of 32-bit pixels.
#pragma once

#include "bench/Photograph.h"

#include <QImage>

namespace mirelle::bench {

inline QImage MakeGrab() {
    return QImage(reinterpret_cast<const uchar*>(Photograph().Pixels().data()), kWidth, kHeight,
                  QImage::Format_RGB32)
        .copy();
}

} // namespace mirelle::bench
