#include "desktop/look/Typeface.h"

#include <QFontDatabase>
#include <QFontMetrics>
#include <QPalette>
#include <QStringList>
#include <QWidget>

#include "desktop/look/Tokens.h"

namespace mirelle::look {

QFont BodyFont() {
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    font.setPixelSize(
        kTypeSize); // at once: the font that is asked below is then loaded in the size that is used
    // The list of families is of no use here: it names generic ones, such as "Sans Serif", without any font
    // file.
    if (!QFontMetrics(font).inFont(u'A')) {
        const int id = QFontDatabase::addApplicationFont(QStringLiteral(":/look/fonts/Fallback.ttf"));
        const QStringList families = QFontDatabase::applicationFontFamilies(id);
        if (!families.isEmpty()) font.setFamily(families.front());
    }
#ifdef Q_OS_WIN
    // Some systems name a family that only stands for another one, and Qt would take any in its place.
    font.setFamilies(QStringList{font.family(), "Segoe UI", "Tahoma", "DejaVu Sans", "Arial"});
#endif
    return font;
}

void SetTextRank(QWidget& widget, TextRank rank) {
    const bool note = rank == TextRank::Note;
    QFont font = widget.font();
    font.setPixelSize(note ? kTypeSizeSmall : kTypeSize);
    widget.setFont(font);
    QPalette palette = widget.palette();
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        palette.setColor(group, QPalette::WindowText, QColor(note ? kTextQuiet : kText));
    }
    widget.setPalette(palette);
}

} // namespace mirelle::look
