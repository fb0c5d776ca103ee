// The binder's sliders and scroll bars.
#include "desktop/binding/Binder.h"

#include <QAbstractSlider>
#include <QSignalBlocker>

#include <algorithm>

namespace mirelle {
namespace {

void ShowSlider(const ScrollBar& control, QAbstractSlider& widget) {
    const QSignalBlocker quiet(widget);
    const int low = std::min<int>(control.Min(), control.Max());
    const int high = std::max<int>(control.Min(), control.Max());
    widget.setRange(low, high);
    widget.setSingleStep(control.SmallChange);
    widget.setPageStep(std::max<int>(control.LargeChange(), 1));
    widget.setInvertedAppearance(control.Min > control.Max);
    // While the user holds the thumb it is where the user holds it.
    if (!widget.isSliderDown()) widget.setValue(control.Value);
}

} // namespace

void Binder::Slider(ScrollBar& control, QAbstractSlider& widget, Drag drag) {
    const auto show = [&control, &widget] { ShowSlider(control, widget); };
    Common(control, widget, show, nullptr);
    Mouse(control, widget, ControlEvents::Take::Mouse);
    const auto set = [this, &control](int value) {
        Run([&] { control.UserSet(static_cast<std::int16_t>(value)); });
    };
    QObject::connect(&widget, &QAbstractSlider::sliderMoved, &widget, [this, &control, set, drag](int value) {
        if (drag == Drag::Changes) return set(value);
        Run([&] { control.UserDrag(static_cast<std::int16_t>(value)); });
    });
    QObject::connect(&widget, &QAbstractSlider::sliderReleased, &widget,
                     [this, &control] { Run([&] { control.UserDrop(); }); });
    QObject::connect(&widget, &QAbstractSlider::actionTriggered, &widget, [&widget, set, show](int) {
        if (widget.isSliderDown()) return; // sliderMoved tells
        set(widget.sliderPosition());
        show();
    });
}

} // namespace mirelle
