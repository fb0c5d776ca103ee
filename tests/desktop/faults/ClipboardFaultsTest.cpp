// Clipboards of other programs that do not keep what they promise, or promise what is odd.
#include "desktop/system/QtClipboard.h"
#include "tests/desktop/faults/DiskProgram.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QBuffer>
#include <QImage>
#include <QProcess>

#include <chrono>

namespace mirelle::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kNoPicture = "Clipboard contains no picture; Hit Printscreen button";

struct ClipboardOfAnother : testing::Test {
    ClipboardOfAnother() {
        program.form.PicImage.Picture = former;
        program.form.picSmall.Picture = former;
        program.form.Picture = former;
    }
    ~ClipboardOfAnother() override {
        if (owner.state() == QProcess::NotRunning) return;
        owner.kill();
        owner.waitForFinished();
    }

    // Starts the owner and waits until the program sees whether it has a picture.
    void OwnedBy(const QStringList& arguments, bool hasBitmap) {
        owner.start(MIRELLE_CLIPBOARD_OWNER, arguments);
        ASSERT_TRUE(owner.waitForReadyRead());
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
        while (clipboard.HasBitmap() != hasBitmap) {
            ASSERT_LT(std::chrono::steady_clock::now(), deadline);
            QCoreApplication::processEvents();
        }
    }
    void OwnedBy(const QImage& image) {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        ASSERT_TRUE(image.save(&buffer, "png"));
        const std::string file = program.folder.MakeFile(
            "served.png", std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
        OwnedBy({"serve", QString::fromStdString(file)}, true);
    }
    void ExpectNothingChanged() {
        EXPECT_TRUE(program.form.PicImage.Picture().SharesPixelsWith(former));
        EXPECT_TRUE(program.form.picSmall.Picture().SharesPixelsWith(former));
        EXPECT_TRUE(program.form.Picture().SharesPixelsWith(former));
    }

    QtClipboard clipboard;
    DiskProgram program{&clipboard};
    Picture former{SmoothBitmap(20, 10)};
    QProcess owner;
};

TEST_F(ClipboardOfAnother, IsPasted) {
    QImage image(30, 20, QImage::Format_RGB32);
    image.fill(qRgb(10, 20, 30));
    OwnedBy(image);
    program.form.Command5.UserClick();
    EXPECT_EQ(program.form.PicImage.Picture().Width(), 30);
    EXPECT_EQ(program.form.picSmall.Picture().Pixels().At(29, 19), (Pixel{30, 20, 10, 0}));
    EXPECT_THAT(program.TakeMessages(), IsEmpty());
}

TEST_F(ClipboardOfAnother, LiesOverWhiteWhereItIsClear) {
    QImage image(3, 1, QImage::Format_ARGB32);
    image.setPixel(0, 0, qRgba(10, 20, 30, 255));
    image.setPixel(1, 0, qRgba(10, 20, 30, 0));
    image.setPixel(2, 0, qRgba(0, 0, 0, 51));
    OwnedBy(image);
    program.form.Command5.UserClick();
    EXPECT_THAT(program.form.PicImage.Picture().Pixels().Pixels(),
                ElementsAre(Pixel{30, 20, 10, 0}, Pixel{255, 255, 255, 0}, Pixel{204, 204, 204, 0}));
}

TEST_F(ClipboardOfAnother, OfATextIsToldToHoldNoPicture) {
    OwnedBy({"text"}, false);
    program.form.Command5.UserClick();
    ExpectNothingChanged();
    EXPECT_THAT(program.TakeMessages(), ElementsAre(kNoPicture));
}

TEST_F(ClipboardOfAnother, ThatNeverAnswersIsToldToHoldNoPicture) {
    OwnedBy({"silent"}, true);
    program.form.Command5.UserClick();
    ExpectNothingChanged();
    EXPECT_THAT(program.TakeMessages(), ElementsAre(kNoPicture));
}

TEST_F(ClipboardOfAnother, ThatDiesWhilePastingIsToldToHoldNoPicture) {
    OwnedBy({"dies"}, true);
    program.form.Command5.UserClick();
    ExpectNothingChanged();
    EXPECT_THAT(program.TakeMessages(), ElementsAre(kNoPicture));
}

TEST_F(ClipboardOfAnother, OfAPictureBeyondAllMeasureIsToldToHoldNone) {
    QImage image(20000, 20000, QImage::Format_Mono);
    image.fill(1);
    OwnedBy(image);
    program.form.Command5.UserClick();
    ExpectNothingChanged();
    EXPECT_THAT(program.TakeMessages(), ElementsAre(kNoPicture));
}

TEST_F(ClipboardOfAnother, OfBytesThatAreNoPictureIsToldToHoldNone) {
    const std::string file = program.folder.MakeFile("served.png", "\x89PNG\r\n\x1A\n and no more");
    OwnedBy({"serve", QString::fromStdString(file)}, true);
    program.form.Command5.UserClick();
    ExpectNothingChanged();
    EXPECT_THAT(program.TakeMessages(), ElementsAre(kNoPicture));
}

} // namespace
} // namespace mirelle::test

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
