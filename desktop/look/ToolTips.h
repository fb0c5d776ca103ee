// Shows the tool tips of all widgets with their text broken into lines of a readable length. Qt breaks only
// rich text, and many of the tips are sentences.
#pragma once

#include <QFont>
#include <QObject>
#include <QString>

namespace mirelle::look {

class ToolTips : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override;
};

// `text` with line ends put in so that no line is wider than `width` pixels, unless a single word is.
QString BrokenIntoLines(const QString& text, const QFont& font, int width);

} // namespace mirelle::look
