// The program: the real desktop, the forms with their handlers, and the windows over them.
#include "app/Sampler.h"
#include "app/Splash.h"
#include "desktop/look/FontsAhead.h"
#include "desktop/look/Look.h"
#include "desktop/system/HomeFolder.h"
#include "desktop/system/RealDesktop.h"
#include "desktop/window/MainWindow.h"
#include "desktop/window/ManualWindow.h"
#include "desktop/window/SplashWindow.h"

#include <QApplication>

#include <memory>

namespace {

// Where no message bus runs, the toolkit would start one as a program of its own. Nothing here needs a bus.
void StartNoMessageBus() {
    constexpr const char* kAddress = "DBUS_SESSION_BUS_ADDRESS";
    if (!qEnvironmentVariableIsSet(kAddress)) qputenv(kAddress, "disabled:");
}

// What comes after the splash: the forms, and the windows over them.
struct Workplace {
    explicit Workplace(mirelle::RealDesktop& desktop) : sampler(desktop.ThePorts()) {
        desktop.dialogs.SetParent(&window);
        desktop.screen.SetWindow(&window);
        QObject::connect(&desktop.pump, &mirelle::QtEventPump::Pausing, &window,
                         &mirelle::MainWindow::ShowPause);
    }
    void Open() {
        sampler.form.Load();
        window.Start();
    }

    mirelle::Sampler sampler;
    mirelle::MainWindow window{sampler.form};
    mirelle::ManualWindow manual{sampler.manual, sampler.form, window};
};

} // namespace

int main(int argc, char** argv) {
    StartNoMessageBus();
    const std::future<void> fonts = mirelle::look::ReadFontsAhead();
    // Scale factors such as 1.25 count as they are: one canvas pixel is one device pixel.
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argc, argv);
    fonts.wait();
    mirelle::look::ApplyLook(application);
    QApplication::setApplicationName(mirelle::App::Title);
    QApplication::setApplicationVersion(
        QString("%1.%2.%3").arg(mirelle::App::Major).arg(mirelle::App::Minor).arg(mirelle::App::Revision));

    // The windows say when the program ends; between the splash and the main window none may be open.
    QApplication::setQuitOnLastWindowClosed(false);

    mirelle::RealDesktop desktop(mirelle::HomeFolder(application.arguments()));
    std::unique_ptr<Workplace> workplace;
    const auto makeWorkplace = [&] {
        if (workplace) return;
        mirelle::look::ApplyIcon();
        workplace = std::make_unique<Workplace>(desktop);
    };
    mirelle::Splash splash(desktop.screen, desktop.pump, desktop.OwnProcess());
    splash.Load();
    mirelle::SplashWindow splashWindow(splash, desktop.dialogs);
    // The rest is made behind the splash, which may end unseen: on another workspace it is not painted.
    QObject::connect(&splashWindow, &mirelle::SplashWindow::Seen, &splashWindow, makeWorkplace);
    splash.Finished.Connect([&] {
        makeWorkplace();
        workplace->Open();
    });
    return QApplication::exec();
}
