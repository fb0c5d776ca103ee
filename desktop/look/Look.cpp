#include "desktop/look/Look.h"

#include <QApplication>
#include <QToolTip>

#include "desktop/look/Icons.h"
#include "desktop/look/Palette.h"
#include "desktop/look/Style.h"
#include "desktop/look/ToolTips.h"
#include "desktop/look/Typeface.h"

namespace mirelle::look {

void ApplyLook(QApplication& application) {
    QApplication::setStyle(new Style); // the application owns it
    QApplication::setPalette(MakePalette());
    const QFont font = BodyFont();
    QApplication::setFont(font);
    QToolTip::setFont(font);
    QToolTip::setPalette(MakePalette());
    application.installEventFilter(new ToolTips(&application));
}

void ApplyIcon() {
    QApplication::setWindowIcon(ApplicationIcon());
}

} // namespace mirelle::look
