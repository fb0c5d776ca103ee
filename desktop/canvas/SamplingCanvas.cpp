#include "desktop/canvas/SamplingCanvas.h"

#include "app/FrmPicX.h"
#include "desktop/binding/ControlEvents.h"
#include "desktop/binding/DevicePixels.h"
#include "desktop/binding/HandlerGuard.h"
#include "desktop/binding/Updater.h"
#include "desktop/canvas/PictureImage.h"
#include "desktop/look/Card.h"
#include "desktop/look/Tokens.h"

#include <QMouseEvent>
#include <QPainter>

#include <utility>

namespace mirelle {

SamplingCanvas::SamplingCanvas(FrmPicX& form, QWidget* parent)
    : QWidget(parent),
      form_(form), hairlines_{Hairline(form.Shape1), Hairline(form.Shape2), Hairline(form.Shape3)} {
    setObjectName("Form");
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setFocusPolicy(Qt::ClickFocus);
    setAccessibleName(tr("Sampling Canvas"));
    auto* picture = ShowWhenChanged(form, this, [this] {
        FollowPicture();
        FollowPointer();
    });
    picture->Watch(form.PicImage); // tells whether there is a picture at all
    auto* shapes = new Updater(this, [this] { FollowShapes(); });
    for (Shape* shape : {&form_.Shape1, &form_.Shape2, &form_.Shape3})
        shapes->Watch(*shape);
    shapes->Watch(form_); // its scale
}

QString SamplingCanvas::HintOf(const FrmPicX& form) {
    const QString tip = QString::fromStdString(form.Frame5.ToolTipText);
    return tip.mid(tip.lastIndexOf("; ") + 1).trimmed();
}

void SamplingCanvas::SetFreeArea(const QRect& area) {
    if (std::exchange(freeArea_, area) != area) update();
}

void SamplingCanvas::FollowShapes() {
    for (Hairline& hairline : hairlines_) {
        const QRegion changed = hairline.Follow(form_);
        for (const QRect& strip : changed)
            update(LogicalRectAround(*this, strip));
    }
}

void SamplingCanvas::FollowPicture() {
    const Picture picture = form_.Seen();
    const bool hint = form_.PicImage.Picture().IsEmpty();
    if (picture.SharesPixelsWith(shown_) && hint == hintShown_) return;
    shown_ = picture;
    hintShown_ = hint;
    update(SeenRegion());
}

// What the cards over the canvas leave of it. They would be painted anew with what lies beneath them.
QRegion SamplingCanvas::SeenRegion() const {
    QRegion seen = rect();
    for (const QObject* sibling : parent()->children()) {
        const auto* card = qobject_cast<const look::Card*>(sibling);
        if (card && card->isVisible()) seen -= card->OpaqueRegion().translated(-pos());
    }
    return seen;
}

void SamplingCanvas::FollowPointer() {
    switch (form_.MousePointer) {
    case kPointerHourglass:
        setCursor(Qt::WaitCursor);
        break;
    case kPointerSizeAll:
        setCursor(Qt::SizeAllCursor);
        break;
    default:
        setCursor(Qt::CrossCursor);
    }
}

void SamplingCanvas::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const QImage image = ImageOver(shown_);
    const QRect whole(0, 0, shown_.Width(), shown_.Height());
    const Pixel ground = PixelOf(form_.BackColor);
    UseDevicePixels(painter);
    for (const QRect& exposed : event->region()) {
        const QRect pixels = DevicePixelsTouched(*this, exposed);
        const QRect shown = pixels & whole;
        if (shown != pixels) painter.fillRect(pixels, QColor(ground.red, ground.green, ground.blue));
        if (!shown.isEmpty()) painter.drawImage(shown.topLeft(), image, shown);
    }
    for (const Hairline& hairline : hairlines_)
        hairline.Paint(painter);
    painter.resetTransform();
    if (hintShown_) PaintHint(painter);
}

void SamplingCanvas::PaintHint(QPainter& painter) const {
    const Pixel ground = PixelOf(form_.BackColor);
    const bool dark = ground.red * 3 + ground.green * 6 + ground.blue < 1280;
    painter.setPen(QColor::fromRgb(dark ? look::kTextQuiet : look::kCard));
    painter.drawText(freeArea_.isEmpty() ? rect() : freeArea_, Qt::AlignCenter | Qt::TextWordWrap,
                     HintOf(form_));
}

void SamplingCanvas::mousePressEvent(QMouseEvent* event) {
    const int button = ButtonNumber(event->button());
    if (button == 0) return;
    lastPixel_ = DevicePixelAt(*this, *event);
    lastShift_ = ShiftNumber(event->modifiers());
    pressed_ = pressed_ || button == 1;
    RunGuarded(form_.ports.dialogs, [&] {
        form_.MouseDown({button, lastShift_, form_.ScaleX(static_cast<float>(lastPixel_.x())),
                         form_.ScaleY(static_cast<float>(lastPixel_.y()))});
    });
}

void SamplingCanvas::mouseMoveEvent(QMouseEvent* event) {
    // The system tells of idle moves beside the window when panels come and go under the pointer.
    if (!pressed_ && event->buttons() == Qt::NoButton && !rect().contains(event->position().toPoint()))
        return;
    lastPixel_ = DevicePixelAt(*this, *event);
    lastShift_ = ShiftNumber(event->modifiers());
    if (pressed_ && !(event->buttons() & Qt::LeftButton)) return Release(1);
    RunGuarded(form_.ports.dialogs, [&] {
        form_.MouseMove({ButtonNumber(event->buttons()), lastShift_,
                         form_.ScaleX(static_cast<float>(lastPixel_.x())),
                         form_.ScaleY(static_cast<float>(lastPixel_.y()))});
    });
}

void SamplingCanvas::mouseReleaseEvent(QMouseEvent* event) {
    lastPixel_ = DevicePixelAt(*this, *event);
    lastShift_ = ShiftNumber(event->modifiers());
    const int button = ButtonNumber(event->button());
    if (button != 0) Release(button);
}

void SamplingCanvas::Release(int button) {
    const bool clicked = button == 1 && std::exchange(pressed_, false);
    RunGuarded(form_.ports.dialogs, [&] {
        form_.MouseUp({button, lastShift_, form_.ScaleX(static_cast<float>(lastPixel_.x())),
                       form_.ScaleY(static_cast<float>(lastPixel_.y()))});
    });
    if (clicked) RunGuarded(form_.ports.dialogs, [&] { form_.Click(); });
}

// The second press of a double click is a press like any other: two quick clicks are two samples.
void SamplingCanvas::mouseDoubleClickEvent(QMouseEvent* event) {
    mousePressEvent(event);
}

} // namespace mirelle
