// The program's desktop types into other windows, and sees keys that go to them, while its own window is
// Qt's.
#include "desktop/system/RealDesktop.h"
#include "tests/desktop/x11/ConsoleProcess.h"
#include "tests/support/ErrorOf.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>
#include <QWidget>

#include <chrono>
#include <string>

namespace mirelle::test {
namespace {

TEST(RealDesktop, TypesIntoTheConsoleAndSeesItsEscape) {
    const QTemporaryDir home;
    RealDesktop desktop(home.path().toStdString());
    const Ports ports = desktop.ThePorts();
    QWidget window;
    window.setWindowTitle("Ours");
    window.show();
    ConsoleProcess console("Ruby Console");

    // The window manager announces a new window a little later.
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (ErrorOf([&] { ports.console.AppActivate("Ruby Console"); }))
        ASSERT_LT(std::chrono::steady_clock::now(), deadline);
    EXPECT_FALSE(ports.keyboard.EscapeWentDown());
    auto shell = ports.console.CreateObject("WScript.Shell");
    shell->SendKeys("pt1 = [1,1,0]\ré{ESC}");
    shell.reset();
    EXPECT_EQ(console.TakeRecord(), "pt1 = [1,1,0]\ré\x1b");
    EXPECT_TRUE(ports.keyboard.EscapeWentDown());
    EXPECT_FALSE(ports.keyboard.EscapeWentDown());
}

TEST(RealDesktop, DumpsIntoTheFolderForTemporaryFiles) {
    const QTemporaryDir home;
    const std::string folder = home.path().toStdString();
    const QByteArray before = qgetenv("TMPDIR");
    for (const std::string& place : {folder, std::string("/tmp")}) {
        qputenv("TMPDIR", place.c_str());
        RealDesktop desktop(folder);
        EXPECT_EQ(desktop.ThePorts().files.DumpFile(), place + "/komp.txt");
    }
    qputenv("TMPDIR", before);
}

} // namespace
} // namespace mirelle::test

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
