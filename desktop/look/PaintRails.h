// What is dragged along a rail: scroll bars and sliders, their parts and their painting.
#pragma once

#include <QRect>
#include <QStyle>

class QPainter;
class QStyleOptionSlider;

namespace mirelle::look {

// A scroll bar has no buttons at its ends: the handle runs over the whole length.
QRect ScrollBarPart(const QStyleOptionSlider& option, QStyle::SubControl part);
void PaintScrollBar(QPainter& painter, const QStyleOptionSlider& option);

// A slider's groove is filled from its zero, or from its lowest value where zero is out of its range.
QRect SliderPart(const QStyleOptionSlider& option, QStyle::SubControl part);
void PaintSlider(QPainter& painter, const QStyleOptionSlider& option);

} // namespace mirelle::look
