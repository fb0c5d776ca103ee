// What a widget paints, pixel by pixel.
#pragma once

#include "desktop/binding/DevicePixels.h"
#include "forms/Picture.h"

#include <QImage>
#include <QWidget>

namespace mirelle::test {

inline QImage Painted(QWidget& widget) {
    QImage image(DeviceSize(widget), QImage::Format_RGB32);
    image.setDevicePixelRatio(widget.devicePixelRatioF());
    image.fill(Qt::magenta);
    widget.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    image.setDevicePixelRatio(1);
    return image;
}

inline Pixel PixelAt(const QImage& image, int x, int y) {
    const QRgb pixel = image.pixel(x, y);
    return {static_cast<std::uint8_t>(qBlue(pixel)), static_cast<std::uint8_t>(qGreen(pixel)),
            static_cast<std::uint8_t>(qRed(pixel)), 0};
}

inline Pixel Opaque(Pixel pixel) {
    pixel.fourth = 0;
    return pixel;
}

// How many pixels of the image's area at (left, top) are others than the bitmap's.
inline int Differing(const QImage& image, QPoint at, const Bitmap& bitmap) {
    int differing = 0;
    for (int y = 0; y < bitmap.Height() && at.y() + y < image.height(); ++y) {
        for (int x = 0; x < bitmap.Width() && at.x() + x < image.width(); ++x) {
            if (PixelAt(image, at.x() + x, at.y() + y) != Opaque(bitmap.At(x, y))) ++differing;
        }
    }
    return differing;
}

} // namespace mirelle::test
