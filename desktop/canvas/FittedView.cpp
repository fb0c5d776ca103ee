#include "desktop/canvas/FittedView.h"

#include "desktop/binding/DevicePixels.h"
#include "desktop/binding/Updater.h"
#include "desktop/canvas/PictureImage.h"
#include "forms/PictureBox.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace mirelle {

namespace {

// So many rows for each row that is shown make it smooth; more make it slow, where a photograph is shown
// small.
constexpr int kRowsForOne = 4;

// A part of the image's rows, over the same pixels.
QImage EnoughRows(const QImage& image, int shownHeight) {
    const int step = std::max(1, image.height() / (kRowsForOne * shownHeight));
    return {image.constBits(), image.width(), (image.height() + step - 1) / step, image.bytesPerLine() * step,
            image.format()};
}

} // namespace

FittedView::FittedView(Watched& source, std::function<Shown()> read, QWidget* parent)
    : QWidget(parent), read_(std::move(read)) {
    ShowWhenChanged(source, this, [this] {
        const Shown now = read_();
        const bool same =
            now.picture.SharesPixelsWith(shown_.picture) && now.proportions == shown_.proportions;
        if (same) return;
        shown_ = now;
        scaled_ = {};
        update();
    });
}

FittedView* FittedView::Of(PictureBox& box, QWidget* parent) {
    return new FittedView(
        box,
        [&box] {
            return Shown{box.IsBlank() ? Picture() : box.Image(), {}};
        },
        parent);
}

FittedView* FittedView::Of(ImageControl& image, QWidget* parent) {
    return new FittedView(
        image,
        [&image] {
            return Shown{image.Picture(), QSizeF(image.Width, image.Height)};
        },
        parent);
}

QRect FittedView::PlaceInDevicePixels() const {
    const QSize room = DeviceSize(*this);
    const QSizeF natural(shown_.picture.Width(), shown_.picture.Height());
    const QSizeF proportions = shown_.proportions.isEmpty() ? natural : shown_.proportions;
    if (room.isEmpty() || natural.isEmpty()) return {};
    if (filling_) return {QPoint(0, 0), room};
    const double factor =
        std::min({room.width() / proportions.width(), room.height() / proportions.height(), 1.0});
    const QSize size(std::max(1, static_cast<int>(std::lround(proportions.width() * factor))),
                     std::max(1, static_cast<int>(std::lround(proportions.height() * factor))));
    return {QPoint((room.width() - size.width()) / 2, (room.height() - size.height()) / 2), size};
}

std::optional<QPoint> FittedView::PixelAt(const QMouseEvent& event) const {
    const QRect place = PlaceInDevicePixels();
    const QPoint pixel = DevicePixelAt(*this, event) - place.topLeft();
    if (place.isEmpty() || !QRect(QPoint(), place.size()).contains(pixel)) return std::nullopt;
    return QPoint(pixel.x() * shown_.picture.Width() / place.width(),
                  pixel.y() * shown_.picture.Height() / place.height());
}

void FittedView::paintEvent(QPaintEvent*) {
    const QRect place = PlaceInDevicePixels();
    if (place.isEmpty()) return;
    if (scaled_.size() != place.size()) {
        const QImage image = ImageOver(shown_.picture);
        scaled_ =
            QPixmap::fromImage(EnoughRows(image, place.height())
                                   .scaled(place.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }
    QPainter painter(this);
    UseDevicePixels(painter);
    painter.drawPixmap(place.topLeft(), scaled_);
}

} // namespace mirelle
