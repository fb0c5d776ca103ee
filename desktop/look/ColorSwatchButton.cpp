#include "desktop/look/ColorSwatchButton.h"

#include <QStyleOptionToolButton>
#include <QStylePainter>

#include "desktop/look/Contrast.h"
#include "desktop/look/PaintButtons.h"
#include "desktop/look/Surface.h"
#include "desktop/look/Tokens.h"

namespace mirelle::look {

namespace {

constexpr int kBar = 5;
constexpr double kLost = 1.7; // below this contrast a colour is lost on its button

void PaintColour(Surface& surface, const QRectF& place, double radius, const QColor& colour) {
    surface.Fill(place, radius, colour);
    if (ContrastRatio(colour.rgb(), kControl) < kLost) surface.Edge(place, radius, QColor(kMarkEdge));
}

} // namespace

ColorSwatchButton::ColorSwatchButton(QStringView icon, QWidget* parent) : IconButton(icon, parent) {
    SetColour(Qt::black);
    if (icon.isEmpty()) setFixedSize(kControlHeight, kControlHeight);
}

void ColorSwatchButton::SetColour(const QColor& colour) {
    colour_ = colour;
    setAccessibleDescription(
        QStringLiteral("%1, %2, %3").arg(colour.red()).arg(colour.green()).arg(colour.blue()));
    update();
}

void ColorSwatchButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QStyleOptionToolButton option;
    initStyleOption(&option);
    if (icon().isNull()) {
        PaintToolButtonGround(painter, option);
        Surface surface(painter);
        const QRectF swatch = QRectF(rect()).adjusted(3, 3, -3, -3);
        PaintColour(surface, swatch, kTickRadius, colour_);
        return;
    }
    PaintToolButtonGround(painter, option);
    const int side = (width() - kIcon) / 2;
    const QRect bar(side, height() - kBar - 2, kIcon, kBar);
    option.rect = QRect(0, 0, width(), bar.top() + 1);
    option.iconSize = QSize(kIcon - 2, kIcon - 2);
    PaintToolButtonIcon(painter, option);
    Surface surface(painter);
    PaintColour(surface, bar, kBar / 2.0, colour_);
}

} // namespace mirelle::look
