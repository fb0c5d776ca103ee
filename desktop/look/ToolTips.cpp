#include "desktop/look/ToolTips.h"

#include <QAbstractItemView>
#include <QFontMetrics>
#include <QHelpEvent>
#include <QTextLayout>
#include <QToolTip>
#include <QWidget>

#include "desktop/look/Tokens.h"

namespace mirelle::look {

bool ToolTips::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::ToolTip) return false;
    auto* widget = qobject_cast<QWidget*>(watched);
    if (!widget || widget->toolTip().isEmpty() || Qt::mightBeRichText(widget->toolTip())) return false;
    const QString text = BrokenIntoLines(widget->toolTip(), QToolTip::font(), kTipWidth);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text, widget, {},
                       widget->toolTipDuration());
    return true;
}

QString BrokenIntoLines(const QString& text, const QFont& font, int width) {
    QStringList lines;
    for (const QString& paragraph : text.split(u'\n')) {
        QTextLayout layout(paragraph, font);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(width);
            lines.append(paragraph.mid(line.textStart(), line.textLength()).trimmed());
        }
        layout.endLayout();
    }
    return lines.join(u'\n');
}

} // namespace mirelle::look
