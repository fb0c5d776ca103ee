#include "desktop/window/EffectIcon.h"

#include "desktop/canvas/PictureImage.h"
#include "desktop/look/Surface.h"
#include "desktop/look/Tokens.h"
#include "fx/EffectSample.h"

#include <QIconEngine>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QPixmapCache>

#include <string>
#include <utility>

namespace mirelle {
namespace {

// The picture with round corners, transparent beyond them.
QPixmap Rounded(const QImage& picture, qreal radius) {
    QPixmap rounded(picture.size());
    rounded.fill(Qt::transparent);
    QPainter painter(&rounded);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    // A brush takes the fourth byte for opacity, which a bitmap's is not.
    painter.setBrush(QBrush(picture.convertToFormat(QImage::Format_ARGB32_Premultiplied)));
    painter.drawRoundedRect(QRectF(picture.rect()), radius, radius);
    return rounded;
}

QPixmap PictureOf(const std::string& control, int side) {
    const QString key = EffectPictureKey(control, side);
    QPixmap picture;
    if (QPixmapCache::find(key, &picture)) return picture;
    const Picture changed(SampleAfter(control, side));
    picture = Rounded(ImageOver(changed), qreal{look::kEffectRadius} * side / look::kEffectPicture);
    QPixmapCache::insert(key, picture);
    return picture;
}

class EffectIconEngine : public QIconEngine {
public:
    explicit EffectIconEngine(std::string control) : control_(std::move(control)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        const look::DeviceGrid device(*painter);
        const int side = qRound(rect.width() * device.Scale());
        if (side < 1) return;
        const QRectF place(device.Snapped(QPointF(rect.topLeft())), QSizeF(side, side) / device.Scale());
        painter->save();
        if (mode == QIcon::Disabled) painter->setOpacity(painter->opacity() * look::kEffectOff / 100);
        painter->drawPixmap(place, PictureOf(control_, side), QRectF(0, 0, side, side));
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return new EffectIconEngine(*this); }
    QString key() const override { return QStringLiteral("mirelle-effect"); }

private:
    std::string control_;
};

} // namespace

QIcon EffectIcon(std::string_view control) {
    if (!HasEffectSample(control)) return {};
    return QIcon(new EffectIconEngine(std::string(control)));
}

QString EffectPictureKey(std::string_view control, int side) {
    return QStringLiteral("mirelle-effect %1 %2")
        .arg(QString::fromUtf8(control.data(), static_cast<qsizetype>(control.size())))
        .arg(side);
}

} // namespace mirelle
