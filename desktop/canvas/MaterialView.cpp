#include "desktop/canvas/MaterialView.h"

#include "app/FrmPicX.h"
#include "desktop/binding/ControlEvents.h"
#include "desktop/binding/DevicePixels.h"
#include "desktop/binding/HandlerGuard.h"
#include "desktop/binding/Updater.h"
#include "desktop/canvas/PictureImage.h"
#include "desktop/look/Tokens.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

namespace mirelle {
namespace {

constexpr Color kGroundOfTheLook = 0xC0C0C0;
// One notch of the wheel, in scroll bar values.
constexpr int kWheelStep = 40;
constexpr int kWheelNotch = 120;

QColor GroundOf(const PictureBox& box) {
    if (box.BackColor == kGroundOfTheLook) return QColor::fromRgb(look::kCanvas);
    const Pixel pixel = PixelOf(box.BackColor);
    return {pixel.red, pixel.green, pixel.blue};
}

void Turn(ScrollBar& bar, int notches) {
    const int low = std::min<int>(bar.Min(), bar.Max());
    const int high = std::max<int>(bar.Min(), bar.Max());
    bar.UserSet(
        static_cast<std::int16_t>(std::clamp(bar.Value - notches * kWheelStep / kWheelNotch, low, high)));
}

} // namespace

MaterialView::MaterialView(FrmPicX& form, QWidget* parent) : QWidget(parent), form_(form) {
    setObjectName("picSmall");
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setCursor(Qt::CrossCursor);
    auto* updater = ShowWhenChanged(form.picSmall, this, [this] { Follow(); });
    updater->Watch(form.PicScroll);
}

void MaterialView::Follow() {
    const Picture picture = form_.picSmall.Image();
    const QPoint place(PixelsOf(form_.picSmall.Left, ScaleUnit::Pixels),
                       PixelsOf(form_.picSmall.Top, ScaleUnit::Pixels));
    setAccessibleName(QString::fromStdString(form_.picSmall.ToolTipText));
    shown_ = picture;
    place_ = place;
    visible_ = form_.picSmall.Visible;
    blank_ = form_.picSmall.IsBlank() && form_.picSmall.BackColor == kGroundOfTheLook;
    update();
}

QPoint MaterialView::MaterialPixel(const QMouseEvent& event) const {
    return DevicePixelAt(*this, event) - place_;
}

bool MaterialView::IsOnMaterial(QPoint pixel) const {
    return visible_ && QRect(0, 0, shown_.Width(), shown_.Height()).contains(pixel);
}

bool MaterialView::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto& help = static_cast<const QHelpEvent&>(*event);
        const Control& under = IsOnMaterial(DevicePixelAt(*this, help.pos()) - place_)
                                   ? static_cast<const Control&>(form_.picSmall)
                                   : form_.PicScroll;
        QToolTip::showText(help.globalPos(), QString::fromStdString(under.ToolTipText), this);
        return true;
    }
    return QWidget::event(event);
}

void MaterialView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const QImage image = ImageOver(shown_);
    const QRect material(place_, QSize(shown_.Width(), shown_.Height()));
    UseDevicePixels(painter);
    for (const QRect& exposed : event->region()) {
        const QRect pixels = DevicePixelsTouched(*this, exposed);
        const QRect seen = visible_ && !blank_ ? pixels & material : QRect();
        if (seen != pixels) painter.fillRect(pixels, GroundOf(form_.PicScroll));
        if (!seen.isEmpty()) painter.drawImage(seen.topLeft(), image, seen.translated(-place_));
    }
}

void MaterialView::mousePressEvent(QMouseEvent* event) {
    const QPoint pixel = MaterialPixel(*event);
    pressed_ = IsOnMaterial(pixel);
    Control& control = pressed_ ? static_cast<Control&>(form_.picSmall) : form_.PicScroll;
    RunGuarded(form_.ports.dialogs, [&] {
        control.MouseDown({ButtonNumber(event->button()), ShiftNumber(event->modifiers()),
                           static_cast<float>(pixel.x()), static_cast<float>(pixel.y())});
    });
}

void MaterialView::mouseMoveEvent(QMouseEvent* event) {
    const QPoint pixel = MaterialPixel(*event);
    Control& control =
        pressed_ || IsOnMaterial(pixel) ? static_cast<Control&>(form_.picSmall) : form_.PicScroll;
    RunGuarded(form_.ports.dialogs, [&] {
        control.MouseMove({ButtonNumber(event->buttons()), ShiftNumber(event->modifiers()),
                           static_cast<float>(pixel.x()), static_cast<float>(pixel.y())});
    });
}

void MaterialView::mouseReleaseEvent(QMouseEvent* event) {
    const QPoint pixel = MaterialPixel(*event);
    const bool clicked =
        std::exchange(pressed_, false) && event->button() == Qt::LeftButton && IsOnMaterial(pixel);
    RunGuarded(form_.ports.dialogs, [&] {
        form_.picSmall.MouseUp({ButtonNumber(event->button()), ShiftNumber(event->modifiers()),
                                static_cast<float>(pixel.x()), static_cast<float>(pixel.y())});
    });
    if (clicked) RunGuarded(form_.ports.dialogs, [&] { form_.picSmall.UserClick(); });
}

void MaterialView::wheelEvent(QWheelEvent* event) {
    const QPoint turned = event->angleDelta();
    RunGuarded(form_.ports.dialogs, [&] {
        if (turned.y() != 0)
            Turn(event->modifiers() & Qt::ShiftModifier ? form_.HSImage : form_.VSImage, turned.y());
        if (turned.x() != 0) Turn(form_.HSImage, turned.x());
    });
    event->accept();
}

} // namespace mirelle
