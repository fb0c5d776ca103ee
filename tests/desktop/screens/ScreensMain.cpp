// Runs tests on one screen off screen: MIRELLE_SCREEN tells its size in pixels, QT_SCALE_FACTOR its scale.
#include "desktop/look/Look.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

namespace {

// Qt's off-screen platform takes its screens from a file.
QByteArray ScreensFile(const QString& file, const QStringList& size) {
    QFile screens(file);
    if (size.size() == 2 && screens.open(QIODevice::WriteOnly)) {
        screens.write(QString(R"({"synchronousWindowSystemEvents": false, "windowFrameMargins": false,
            "screens": [{"name": "screen", "x": 0, "y": 0, "width": %1, "height": %2,
            "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})")
                          .arg(size[0], size[1])
                          .toUtf8());
    }
    return "offscreen:configfile=" + file.toUtf8();
}

} // namespace

int main(int argc, char** argv) {
    testing::InitGoogleMock(&argc, argv);
    const QTemporaryDir folder;
    const QString size = qEnvironmentVariable("MIRELLE_SCREEN", "1024x700");
    qputenv("QT_QPA_PLATFORM", ScreensFile(folder.filePath("screens.json"), size.split('x')));
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argc, argv);
    mirelle::look::ApplyLook(application);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
