// The hollow rectangles that are drawn over the canvas: one device pixel wide, whatever the scale factor.
#pragma once

#include <QColor>
#include <QRect>
#include <QRegion>

#include <array>

class QPainter;

namespace mirelle {

class Form;
class Shape;

class Hairline {
public:
    explicit Hairline(const Shape& shape) : shape_(&shape) {}

    // Takes the shape's present place, colour and visibility; the result is the device pixels that have to be
    // painted anew.
    QRegion Follow(const Form& form);
    void Paint(QPainter& painter) const; // counts in device pixels

private:
    const Shape* shape_;
    QRect place_; // empty while it is hidden
    QColor colour_;
};

// The four sides of a rectangle, one pixel wide each.
std::array<QRect, 4> SidesOf(const QRect& place);

} // namespace mirelle
