// The tests of the look need an application with fonts and a style, but no display.
#include <gmock/gmock.h>
#include <QApplication>

#include "desktop/look/Look.h"

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleMock(&argc, argv);
    QApplication application(argc, argv);
    mirelle::look::ApplyLook(application);
    return RUN_ALL_TESTS();
}
