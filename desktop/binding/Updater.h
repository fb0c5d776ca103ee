// Brings a widget in step with what it shows, once for each turn of the event loop however often the control
// changed in it. Nothing is shown in the middle of a handler, so showing can never run a handler again.
#pragma once

#include "forms/Property.h"

#include <QObject>

#include <functional>

namespace mirelle {

class Updater : public QObject {
    Q_OBJECT

public:
    // `show` runs now, and after every change of a watched thing as long as `owner` lives.
    Updater(QObject* owner, std::function<void()> show);

    void Watch(Watched& source);
    void MarkDirty();
    // Shows at once what waits to be shown.
    void Flush();

private:
    std::function<void()> show_;
    bool dirty_ = false;
};

// The usual case: one source, one owner.
Updater* ShowWhenChanged(Watched& source, QObject* owner, std::function<void()> show);

} // namespace mirelle
