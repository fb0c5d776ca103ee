// The console window and the shell object that types into it, on an X desktop.
#pragma once

#include "forms/ports/Shell.h"

namespace mirelle {

class X11Console : public ConsoleShell {
public:
    // The display that DISPLAY names. Where there is none, or it can't be typed on (XTEST, XKB or XInput are
    // missing), no window is ever found and no shell object made.
    X11Console();
    ~X11Console() override;

    void AppActivate(const std::string& title) override;
    std::unique_ptr<ShellObject> CreateObject(const std::string& className) override;

private:
    struct Desktop;
    std::shared_ptr<Desktop> desktop_;
};

} // namespace mirelle
