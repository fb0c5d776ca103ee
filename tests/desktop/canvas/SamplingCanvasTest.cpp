// The canvas at every scale factor: what it paints, and what handlers are told of the mouse.
#include "desktop/canvas/SamplingCanvas.h"
#include "desktop/look/Card.h"
#include "tests/desktop/Mouse.h"
#include "tests/desktop/Pixels.h"
#include "tests/support/Patterns.h"
#include "tests/support/TestPictures.h"
#include "tests/support/TestProgram.h"

#include <gmock/gmock.h>

#include <QMouseEvent>
#include <QPaintEvent>

namespace mirelle::test {
namespace {

using testing::HasSubstr;

struct SamplingCanvasTest : testing::Test {
    SamplingCanvasTest() {
        window.resize(640, 480);
        canvas.setGeometry(0, 0, 640, 480);
        const QSize size = DeviceSize(canvas);
        form.UserWindow(kWindowNormal, {size.width(), size.height()});
        window.show();
        QCoreApplication::processEvents();
    }

    void Open(const Picture& picture) {
        form.PicImage.Picture = picture;
        form.Picture = picture;
        QCoreApplication::processEvents();
    }

    // A change is shown in one turn of the event loop and painted in a later one.
    static void LetItPaint() {
        for (int turn = 0; turn < 5; ++turn)
            QCoreApplication::processEvents();
    }

    TestProgram program;
    FrmPicX& form = program.form;
    QWidget window;
    SamplingCanvas canvas{form, &window};
    Mouse mouse{canvas};
};

TEST_F(SamplingCanvasTest, PaintsOneCanvasPixelToOneDevicePixel) {
    const Picture noise(NoiseBitmap(333, 257, 1));
    Open(noise);
    const QImage painted = Painted(canvas);
    EXPECT_EQ(Differing(painted, {0, 0}, noise.Pixels()), 0) << "also whatever the fourth byte is";
    EXPECT_EQ(PixelAt(painted, 333, 100), PixelOf(form.BackColor)) << "beside the picture";
    EXPECT_EQ(PixelAt(painted, 100, 257), PixelOf(form.BackColor));
}

TEST_F(SamplingCanvasTest, CutsAPictureThatIsLargerThanTheWindow) {
    const Picture noise(NoiseBitmap(2000, 1500, 2));
    Open(noise);
    EXPECT_EQ(Differing(Painted(canvas), {0, 0}, noise.Pixels()), 0);
}

TEST_F(SamplingCanvasTest, PaintsJustWhatIsExposedExactly) {
    const Picture noise(NoiseBitmap(400, 300, 3));
    Open(noise);
    QImage painted(DeviceSize(canvas), QImage::Format_RGB32);
    painted.setDevicePixelRatio(canvas.devicePixelRatioF());
    painted.fill(Qt::magenta);
    canvas.render(&painted, QPoint(7, 9), QRegion(7, 9, 50, 40), QWidget::RenderFlags());
    painted.setDevicePixelRatio(1);
    const QPoint inside(qRound(20 * canvas.devicePixelRatioF()), qRound(20 * canvas.devicePixelRatioF()));
    EXPECT_EQ(PixelAt(painted, inside.x(), inside.y()), Opaque(noise.Pixels().At(inside.x(), inside.y())));
}

TEST_F(SamplingCanvasTest, ShowsWhatAHandlerPaintsAfterThePictureWasShown) {
    Open(ChartPicture(300, 200));
    Painted(canvas);
    form.Paint().At(10, 20) = {1, 2, 3, 0};
    QCoreApplication::processEvents();
    EXPECT_EQ(PixelAt(Painted(canvas), 10, 20), (Pixel{1, 2, 3, 0}));
}

// A card that notes what of it is painted.
struct NotingCard : look::Card {
    using Card::Card;
    void paintEvent(QPaintEvent* event) override {
        painted += event->region();
        Card::paintEvent(event);
    }
    QRegion painted;
};

TEST_F(SamplingCanvasTest, ANewPicturePaintsNothingOfACardOverItButTheCorners) {
    NotingCard card({}, &window);
    card.setGeometry(40, 40, 200, 100);
    card.show();
    LetItPaint();
    card.painted = {};
    Open(ChartPicture(640, 480));
    LetItPaint();
    EXPECT_FALSE(card.painted.intersects(QRect(0, 20, 200, 60)));
    EXPECT_TRUE(card.painted.contains(QPoint(1, 1)));
    card.hide();
    LetItPaint();
    EXPECT_EQ(PixelAt(Painted(canvas), 140, 90), Chart(640, 480).At(140, 90)) << "beneath it";
}

TEST_F(SamplingCanvasTest, ADragCropsItsVeryPixels) {
    Open(ChartPicture(400, 300));
    mouse.Drag({101, 51}, {302, 122});
    const Picture material = form.picSmall.Image();
    ASSERT_EQ(material.Width(), 201);
    ASSERT_EQ(material.Height(), 71);
    const Bitmap chart = Chart(400, 300);
    for (int y = 0; y < 71; ++y) {
        for (int x = 0; x < 201; ++x)
            ASSERT_EQ(material.Pixels().At(x, y), chart.At(101 + x, 51 + y)) << x << ", " << y;
    }
}

TEST_F(SamplingCanvasTest, ACheckerboardOfSinglePixelsComesOutPixelForPixel) {
    Bitmap board(300, 200);
    for (int y = 0; y < 200; ++y) {
        for (int x = 0; x < 300; ++x)
            board.At(x, y) = (x + y) % 2 ? Pixel{255, 255, 255, 0} : Pixel{};
    }
    Open(Picture(std::move(board)));
    mouse.Drag({31, 17}, {131, 97});
    const Picture material = form.picSmall.Image();
    for (int y = 0; y < material.Height(); ++y) {
        for (int x = 0; x < material.Width(); ++x)
            ASSERT_EQ(material.Pixels().At(x, y).red, (31 + x + 17 + y) % 2 ? 255 : 0);
    }
}

TEST_F(SamplingCanvasTest, HandlersAreToldEveryPixelByItsOwnNumber) {
    std::vector<std::pair<float, float>> told;
    form.MouseMove.Connect([&](const MouseArgs& args) { told.emplace_back(args.x, args.y); });
    std::vector<std::pair<float, float>> moved;
    for (int pixel = 0; pixel < 40; ++pixel) {
        mouse.Move({100 + pixel, 60 + 2 * pixel});
        moved.emplace_back(100 + pixel, 60 + 2 * pixel);
    }
    EXPECT_EQ(told, moved);
}

TEST_F(SamplingCanvasTest, PositionsAreInTheFormsScale) {
    form.SetScaleWidth(static_cast<float>(form.ClientWidth()) / 2);
    float told = -1;
    form.MouseMove.Connect([&](const MouseArgs& args) { told = args.x; });
    mouse.Move({100, 10});
    EXPECT_FLOAT_EQ(told, 50);
}

TEST_F(SamplingCanvasTest, TheRightButtonEndsACrop) {
    Open(ChartPicture(400, 300));
    mouse.Press({10, 10});
    mouse.Press({20, 20}, Qt::RightButton);
    ASSERT_EQ(program.desktop.dialogs.messages.size(), 1U);
    EXPECT_THAT(program.desktop.dialogs.messages[0].text, HasSubstr("Exiting Crop"));
    EXPECT_FALSE(form.Shape1.Visible);
}

TEST_F(SamplingCanvasTest, AReleaseThatGotLostIsMadeGoodByTheNextMove) {
    Open(ChartPicture(400, 300));
    mouse.Press({10, 10});
    int releases = 0;
    form.MouseUp.Connect([&](const MouseArgs&) { ++releases; });
    Mouse(canvas).Move({50, 50}); // no button is held any more
    EXPECT_EQ(releases, 1);
}

TEST_F(SamplingCanvasTest, HairlinesAreOneDevicePixelWide) {
    Open(ChartPicture(400, 300));
    form.Shape1.Move(20, 30, 50, 40);
    form.Shape1.BorderColor = 0x00FFFF;
    form.Shape1.Visible = true;
    QCoreApplication::processEvents();
    const QImage painted = Painted(canvas);
    const Bitmap chart = Chart(400, 300);
    const Pixel yellow{0, 255, 255, 0};
    for (int y = 25; y < 75; ++y) {
        for (int x = 15; x < 75; ++x) {
            const bool inside = x >= 20 && x <= 69 && y >= 30 && y <= 69;
            const bool edge = inside && (x == 20 || x == 69 || y == 30 || y == 69);
            ASSERT_EQ(PixelAt(painted, x, y), edge ? yellow : chart.At(x, y)) << x << ", " << y;
        }
    }
}

TEST_F(SamplingCanvasTest, AHairlineThatMovesLeavesNothingBehind) {
    Open(ChartPicture(400, 300));
    form.Shape1.Visible = true;
    LetItPaint();
    for (const int left : {10, 33, 57}) {
        form.Shape1.Move(static_cast<float>(left), 20, 60, 50);
        LetItPaint();
    }
    form.Shape1.Visible = false;
    LetItPaint();
    // The window's own store: only what was asked for has been painted anew in it.
    const QImage stored = canvas.screen()->grabWindow(window.winId()).toImage();
    if (stored.isNull()) GTEST_SKIP() << "this platform keeps no picture of the screen";
    EXPECT_EQ(Differing(stored, {0, 0}, Chart(400, 300)), 0);
}

TEST_F(SamplingCanvasTest, SaysWhatToDoOnlyWhileThereIsNoPicture) {
    EXPECT_EQ(SamplingCanvas::HintOf(form), "Paste or select file to open image to sampling canvas");
    const QImage without = Painted(canvas);
    int written = 0;
    for (int y = 0; y < without.height(); ++y) {
        for (int x = 0; x < without.width(); ++x)
            written += PixelAt(without, x, y) != PixelOf(form.BackColor) ? 1 : 0;
    }
    EXPECT_GT(written, 0);
    Open(Picture(NoiseBitmap(2000, 1500, 4)));
    EXPECT_EQ(Differing(Painted(canvas), {0, 0}, form.Picture().Pixels()), 0);
}

TEST_F(SamplingCanvasTest, ShowsThePointerThatTheFormAsksFor) {
    form.MousePointer = kPointerSizeAll;
    QCoreApplication::processEvents();
    EXPECT_EQ(canvas.cursor().shape(), Qt::SizeAllCursor);
    form.MousePointer = kPointerDefault;
    QCoreApplication::processEvents();
    EXPECT_EQ(canvas.cursor().shape(), Qt::CrossCursor);
}

TEST_F(SamplingCanvasTest, AnIdleMoveThatIsToldFromBesideTheWindowCountsForNothing) {
    form.Caption = "before";
    QMouseEvent beside(QEvent::MouseMove, {-1, -1}, {-1, -1}, {-1, -1}, Qt::NoButton, Qt::NoButton, {});
    QCoreApplication::sendEvent(&canvas, &beside);
    EXPECT_EQ(form.Caption(), "before");
    mouse.Move({30, 20});
    EXPECT_NE(form.Caption(), "before");
}

} // namespace
} // namespace mirelle::test
