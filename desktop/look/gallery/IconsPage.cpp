#include <QDir>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>
#include <QWidget>

#include "desktop/look/gallery/Pages.h"
#include "desktop/look/Icons.h"
#include "desktop/look/Tokens.h"

namespace mirelle::look {

namespace {

// One drawing at its own size and at twice that, over its name.
class IconSample : public QWidget {
public:
    explicit IconSample(const QString& name) : name_(name) { setFixedSize(104, 72); }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        const SvgDrawing& drawing = IconDrawing(name_);
        PaintFitted(painter, drawing, QRectF(16, 18, kIcon, kIcon), QColor(kText));
        PaintFitted(painter, drawing, QRectF(48, 8, 2 * kIcon, 2 * kIcon), QColor(kText));
        QFont small = font();
        small.setPixelSize(9);
        painter.setFont(small);
        painter.setPen(QColor(kTextQuiet));
        painter.drawText(rect().adjusted(0, 52, 0, 0), Qt::AlignHCenter | Qt::AlignTop, name_);
    }

private:
    QString name_;
};

} // namespace

QWidget* MakeIconsPage() {
    auto* page = new QWidget;
    auto* grid = new QGridLayout(page);
    grid->setSpacing(kSpaceSmall);
    constexpr int columns = 12;
    int place = 0;
    for (const QString& file : QDir(QStringLiteral(":/look/icons")).entryList({QStringLiteral("*.svg")})) {
        grid->addWidget(new IconSample(file.chopped(4)), place / columns, place % columns);
        ++place;
    }
    return page;
}

} // namespace mirelle::look
