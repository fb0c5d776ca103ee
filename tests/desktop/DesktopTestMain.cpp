// Runs tests that need an application with windows. Without a display they run off screen; the environment
// can ask for a real one, and for a scale factor.
#include "desktop/look/Look.h"

#include <gmock/gmock.h>

#include <QApplication>

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM") && !qEnvironmentVariableIsSet("DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleMock(&argc, argv);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argc, argv);
    mirelle::look::ApplyLook(application);
    return RUN_ALL_TESTS();
}
