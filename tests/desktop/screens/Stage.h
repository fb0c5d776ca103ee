// The program in its windows over the starter library, for pictures of the screen: the same disk, the same
// pictures and the same screen at every run.
#pragma once

#include "desktop/pictures/ImageFileLoader.h"
#include "desktop/window/MainWindow.h"
#include "desktop/window/ManualWindow.h"
#include "desktop/window/SplashWindow.h"
#include "tests/support/TestProgram.h"

#include <QImage>

#include <memory>

namespace mirelle::test {

class Stage {
public:
    // A window as large as the screen has room for.
    Stage();
    ~Stage();

    FrmPicX& Form() { return sampler_.form; }
    ScriptedDesktop& Desktop() { return desktop_; }
    MainWindow& Window() { return *window_; }
    QWidget* Find(const char* name) { return window_->findChild<QWidget*>(name); }

    // The windows of the program's start; made when they are first asked for.
    SplashWindow& TheSplashWindow();
    Splash& TheSplash() { return splash_; }
    ManualWindow& TheManual();

    // Puts a grab of another program on the clipboard: larger than any of the windows.
    void GrabSomething();
    // Files of other names beside the starter library's, each with the same picture.
    void AddFiles(const std::string& folder, int count, const std::string& stem);
    // Until nothing more wants to be shown or placed.
    static void Settle();

private:
    void MirrorLibrary();

    MemoryFileSystem files_;
    ImageFileLoader loader_{files_};
    ScriptedEncoders encoders_;
    ScriptedDesktop desktop_;
    Sampler sampler_{desktop_.PortsOver(files_, loader_, encoders_)};
    std::unique_ptr<MainWindow> window_;
    Splash splash_{desktop_.screen, desktop_.time, desktop_.process};
    std::unique_ptr<SplashWindow> splashWindow_;
    std::unique_ptr<ManualWindow> manual_;
};

// The folder of the library that one comes to by a jump.
constexpr const char* kMaterials = "C:\\Mirelle\\Support\\Materials\\";

} // namespace mirelle::test
