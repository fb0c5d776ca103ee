#include "desktop/look/ElidedLabel.h"

#include <QFontMetricsF>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QtMath>
#include <QToolTip>

#include "desktop/look/Tokens.h"
#include "desktop/look/ToolTips.h"

namespace mirelle::look {

ElidedLabel::ElidedLabel(const QString& text, QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    SetText(text);
}

void ElidedLabel::SetText(const QString& text) {
    text_ = text;
    setAccessibleName(text);
    updateGeometry();
    update();
}

QString ElidedLabel::ShownText() const {
    return fontMetrics().elidedText(text_, Qt::ElideMiddle, width());
}

QString ElidedLabel::Tip() const {
    if (ShownText() == text_) return toolTip();
    return toolTip().isEmpty() ? text_ : text_ + u'\n' + toolTip();
}

QSize ElidedLabel::sizeHint() const {
    return {qCeil(QFontMetricsF(font()).horizontalAdvance(text_)), minimumSizeHint().height()};
}

QSize ElidedLabel::minimumSizeHint() const {
    return {fontMetrics().horizontalAdvance(u'\u2026'), fontMetrics().height()};
}

bool ElidedLabel::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    const QString tip = BrokenIntoLines(Tip(), QToolTip::font(), kTipWidth);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), tip, this);
    return true;
}

void ElidedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
    painter.setPen(palette().color(group, foregroundRole()));
    painter.drawText(rect(), Qt::AlignVCenter | Qt::TextSingleLine, ShownText());
}

void ElidedLabel::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) emit DoubleClicked();
}

} // namespace mirelle::look
