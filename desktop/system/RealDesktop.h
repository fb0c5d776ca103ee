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
    // `home` is the folder that holds Support. Made in no time: the splash waits for it.
    explicit RealDesktop(const std::string& home);
    ~RealDesktop();

    // All of them. Those that the splash can do without are made at the first call; they connect to the
    // display, which takes a while.
    Ports ThePorts();
    Process& OwnProcess() { return *process_; }

    QtDialogs dialogs;
    QtScreen screen;
    QtEventPump pump;

private:
    void MakeTheRest();

    NativeFileSystem files_;
    std::unique_ptr<Clipboard> clipboard_;
    std::unique_ptr<Process> process_;
    std::unique_ptr<PictureLoader> loader_;
    std::unique_ptr<ImageEncoders> encoders_;
    std::unique_ptr<SystemViewer> viewer_;
    std::unique_ptr<ConsoleShell> console_;
    std::unique_ptr<Keyboard> keyboard_;
};

} // namespace mirelle
