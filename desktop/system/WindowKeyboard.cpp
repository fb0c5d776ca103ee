#include "desktop/system/WindowKeyboard.h"

#include <QKeyEvent>

#include <utility>

namespace mirelle {

WindowKeyboard::WindowKeyboard(QObject* application) {
    application->installEventFilter(this);
}

bool WindowKeyboard::EscapeWentDown() {
    return std::exchange(wentDown_, false);
}

bool WindowKeyboard::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        if (key.key() == Qt::Key_Escape && !key.isAutoRepeat()) wentDown_ = true;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace mirelle
