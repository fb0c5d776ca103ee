#include "desktop/look/Icons.h"

#include <map>
#include <optional>

#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPixmap>

#include "desktop/look/PixelFit.h"
#include "desktop/look/Surface.h"
#include "desktop/look/Tokens.h"

namespace mirelle::look {

namespace {

class IconEngine : public QIconEngine {
public:
    IconEngine(const SvgDrawing& drawing, std::optional<QRgb> ink) : drawing_(&drawing), ink_(ink) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
        const bool own = ink_ && mode != QIcon::Disabled;
        PaintFitted(*painter, *drawing_, rect, own ? QColor(*ink_) : IconInk(mode, state));
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
    std::optional<QRgb> ink_;
};

SvgDrawing Load(QStringView name) {
    QFile file(QStringLiteral(":/look/icons/%1.svg").arg(name));
    if (!file.open(QIODevice::ReadOnly)) return {};
    return ReadSvg(file.readAll()).value_or(SvgDrawing());
}

} // namespace

const SvgDrawing& IconDrawing(QStringView name) {
    static std::map<QString, SvgDrawing, std::less<>> drawings; // nodes stay where they are
    const QString key = name.toString();
    const auto known = drawings.find(key);
    return known != drawings.end() ? known->second : drawings.emplace(key, Load(name)).first->second;
}

QIcon MakeIcon(QStringView name) {
    return QIcon(new IconEngine(IconDrawing(name), std::nullopt));
}

QIcon MakeIcon(QStringView name, QRgb ink) {
    return QIcon(new IconEngine(IconDrawing(name), ink));
}

void PaintFitted(QPainter& painter, const SvgDrawing& drawing, const QRectF& target, const QColor& ink) {
    const DeviceGrid device(painter);
    if (drawing.viewBox.isEmpty()) return;
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
