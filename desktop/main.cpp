// The program: the real desktop, the form with its handlers, and the window over it.
#include "app/Sampler.h"
#include "desktop/look/Look.h"
#include "desktop/system/HomeFolder.h"
#include "desktop/system/RealDesktop.h"
#include "desktop/window/MainWindow.h"

#include <QApplication>

int main(int argc, char** argv) {
    // Scale factors such as 1.25 count as they are: one canvas pixel is one device pixel.
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argc, argv);
    mirelle::look::ApplyLook(application);
    QApplication::setApplicationName(mirelle::App::Title);
    QApplication::setApplicationVersion(
        QString("%1.%2.%3").arg(mirelle::App::Major).arg(mirelle::App::Minor).arg(mirelle::App::Revision));

    mirelle::RealDesktop desktop(mirelle::HomeFolder(application.arguments()));
    mirelle::Sampler sampler(desktop.ThePorts());
    mirelle::MainWindow window(sampler.form);
    desktop.dialogs.SetParent(&window);
    desktop.screen.SetWindow(&window);
    QObject::connect(&desktop.pump, &mirelle::QtEventPump::Pausing, &window, &mirelle::MainWindow::ShowPause);

    sampler.form.Load();
    window.Start();
    return QApplication::exec();
}
