// The Material Image in its view, at a place where the scale factor leaves fractions of pixels.
#include "desktop/canvas/MaterialView.h"
#include "desktop/canvas/FittedView.h"
#include "tests/desktop/Mouse.h"
#include "tests/desktop/Pixels.h"
#include "tests/support/Patterns.h"
#include "tests/support/TestPictures.h"
#include "tests/support/TestProgram.h"

#include <gmock/gmock.h>

#include <QMouseEvent>

namespace mirelle::test {
namespace {

using testing::ElementsAre;
using testing::Pair;

struct MaterialViewTest : testing::Test {
    MaterialViewTest() {
        window.resize(400, 300);
        view.setGeometry(13, 7, 160, 120);
        window.show();
        QCoreApplication::processEvents();
    }

    TestProgram program;
    FrmPicX& form = program.form;
    QWidget window;
    MaterialView view{form, &window};
    Mouse mouse{view};
};

TEST_F(MaterialViewTest, PaintsOnePixelToOneDevicePixel) {
    form.picSmall.Picture = Picture(NoiseBitmap(90, 60, 5));
    QCoreApplication::processEvents();
    EXPECT_EQ(Differing(Painted(view), {0, 0}, form.picSmall.Picture().Pixels()), 0);
}

TEST_F(MaterialViewTest, TheScrollBarsMoveItByWholePixels) {
    form.picSmall.Picture = ChartPicture(900, 700);
    form.HSImage.Value = 37;
    form.VSImage.Value = 11;
    QCoreApplication::processEvents();
    const QImage painted = Painted(view);
    const Bitmap chart = Chart(900, 700);
    for (const QPoint pixel : {QPoint(0, 0), QPoint(50, 40), QPoint(150, 100)})
        EXPECT_EQ(PixelAt(painted, pixel.x(), pixel.y()), chart.At(37 + pixel.x(), 11 + pixel.y()));
}

TEST_F(MaterialViewTest, TheMouseTellsTheMaterialsOwnPixel) {
    form.picSmall.Picture = ChartPicture(900, 700);
    form.HSImage.Value = 37;
    form.VSImage.Value = 11;
    QCoreApplication::processEvents();
    std::vector<std::pair<float, float>> told;
    form.picSmall.MouseMove.Connect([&](const MouseArgs& args) { told.emplace_back(args.x, args.y); });
    mouse.Move({5, 6});
    mouse.Move({21, 33});
    EXPECT_THAT(told, ElementsAre(Pair(42, 17), Pair(58, 44)));
}

TEST_F(MaterialViewTest, APressSamplesTheColourUnderThePointer) {
    form.FramePics.Visible = true;
    form.picSmall.Picture = ChartPicture(200, 200, 9);
    QCoreApplication::processEvents();
    mouse.Press({77, 31});
    mouse.Release({77, 31});
    EXPECT_EQ(form.Frame2.BackColor, RGB(9, 31, 77));
}

TEST_F(MaterialViewTest, BesideTheMaterialTheBackgroundIsMeant) {
    form.picSmall.Picture = ChartPicture(40, 30);
    QCoreApplication::processEvents();
    int onMaterial = 0;
    int onGround = 0;
    form.picSmall.MouseMove.Connect([&](const MouseArgs&) { ++onMaterial; });
    form.PicScroll.MouseMove.Connect([&](const MouseArgs&) { ++onGround; });
    mouse.Move({39, 29});
    mouse.Move({40, 29});
    mouse.Move({39, 30});
    EXPECT_EQ(onMaterial, 1);
    EXPECT_EQ(onGround, 2);
}

TEST_F(MaterialViewTest, HidingTheMaterialShowsTheBackground) {
    form.picSmall.Picture = ChartPicture(200, 200);
    form.PicScroll.BackColor = 0x112233;
    form.picSmall.Visible = false;
    QCoreApplication::processEvents();
    EXPECT_EQ(PixelAt(Painted(view), 5, 5), PixelOf(0x112233));
}

std::optional<QPoint> PixelUnder(const FittedView& view, QPointF place) {
    const QPointF inWindow = view.mapTo(view.window(), place);
    return view.PixelAt(
        QMouseEvent(QEvent::MouseMove, place, inWindow, inWindow, Qt::NoButton, Qt::NoButton, {}));
}

struct FittedViewTest : testing::Test {
    FittedViewTest() {
        window.resize(300, 300);
        window.show();
    }
    void Show(const Picture& picture, QSize size) {
        view->setGeometry(QRect(QPoint(), size));
        form.Picture2.Picture = picture;
        QCoreApplication::processEvents();
    }

    TestProgram program;
    FrmPicX& form = program.form;
    QWidget window;
    FittedView* view = FittedView::Of(form.Picture2, &window);
};

TEST_F(FittedViewTest, KeepsProportionsAndTellsThePicturesOwnPixels) {
    Show(ChartPicture(1000, 500), {100, 100});
    const auto middle = PixelUnder(*view, {50, 50});
    ASSERT_TRUE(middle);
    EXPECT_NEAR(middle->x(), 500, 10);
    EXPECT_NEAR(middle->y(), 250, 10);
    EXPECT_FALSE(PixelUnder(*view, {50, 5})) << "above the picture";
    view->SetFilling(true);
    EXPECT_TRUE(PixelUnder(*view, {50, 5}));
}

TEST_F(FittedViewTest, APictureThatFitsIsShownAsItIs) {
    Show(Picture(NoiseBitmap(80, 80, 6)), {200, 200});
    const QSize room = DeviceSize(*view);
    EXPECT_EQ(Differing(Painted(*view), {(room.width() - 80) / 2, (room.height() - 80) / 2},
                        form.Picture2.Picture().Pixels()),
              0);
}

// Stripes of one pixel, dark and light, blue on the left and red on the right.
Bitmap FineStripes(int width, int height) {
    Bitmap stripes(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const auto light = static_cast<std::uint8_t>(x % 2 == 0 ? 200 : 100);
            stripes.At(x, y) = x < width / 2 ? Pixel{light, 0, 0, 0} : Pixel{0, 0, light, 0};
        }
    }
    return stripes;
}

TEST_F(FittedViewTest, ALargePictureShownSmallKeepsItsPlacesAndTheMeanOfFineStripes) {
    for (const int width : {1600, 1603, 2400, 4000, 13000}) {
        Show(Picture(FineStripes(width, 800)), {100, 50});
        const QImage painted = Painted(*view);
        for (const int column : {10, 45})
            EXPECT_NEAR(PixelAt(painted, painted.width() * column / 100, painted.height() / 2).blue, 150, 8)
                << width;
        for (const int column : {55, 90})
            EXPECT_NEAR(PixelAt(painted, painted.width() * column / 100, painted.height() / 2).red, 150, 8)
                << width;
        EXPECT_EQ(PixelAt(painted, painted.width() / 4, painted.height() / 2).red, 0) << width;
    }
}

} // namespace
} // namespace mirelle::test
