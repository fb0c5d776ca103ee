// The Escape key as the program's own windows see it: where the system lets nobody look at keys that go
// elsewhere.
#pragma once

#include "forms/ports/Time.h"

#include <QObject>

namespace mirelle {

class WindowKeyboard : public QObject, public Keyboard {
    Q_OBJECT

public:
    // Looks at all keys of the application.
    explicit WindowKeyboard(QObject* application);

    bool EscapeWentDown() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool wentDown_ = false;
};

} // namespace mirelle
