#include "desktop/binding/Updater.h"

#include <QMetaObject>
#include <QPointer>

#include <utility>

namespace mirelle {

Updater::Updater(QObject* owner, std::function<void()> show) : QObject(owner), show_(std::move(show)) {
    show_();
}

void Updater::Watch(Watched& source) {
    // The source may outlive the widget.
    source.Watch([self = QPointer<Updater>(this)] {
        if (self) self->MarkDirty();
    });
}

void Updater::MarkDirty() {
    if (std::exchange(dirty_, true)) return;
    QMetaObject::invokeMethod(this, &Updater::Flush, Qt::QueuedConnection);
}

void Updater::Flush() {
    if (std::exchange(dirty_, false)) show_();
}

Updater* ShowWhenChanged(Watched& source, QObject* owner, std::function<void()> show) {
    auto* updater = new Updater(owner, std::move(show));
    updater->Watch(source);
    return updater;
}

} // namespace mirelle
