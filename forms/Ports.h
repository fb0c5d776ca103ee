// Everything that the program asks of the desktop, in one bundle. The window fills it with the real desktop,
// the session driver and the tests with scripted stand-ins.
#pragma once

#include "forms/ports/Clipboard.h"
#include "forms/ports/Dialogs.h"
#include "forms/ports/FileSystem.h"
#include "forms/ports/Pictures.h"
#include "forms/ports/Process.h"
#include "forms/ports/Screen.h"
#include "forms/ports/Shell.h"
#include "forms/ports/Time.h"

namespace mirelle {

struct Ports {
    Clipboard& clipboard;
    Dialogs& dialogs;
    FileSystem& files;
    PictureLoader& loader;
    ImageEncoders& encoders;
    EventPump& pump;
    Keyboard& keyboard;
    ConsoleShell& console;
    SystemViewer& viewer;
    Screen& screen;
    Process& process;
};

} // namespace mirelle
