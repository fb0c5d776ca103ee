#include "desktop/look/Icons.h"

#include <cmath>
#include <map>

#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPixmap>

#include "desktop/look/PixelFit.h"
#include "desktop/look/Tokens.h"

namespace mirelle::look {

namespace {

class IconEngine : public QIconEngine {
public:
    explicit IconEngine(const SvgDrawing& drawing) : drawing_(&drawing) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
        PaintFitted(*painter, *drawing_, rect, IconInk(mode, state));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return new IconEngine(*this); }
    QString key() const override { return QStringLiteral("mirelle"); }
    bool isNull() override { return drawing_->shapes.empty(); }

private:
    const SvgDrawing* drawing_; // lives as long as the program
};

SvgDrawing Load(QStringView name) {
    QFile file(QStringLiteral(":/look/icons/%1.svg").arg(name));
    if (!file.open(QIODevice::ReadOnly)) return {};
    return ReadSvg(file.readAll()).value_or(SvgDrawing());
}

// Scale and shift from the painter's units to device pixels; turned painters are not met with here.
struct DevicePlace {
    explicit DevicePlace(const QPainter& painter) : transform(painter.deviceTransform()) {}
    double Scale() const { return transform.m11(); }
    QPointF Snapped(QPointF point) const {
        const QPointF device = transform.map(point);
        const QPointF whole(std::round(device.x()), std::round(device.y()));
        return point + (whole - device) / Scale();
    }
    QTransform transform;
};

} // namespace

const SvgDrawing& IconDrawing(QStringView name) {
    static std::map<QString, SvgDrawing, std::less<>> drawings; // nodes stay where they are
    const QString key = name.toString();
    const auto known = drawings.find(key);
    return known != drawings.end() ? known->second : drawings.emplace(key, Load(name)).first->second;
}

QIcon MakeIcon(QStringView name) {
    return QIcon(new IconEngine(IconDrawing(name)));
}

void PaintFitted(QPainter& painter, const SvgDrawing& drawing, const QRectF& target, const QColor& ink) {
    const DevicePlace device(painter);
    if (drawing.viewBox.isEmpty() || device.Scale() <= 0) return;
    const double scale = target.width() * device.Scale() / drawing.viewBox.width();
    const SvgDrawing fitted = FittedToPixels(drawing, scale);
    PaintSvg(painter, fitted,
             QRectF(device.Snapped(target.topLeft()), fitted.viewBox.size() / device.Scale()), ink);
}

QColor IconInk(QIcon::Mode mode, QIcon::State state) {
    if (mode == QIcon::Disabled) return QColor(kTextOff);
    if (state == QIcon::On) return QColor(kAccentText);
    return QColor(mode == QIcon::Normal ? kText : kTextStrong);
}

QIcon ApplicationIcon() {
    QIcon icon;
    for (const int size : {16, 20, 24, 32, 40, 48, 64, 128, 256}) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        PaintFitted(painter, IconDrawing(u"application"), QRectF(0, 0, size, size), QColor(kText));
        icon.addPixmap(pixmap);
    }
    return icon;
}

} // namespace mirelle::look
