// The real clipboard.
#include "desktop/system/QtClipboard.h"
#include "tests/support/Patterns.h"
#include "tests/support/TestPictures.h"

#include <gmock/gmock.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>

namespace mirelle::test {
namespace {

struct ClipboardTest : testing::Test {
    ClipboardTest() { clipboard.Clear(); }
    QClipboard& system = *QGuiApplication::clipboard();
    QtClipboard clipboard;
};

TEST_F(ClipboardTest, GivesTheSamePixelsHoweverOftenItIsAsked) {
    QImage image(20, 10, QImage::Format_RGB32);
    image.fill(qRgb(10, 20, 30));
    image.setPixel(7, 3, qRgb(1, 2, 3));
    system.setImage(image);
    ASSERT_TRUE(clipboard.HasBitmap());
    const Picture first = clipboard.GetData();
    EXPECT_EQ(first.Pixels().At(0, 0), (Pixel{30, 20, 10, 0}));
    EXPECT_EQ(first.Pixels().At(7, 3), (Pixel{3, 2, 1, 0}));
    EXPECT_TRUE(clipboard.GetData().SharesPixelsWith(first));
}

TEST_F(ClipboardTest, TakesANewPictureWhenTheClipboardChanges) {
    QImage image(20, 10, QImage::Format_RGB32);
    image.fill(Qt::red);
    system.setImage(image);
    clipboard.GetData();
    image.fill(Qt::blue);
    system.setImage(image);
    EXPECT_EQ(clipboard.GetData().Pixels().At(0, 0), (Pixel{255, 0, 0, 0}));
    system.setText("words");
    EXPECT_FALSE(clipboard.HasBitmap());
    EXPECT_TRUE(clipboard.GetData().IsEmpty());
}

TEST_F(ClipboardTest, OffersWhatWasCopiedToOtherProgramsAsAPicture) {
    const Picture picture(NoiseBitmap(33, 17, 1));
    clipboard.SetData(picture);
    const QMimeData* data = system.mimeData();
    ASSERT_TRUE(data->hasImage());
    const QImage image = qvariant_cast<QImage>(data->imageData());
    ASSERT_EQ(image.size(), QSize(33, 17));
    for (int y = 0; y < 17; ++y) {
        for (int x = 0; x < 33; ++x) {
            const Pixel pixel = picture.Pixels().At(x, y);
            ASSERT_EQ(image.pixel(x, y), qRgb(pixel.red, pixel.green, pixel.blue));
        }
    }
    EXPECT_EQ(clipboard.GetData().Width(), 33);
}

TEST_F(ClipboardTest, ClearsAndHoldsText) {
    clipboard.SetData(ChartPicture(5, 5));
    clipboard.SetText("C:\\a.jpg");
    EXPECT_EQ(system.text(), "C:\\a.jpg");
    EXPECT_FALSE(clipboard.HasBitmap());
    clipboard.Clear();
    EXPECT_EQ(system.text(), "");
}

} // namespace
} // namespace mirelle::test
