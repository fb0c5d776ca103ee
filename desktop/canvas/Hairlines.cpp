#include "desktop/canvas/Hairlines.h"

#include "forms/Controls.h"
#include "forms/Form.h"
#include "forms/PictureBox.h"

#include <QPainter>

namespace mirelle {
namespace {

QRect PlaceOf(const Form& form, const Shape& shape) {
    if (!shape.Visible) return {};
    const auto pixels = [](float measure) { return PixelsOf(measure, ScaleUnit::Pixels); };
    return {pixels(form.PixelsX(shape.Left)), pixels(form.PixelsY(shape.Top)),
            pixels(form.PixelsX(shape.Width)), pixels(form.PixelsY(shape.Height))};
}

} // namespace

std::array<QRect, 4> SidesOf(const QRect& place) {
    return {QRect(place.left(), place.top(), place.width(), 1),
            QRect(place.left(), place.bottom(), place.width(), 1),
            QRect(place.left(), place.top(), 1, place.height()),
            QRect(place.right(), place.top(), 1, place.height())};
}

QRegion Hairline::Follow(const Form& form) {
    const QRect place = PlaceOf(form, *shape_);
    const Pixel pixel = PixelOf(shape_->BorderColor);
    const QColor colour(pixel.red, pixel.green, pixel.blue);
    QRegion changed;
    if (place == place_ && colour == colour_) return changed;
    for (const QRect& rect : {place_, place}) {
        if (rect.isEmpty()) continue;
        for (const QRect& side : SidesOf(rect))
            changed += side;
    }
    place_ = place;
    colour_ = colour;
    return changed;
}

void Hairline::Paint(QPainter& painter) const {
    if (place_.isEmpty()) return;
    for (const QRect& side : SidesOf(place_))
        painter.fillRect(side, colour_);
}

} // namespace mirelle
