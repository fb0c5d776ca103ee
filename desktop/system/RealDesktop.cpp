#include "desktop/system/RealDesktop.h"

#include "desktop/pictures/ImageFileLoader.h"
#include "desktop/system/NoConsole.h"
#include "desktop/system/WindowKeyboard.h"
#ifdef MIRELLE_X11_KEYS
#include "desktop/x11/X11Console.h"
#include "desktop/x11/X11Keyboard.h"
#endif

#include <QDir>
#include <QFile>
#include <QGuiApplication>

namespace mirelle {
namespace {

std::string DumpFile() {
    return QFile::encodeName(QDir::temp().filePath("komp.txt")).toStdString();
}

// No encoder of the platform's own: such a save leaves nothing behind.
struct NoEncoders : ImageEncoders {
    void Start() override {}
    void Stop() override {}
    bool Save(const Picture&, ImageFormat, const std::string&) override { return false; }
};

std::unique_ptr<ConsoleShell> MakeConsole() {
#ifdef MIRELLE_X11_KEYS
    return std::make_unique<X11Console>();
#else
    return std::make_unique<NoConsole>();
#endif
}

std::unique_ptr<Keyboard> MakeKeyboard() {
#ifdef MIRELLE_X11_KEYS
    // Where our windows are another system's, X sees nothing of the keys that go to them.
    if (QGuiApplication::platformName() == "xcb") return std::make_unique<X11Keyboard>();
#endif
    return std::make_unique<WindowKeyboard>(qApp);
}

} // namespace

RealDesktop::RealDesktop(const std::string& home)
    : files_(home, DumpFile()), loader_(std::make_unique<ImageFileLoader>(files_)),
      encoders_(std::make_unique<NoEncoders>()), console_(MakeConsole()), keyboard_(MakeKeyboard()) {}

RealDesktop::~RealDesktop() = default;

Ports RealDesktop::ThePorts() {
    return {clipboard_, dialogs,   files_,  *loader_, *encoders_, pump,
            *keyboard_, *console_, viewer_, screen,   process_};
}

} // namespace mirelle
