#include "desktop/window/FloatingPanel.h"

#include "desktop/binding/DevicePixels.h"
#include "desktop/binding/Updater.h"
#include "desktop/look/Tokens.h"

#include <QMouseEvent>
#include <QToolButton>

#include <algorithm>

namespace mirelle {

FloatingPanel::FloatingPanel(Binder& binder, QWidget* canvas, QWidget* parent)
    : Panel(parent), binder_(binder), frame_(binder.TheForm().FrShowFrames(0)), canvas_(*canvas) {
    FrmPicX& form = binder.TheForm();
    Parts parts(binder, *this);
    setContentsMargins(look::kSpaceLarge, look::kSpace, look::kSpaceLarge, look::kSpace);
    Contents().addWidget(parts.Button(form.cmdShowFrames));
    setCursor(Qt::SizeAllCursor);
    setMouseTracking(true);
    adjustSize();
    binder.Looks(frame_, *this);
    ShowWhenChanged(frame_, this, [this] { Follow(); })->Watch(form);
}

void FloatingPanel::Follow() {
    if (dragging_ && moved_) return; // under the pointer until it is let go
    const FrmPicX& form = binder_.TheForm();
    MoveTo({PixelsOf(form.PixelsX(frame_.Left), ScaleUnit::Pixels),
            PixelsOf(form.PixelsY(frame_.Top), ScaleUnit::Pixels)});
}

void FloatingPanel::MoveTo(QPoint pixel) {
    const QPoint wanted = LogicalPosition(canvas_, pixel).toPoint();
    // Never out of reach.
    move(std::clamp(wanted.x(), 0, std::max(0, canvas_.width() - width())),
         std::clamp(wanted.y(), 0, std::max(0, canvas_.height() - height())));
}

QPoint FloatingPanel::FormPixel(const QMouseEvent& event) const {
    return DevicePixelAt(canvas_, event);
}

MouseArgs FloatingPanel::ArgsOf(const QMouseEvent& event) const {
    const QPoint pixel = DevicePixelAt(*this, event);
    return {ButtonNumber(event.button() == Qt::NoButton ? event.buttons() : Qt::MouseButtons(event.button())),
            ShiftNumber(event.modifiers()), static_cast<float>(pixel.x()), static_cast<float>(pixel.y())};
}

void FloatingPanel::mousePressEvent(QMouseEvent* event) {
    dragging_ = event->button() == Qt::LeftButton;
    moved_ = false;
    binder_.Run([&] { frame_.MouseDown(ArgsOf(*event)); });
}

// While it is dragged the panel lies where it would come to lie, and the form is told of it.
void FloatingPanel::mouseMoveEvent(QMouseEvent* event) {
    if (!dragging_) return binder_.Run([&] { frame_.MouseMove(ArgsOf(*event)); });
    FrmPicX& form = binder_.TheForm();
    const QPoint pixel = FormPixel(*event);
    moved_ = true;
    MoveTo(pixel);
    binder_.Run([&] {
        form.DragOver(frame_, form.ScaleX(static_cast<float>(pixel.x())),
                      form.ScaleY(static_cast<float>(pixel.y())));
    });
}

void FloatingPanel::mouseReleaseEvent(QMouseEvent* event) {
    const bool dropped = dragging_ && moved_ && event->button() == Qt::LeftButton;
    dragging_ = false;
    FrmPicX& form = binder_.TheForm();
    const QPoint pixel = FormPixel(*event);
    binder_.Run([&] {
        if (dropped) {
            form.DragDrop(frame_, form.ScaleX(static_cast<float>(pixel.x())),
                          form.ScaleY(static_cast<float>(pixel.y())));
        }
        frame_.MouseUp(ArgsOf(*event));
    });
    Follow();
}

} // namespace mirelle
