// The look with states that nobody has to bring about: a widget with a forced state is painted as if the
// mouse or the focus were on it.
#pragma once

#include "desktop/look/Style.h"

namespace mirelle::look {

enum class Forced { Rest, Hovered, Pressed, Focused, Disabled };

void ForceState(QWidget& widget, Forced state);

class GalleryStyle : public Style {
    Q_OBJECT
public:
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget = nullptr) const override;
};

} // namespace mirelle::look
