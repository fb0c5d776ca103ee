// The whole real desktop in one place: every port in its real form.
#pragma once

#include "desktop/files/NativeFileSystem.h"
#include "desktop/system/QtDialogs.h"
#include "desktop/system/QtEventPump.h"
#include "desktop/system/QtScreen.h"
#include "forms/Ports.h"

#include <memory>
#include <string>

namespace mirelle {

class RealDesktop {
public:
    // `home` is the folder that holds Support.
    explicit RealDesktop(const std::string& home);
    ~RealDesktop();

    Ports ThePorts();

    QtDialogs dialogs;
    QtScreen screen;
    QtEventPump pump;

private:
    NativeFileSystem files_;
    std::unique_ptr<PictureLoader> loader_;
    std::unique_ptr<ImageEncoders> encoders_;
    std::unique_ptr<Clipboard> clipboard_;
    std::unique_ptr<Process> process_;
    std::unique_ptr<SystemViewer> viewer_;
    std::unique_ptr<ConsoleShell> console_;
    std::unique_ptr<Keyboard> keyboard_;
};

} // namespace mirelle
