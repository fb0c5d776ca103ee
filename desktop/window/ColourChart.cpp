#include "desktop/window/ColourChart.h"

#include "app/FrmPicX.h"
#include "desktop/binding/ControlEvents.h"
#include "desktop/binding/HandlerGuard.h"

#include <QMouseEvent>

#include <utility>

namespace mirelle {
namespace {

MouseArgs ArgsAt(QPoint pixel, int button, const QMouseEvent& event) {
    return {button, ShiftNumber(event.modifiers()), static_cast<float>(pixel.x()),
            static_cast<float>(pixel.y())};
}

} // namespace

ColourChart::ColourChart(FrmPicX& form, QWidget* parent)
    : FittedView(
          form.Picture2,
          [&form] {
              return Shown{form.Picture2.Image(), {}};
          },
          parent),
      form_(form) {
    setMouseTracking(true);
    setCursor(Qt::CrossCursor);
    SetFilling(true);
}

void ColourChart::mousePressEvent(QMouseEvent* event) {
    const auto pixel = PixelAt(*event);
    pressed_ = pixel && event->button() == Qt::LeftButton;
    if (!pixel) return;
    RunGuarded(form_.ports.dialogs,
               [&] { form_.Picture2.MouseDown(ArgsAt(*pixel, ButtonNumber(event->button()), *event)); });
}

void ColourChart::mouseMoveEvent(QMouseEvent* event) {
    const auto pixel = PixelAt(*event);
    if (!pixel) return;
    RunGuarded(form_.ports.dialogs,
               [&] { form_.Picture2.MouseMove(ArgsAt(*pixel, ButtonNumber(event->buttons()), *event)); });
}

void ColourChart::mouseReleaseEvent(QMouseEvent* event) {
    const auto pixel = PixelAt(*event);
    const bool clicked = std::exchange(pressed_, false);
    if (!pixel) return;
    RunGuarded(form_.ports.dialogs,
               [&] { form_.Picture2.MouseUp(ArgsAt(*pixel, ButtonNumber(event->button()), *event)); });
    if (clicked) RunGuarded(form_.ports.dialogs, [&] { form_.Picture2.UserClick(); });
}

void ColourChart::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !PixelAt(*event)) return;
    RunGuarded(form_.ports.dialogs, [&] { form_.Picture2.UserDblClick(); });
}

} // namespace mirelle
