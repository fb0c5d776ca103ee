#include "desktop/window/BrickWall.h"

#include <QColor>
#include <QPainter>

#include <array>
#include <cstdint>

namespace mirelle {
namespace {

constexpr int kBrickWidth = 44;
constexpr int kBrickHeight = 18;
constexpr int kJoint = 2;
constexpr QRgb kMortar = 0xffd8c2ac;
constexpr std::array<QRgb, 6> kBricks = {0xffb4593a, 0xffc56c48, 0xffa34e33,
                                         0xffc9734d, 0xffbb6241, 0xff96482f};
constexpr QRgb kShade = 0xd015151c;
constexpr QRgb kCropLine = 0xffffee33;
constexpr qreal kCropStroke = 1.5;
constexpr int kCross = 9; // half the pointer's width

// Which of the colours: no pattern that the eye finds, and the same at every start.
std::size_t ColourOf(int row, int column) {
    auto mixed = static_cast<std::uint32_t>(row * 73 + column * 151 + 11);
    mixed = (mixed ^ (mixed >> 4)) * 0x9e3779b1U;
    return (mixed >> 16) % kBricks.size();
}

void LayBricks(QPainter& painter, const QRect& wall) {
    painter.fillRect(wall, QColor::fromRgb(kMortar));
    for (int row = 0; row * kBrickHeight < wall.height(); ++row) {
        const int shift = row % 2 == 0 ? 0 : kBrickWidth / 2;
        for (int column = 0; column * kBrickWidth - shift < wall.width(); ++column) {
            const QRect brick(wall.left() + column * kBrickWidth - shift, wall.top() + row * kBrickHeight,
                              kBrickWidth - kJoint, kBrickHeight - kJoint);
            painter.fillRect(brick & wall, QColor::fromRgb(kBricks[ColourOf(row, column)]));
        }
    }
}

void ShadeAround(QPainter& painter, const QRect& wall, const QRect& crop) {
    for (const QRect& part : QRegion(wall) - QRegion(crop))
        painter.fillRect(part, QColor::fromRgba(kShade));
}

void DrawCrop(QPainter& painter, const QRect& crop) {
    painter.setPen(QPen(QColor::fromRgb(kCropLine), kCropStroke));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(crop);
    const QPoint corner(crop.x() + crop.width(), crop.y() + crop.height());
    painter.drawLine(corner - QPoint(kCross, 0), corner + QPoint(kCross, 0));
    painter.drawLine(corner - QPoint(0, kCross), corner + QPoint(0, kCross));
}

} // namespace

void PaintBrickWall(QPainter& painter, const QRect& wall, const QRect& crop) {
    const QRect framed = crop.translated(wall.topLeft());
    LayBricks(painter, wall);
    ShadeAround(painter, wall, framed);
    DrawCrop(painter, framed);
}

} // namespace mirelle
