// A user's work in the real window, over and over: memory must not grow.
#include "desktop/canvas/SamplingCanvas.h"
#include "desktop/look/Look.h"
#include "desktop/system/QtClipboard.h"
#include "desktop/window/MainWindow.h"
#include "tests/desktop/faults/DiskProgram.h"
#include "tests/desktop/Mouse.h"
#include "tests/support/HeapInUse.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QClipboard>
#include <QImage>

#include <array>

namespace mirelle::test {
namespace {

struct WindowAtWork : testing::Test {
    WindowAtWork() {
        window.resize(1100, 780);
        window.Start();
    }
    // Another picture each round, so that it is fetched and drawn anew.
    void Grab(int round) {
        QImage picture(640, 480, QImage::Format_RGB32);
        picture.fill(QColor::fromHsv(round % 360, 200, 200));
        QGuiApplication::clipboard()->setImage(picture);
        QCoreApplication::processEvents();
    }
    // Pastes, crops with the mouse, saves over a former sample and chooses a file of the library.
    void WorkOnce(int round) {
        constexpr std::array kPatterns = {"*.jpg", "*.bmp", "*.png", "*.tif", "*.gif"};
        constexpr int kNames = 20;
        if (round % kNames == 0) {
            form.cmdResetfCnt.UserClick();
            program.ShowPattern(kPatterns[static_cast<std::size_t>(round / kNames) % kPatterns.size()]);
        }
        Grab(round);
        form.Command5.UserClick();
        const int edge = 20 + round % 20;
        Mouse(window.Canvas()).Drag({edge, 30}, {edge + 60, 90});
        program.desktop.dialogs.messageAnswers = {MessageAnswer::Yes};
        form.Command3.UserClick();
        program.desktop.dialogs.messages.clear();
        form.File5.SetListIndex(round % form.File5.ListCount());
        QCoreApplication::processEvents();
    }

    QtClipboard clipboard;
    DiskProgram program{&clipboard};
    FrmPicX& form = program.form;
    MainWindow window{form};
};

TEST_F(WindowAtWork, NeedsNoMoreMemoryFromRoundToRound) {
    constexpr int kRounds = 400;
    constexpr int kFirstRounds = 100; // every format, and every name of it
    std::size_t heapAtFirst = 0;
    for (int round = 0; round < kRounds; ++round) {
        if (round == kFirstRounds) heapAtFirst = HeapInUse();
        WorkOnce(round);
    }
    EXPECT_EQ(form.PicImage.Picture().Width(), form.picSmall.Picture().Width()); // the chosen file is shown
    EXPECT_GT(form.File5.ListCount(), 1);
    EXPECT_LT(HeapInUse(), heapAtFirst + (std::size_t{2} << 20));
}

} // namespace
} // namespace mirelle::test

int main(int argc, char** argv) {
    testing::InitGoogleMock(&argc, argv);
    QApplication application(argc, argv);
    mirelle::look::ApplyLook(application);
    return RUN_ALL_TESTS();
}
