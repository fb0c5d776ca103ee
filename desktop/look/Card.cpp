#include "desktop/look/Card.h"

#include <QEvent>
#include <QFontMetrics>
#include <QLayout>
#include <QPainter>

#include "desktop/look/Surface.h"
#include "desktop/look/Tokens.h"

namespace mirelle::look {

Card::Card(const QString& caption, QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_NoMousePropagation);
    SetCaption(caption);
}

void Card::SetCaption(const QString& caption) {
    caption_ = caption;
    setAccessibleName(caption);
    FitMargins();
    update();
}

QRegion Card::OpaqueRegion() const {
    const QRect place = geometry();
    return QRegion(place.adjusted(kCardRadius, 0, -kCardRadius, 0)) +
           place.adjusted(0, kCardRadius, 0, -kCardRadius);
}

void Card::SetBody(QLayout* body) {
    body->setContentsMargins({});
    setLayout(body);
}

void Card::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    Surface surface(painter);
    surface.Fill(rect(), kCardRadius, QColor(kCard));
    surface.Edge(rect(), kCardRadius, QColor(kCardEdge));
    if (caption_.isEmpty()) return;
    painter.setFont(CaptionFont());
    painter.setPen(QColor(kTextQuiet));
    const int width = this->width() - 2 * kSpace;
    const QString shown = painter.fontMetrics().elidedText(caption_, Qt::ElideRight, width);
    painter.drawText(QRect(kSpace, kSpaceSmall + 2, width, painter.fontMetrics().height()), Qt::AlignVCenter,
                     shown);
}

void Card::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange) FitMargins();
    QWidget::changeEvent(event);
}

QFont Card::CaptionFont() const {
    QFont small = font();
    small.setPixelSize(kTypeSizeSmall);
    return small;
}

void Card::FitMargins() {
    const int head =
        caption_.isEmpty() ? kSpace : kSpaceSmall + 2 + QFontMetrics(CaptionFont()).height() + kSpaceSmall;
    setContentsMargins(kSpace, head, kSpace, kSpace);
}

} // namespace mirelle::look
