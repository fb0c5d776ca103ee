// The screen that the window stands on, and the window's place in the stack of windows.
#pragma once

#include "forms/ports/Screen.h"

#include <QPointer>
#include <QWidget>

namespace mirelle {

class QtScreen : public Screen {
public:
    // The window it tells of. Before it is there, the primary screen counts and a wish for the top is kept.
    void SetWindow(QWidget* window);

    ScreenSize Size() const override;
    ScreenSize MaximisedClientSize() const override;
    bool SetTopMost(bool topmost) override;

private:
    QPointer<QWidget> window_;
    bool topmost_ = false;
};

} // namespace mirelle
