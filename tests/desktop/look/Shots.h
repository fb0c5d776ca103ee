// Pictures of widgets, to be looked into pixel by pixel.
#pragma once

#include <algorithm>
#include <cstdlib>

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QWidget>

namespace mirelle::look {

inline QImage Blank(QSize size, double scale = 1) {
    QImage image(size * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    return image;
}

// The widget as it is painted on nothing: what it leaves alone stays clear.
inline QImage ShotOf(QWidget& widget) {
    QImage image = Blank(widget.size());
    widget.render(&image, {}, {}, QWidget::DrawChildren);
    return image;
}

inline int CountOf(const QImage& image, QRgb colour) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixel(x, y) == colour;
    }
    return count;
}

// Of any channel of any pixel; the two have one size. The rasteriser of curves is not symmetrical to the last
// bit.
inline int GreatestDifference(const QImage& a, const QImage& b) {
    int greatest = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            for (const int shift : {0, 8, 16, 24}) {
                const int left = static_cast<int>((a.pixel(x, y) >> shift) & 0xff);
                const int right = static_cast<int>((b.pixel(x, y) >> shift) & 0xff);
                greatest = std::max(greatest, std::abs(left - right));
            }
        }
    }
    return greatest;
}

template <typename Option>
Option OptionFor(QSize size, QStyle::State state) {
    Option option;
    option.rect = QRect(QPoint(), size);
    option.state = state;
    return option;
}

} // namespace mirelle::look
