#include "desktop/system/RealDesktop.h"

#include "desktop/pictures/ImageFileLoader.h"
#include "desktop/system/NoConsole.h"
#include "desktop/system/WindowKeyboard.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

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

} // namespace

RealDesktop::RealDesktop(const std::string& home)
    : files_(home, DumpFile()), loader_(std::make_unique<ImageFileLoader>(files_)),
      encoders_(std::make_unique<NoEncoders>()), console_(std::make_unique<NoConsole>()),
      keyboard_(std::make_unique<WindowKeyboard>(qApp)) {}

RealDesktop::~RealDesktop() = default;

Ports RealDesktop::ThePorts() {
    return {clipboard_, dialogs,   files_,  *loader_, *encoders_, pump,
            *keyboard_, *console_, viewer_, screen,   process_};
}

} // namespace mirelle
