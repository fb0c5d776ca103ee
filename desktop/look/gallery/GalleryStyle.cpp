#include "desktop/look/gallery/GalleryStyle.h"

#include <QStyleOption>
#include <QWidget>

namespace mirelle::look {

namespace {

constexpr const char* kProperty = "forcedState";

// The options live on the stack of a paint event, which is done with them when the style returns.
void Change(const QStyleOption* option, const QWidget* widget, QStyle::SubControls hot) {
    if (!widget || !widget->property(kProperty).isValid()) return;
    auto* changed = const_cast<QStyleOption*>(option);
    const auto state = static_cast<Forced>(widget->property(kProperty).toInt());
    changed->state.setFlag(QStyle::State_MouseOver, state == Forced::Hovered || state == Forced::Pressed);
    if (state == Forced::Pressed) changed->state |= QStyle::State_Sunken;
    if (state == Forced::Focused)
        changed->state |= QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
    if (hot == QStyle::SC_None) return;
    auto* complex = qstyleoption_cast<QStyleOptionComplex*>(changed);
    if (complex && changed->state & QStyle::State_MouseOver) complex->activeSubControls = hot;
}

QStyle::SubControl HotPart(QStyle::ComplexControl control) {
    switch (control) {
    case QStyle::CC_ScrollBar:
        return QStyle::SC_ScrollBarSlider;
    case QStyle::CC_Slider:
        return QStyle::SC_SliderHandle;
    case QStyle::CC_SpinBox:
        return QStyle::SC_SpinBoxUp;
    default:
        return QStyle::SC_None;
    }
}

} // namespace

void ForceState(QWidget& widget, Forced state) {
    widget.setProperty(kProperty, static_cast<int>(state));
    if (state == Forced::Disabled) widget.setEnabled(false);
}

void GalleryStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const {
    Change(option, widget, SC_None);
    Style::drawPrimitive(element, option, painter, widget);
}

void GalleryStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
    Change(option, widget, SC_None);
    Style::drawControl(element, option, painter, widget);
}

void GalleryStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
    Change(option, widget, HotPart(control));
    Style::drawComplexControl(control, option, painter, widget);
}

} // namespace mirelle::look
