// The program: the real desktop, the forms with their handlers, and the windows over them.
#include "app/Sampler.h"
#include "desktop/look/Look.h"
#include "desktop/system/HomeFolder.h"
#include "desktop/system/RealDesktop.h"
#include "desktop/window/MainWindow.h"
#include "desktop/window/ManualWindow.h"
#include "desktop/window/SplashWindow.h"

#include <QApplication>

namespace {

// Where no message bus runs, the toolkit would start one as a program of its own. Nothing here needs a bus.
void StartNoMessageBus() {
    constexpr const char* kAddress = "DBUS_SESSION_BUS_ADDRESS";
    if (!qEnvironmentVariableIsSet(kAddress)) qputenv(kAddress, "disabled:");
}

} // namespace

int main(int argc, char** argv) {
    StartNoMessageBus();
    // Scale factors such as 1.25 count as they are: one canvas pixel is one device pixel.
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argc, argv);
    mirelle::look::ApplyLook(application);
    QApplication::setApplicationName(mirelle::App::Title);
    QApplication::setApplicationVersion(
        QString("%1.%2.%3").arg(mirelle::App::Major).arg(mirelle::App::Minor).arg(mirelle::App::Revision));

    // The windows say when the program ends; between the splash and the main window none may be open.
    QApplication::setQuitOnLastWindowClosed(false);

    mirelle::RealDesktop desktop(mirelle::HomeFolder(application.arguments()));
    mirelle::Sampler sampler(desktop.ThePorts());
    mirelle::SplashWindow splash(sampler.splash, desktop.dialogs);
    sampler.splash.Load();
    QCoreApplication::processEvents(); // the splash is seen while the main window is made
    mirelle::look::ApplyIcon();

    mirelle::MainWindow window(sampler.form);
    mirelle::ManualWindow manual(sampler.manual, sampler.form, window);
    desktop.dialogs.SetParent(&window);
    desktop.screen.SetWindow(&window);
    QObject::connect(&desktop.pump, &mirelle::QtEventPump::Pausing, &window, &mirelle::MainWindow::ShowPause);
    sampler.splash.Finished.Connect([&] {
        sampler.form.Load();
        window.Start();
    });
    return QApplication::exec();
}
