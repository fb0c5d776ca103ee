#include "desktop/window/Ground.h"

#include "desktop/binding/Updater.h"
#include "desktop/look/Tokens.h"

#include <QPainter>

namespace mirelle {
namespace {

constexpr Color kGroundOfTheLook = 0xC0C0C0;

} // namespace

Ground::Ground(Control& control, QRgb otherwise, QWidget* parent)
    : QWidget(parent), control_(control), otherwise_(otherwise) {
    ShowWhenChanged(control, this, [this] { update(); });
}

void Ground::paintEvent(QPaintEvent*) {
    const Pixel pixel = PixelOf(control_.BackColor);
    const bool own = control_.BackColor != kGroundOfTheLook;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QColor::fromRgb(look::kFieldEdge));
    painter.setBrush(own ? QColor(pixel.red, pixel.green, pixel.blue) : QColor::fromRgb(otherwise_));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), look::kTickRadius,
                            look::kTickRadius);
}

} // namespace mirelle
