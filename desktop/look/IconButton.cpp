#include "desktop/look/IconButton.h"

#include <QEvent>

#include "desktop/look/Icons.h"
#include "desktop/look/Tokens.h"

namespace mirelle::look {

IconButton::IconButton(QStringView icon, QWidget* parent) : QToolButton(parent) {
    setIconSize(QSize(kIcon, kIcon));
    setFixedSize(kIconButton, kIconButton);
    setFocusPolicy(Qt::StrongFocus);
    SetDrawing(icon);
}

void IconButton::SetDrawing(QStringView icon) {
    setIcon(icon.isEmpty() ? QIcon() : MakeIcon(icon));
}

bool IconButton::event(QEvent* event) {
    if (event->type() == QEvent::ToolTipChange) setAccessibleName(toolTip());
    return QToolButton::event(event);
}

} // namespace mirelle::look
