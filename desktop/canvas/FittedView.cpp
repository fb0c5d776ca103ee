#include "desktop/canvas/FittedView.h"

#include "desktop/binding/DevicePixels.h"
#include "desktop/binding/Updater.h"
#include "desktop/canvas/PictureImage.h"
#include "forms/PictureBox.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstddef>
#include <vector>

namespace mirelle {

namespace {

// So many pixels each way for each one that is shown make it smooth; more make it slow, where a photograph is
// shown small.
constexpr int kPixelsForOne = 4;

int StepOver(int pixels, int shown) {
    return std::max(1, pixels / (kPixelsForOne * shown));
}

// One of so many rows of the image, over the same pixels. What lies between them is lost: all rows would have
// to come from memory.
QImage SomeRows(const QImage& image, int step) {
    return {image.constBits(), image.width(), (image.height() + step - 1) / step, image.bytesPerLine() * step,
            image.format()};
}

// The means of two pixels' bytes, cut down.
QRgb MeanOf(QRgb a, QRgb b) {
    return (a & b) + (((a ^ b) >> 1) & 0x7F7F7F7F);
}

void JoinPairs(const QRgb* from, QRgb* to, int pairs) {
    for (int x = 0; x < pairs; ++x)
        to[x] = MeanOf(from[2 * x], from[2 * x + 1]);
}

// Columns joined by twos, so many times: what lies between columns must not be lost where a texture repeats.
QImage ColumnsJoined(const QImage& image, int times) {
    QImage joined(image.width() >> times, image.height(), image.format());
    std::vector<QRgb> half(static_cast<std::size_t>(image.width()) / 2);
    std::vector<QRgb> quarter(half.size() / 2);
    for (int y = 0; y < joined.height(); ++y) {
        const auto* from = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int done = 1; done < times; ++done) {
            QRgb* const to = done % 2 != 0 ? half.data() : quarter.data();
            JoinPairs(from, to, image.width() >> done);
            from = to;
        }
        JoinPairs(from, reinterpret_cast<QRgb*>(joined.scanLine(y)), joined.width());
    }
    return joined;
}

QImage EnoughPixels(const QImage& image, QSize shown) {
    const QImage rows = SomeRows(image, StepOver(image.height(), shown.height()));
    const auto step = static_cast<unsigned>(StepOver(image.width(), shown.width()));
    const int times = std::bit_width(step) - 1;
    return times == 0 ? rows : ColumnsJoined(rows, times);
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
            QPixmap::fromImage(EnoughPixels(image, place.size())
                                   .scaled(place.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }
    QPainter painter(this);
    UseDevicePixels(painter);
    painter.drawPixmap(place.topLeft(), scaled_);
}

} // namespace mirelle
