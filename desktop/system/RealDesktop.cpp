#include "desktop/system/RealDesktop.h"

#include "desktop/encoders/FileEncoders.h"
#include "desktop/pictures/ImageFileLoader.h"
#include "desktop/system/QtClipboard.h"
#include "desktop/system/QtProcess.h"
#include "desktop/system/QtViewer.h"
#ifdef MIRELLE_X11
#include "desktop/x11/X11Console.h"
#include "desktop/x11/X11Keyboard.h"
#endif
#include "desktop/system/NoConsole.h"
#include "desktop/system/WindowKeyboard.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QGuiApplication>

namespace mirelle {
namespace {

std::string DumpFile() {
    return QFile::encodeName(QDir::temp().filePath("komp.txt")).toStdString();
}

// Whether the program's own windows are X11's. Where they are not, a display that can be reached all the same
// is another one than the user looks at.
bool IsOnX11() {
#ifdef MIRELLE_X11
    return QGuiApplication::platformName() == "xcb";
#else
    return false;
#endif
}

std::unique_ptr<ConsoleShell> MakeConsole() {
#ifdef MIRELLE_X11
    if (IsOnX11()) return std::make_unique<X11Console>();
#endif
    return std::make_unique<NoConsole>();
}

std::unique_ptr<Keyboard> MakeKeyboard() {
#ifdef MIRELLE_X11
    if (IsOnX11()) return std::make_unique<X11Keyboard>();
#endif
    return std::make_unique<WindowKeyboard>(qApp);
}

} // namespace

RealDesktop::RealDesktop(const std::string& home)
    : files_(home, DumpFile()), process_(std::make_unique<QtProcess>()) {}

RealDesktop::~RealDesktop() = default;

void RealDesktop::MakeTheRest() {
    loader_ = std::make_unique<ImageFileLoader>(files_);
    encoders_ = std::make_unique<FileEncoders>(files_);
    clipboard_ = std::make_unique<QtClipboard>();
    viewer_ = std::make_unique<QtViewer>();
    console_ = MakeConsole();
    keyboard_ = MakeKeyboard();
}

Ports RealDesktop::ThePorts() {
    if (!keyboard_) MakeTheRest();
    return {*clipboard_, dialogs,   files_,   *loader_, *encoders_, pump,
            *keyboard_,  *console_, *viewer_, screen,   *process_};
}

} // namespace mirelle
