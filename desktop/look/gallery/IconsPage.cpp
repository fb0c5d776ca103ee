#include <QDir>
#include <QGridLayout>
#include <QPainter>
#include <QWidget>

#include "desktop/look/Card.h"
#include "desktop/look/gallery/Pages.h"
#include "desktop/look/Icons.h"
#include "desktop/look/Tokens.h"

namespace mirelle::look {

namespace {

// One drawing at its own size and at twice that, over its name.
class IconSample : public QWidget {
public:
    explicit IconSample(const QString& name) : name_(name) { setFixedSize(100, 68); }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        const SvgDrawing& drawing = IconDrawing(name_);
        PaintFitted(painter, drawing, QRectF(14, 18, kIcon, kIcon), QColor(kText));
        PaintFitted(painter, drawing, QRectF(46, 8, 2 * kIcon, 2 * kIcon), QColor(kText));
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
    auto* around = new QGridLayout(page);
    auto* card = new Card(QStringLiteral("Icons"));
    around->addWidget(card);
    auto* grid = new QGridLayout;
    grid->setSpacing(0);
    card->SetBody(grid);
    constexpr int columns = 13;
    int place = 0;
    for (const QString& file : QDir(QStringLiteral(":/look/icons")).entryList({QStringLiteral("*.svg")})) {
        grid->addWidget(new IconSample(file.chopped(4)), place / columns, place % columns);
        ++place;
    }
    return page;
}

} // namespace mirelle::look
