#include "desktop/window/EffectButton.h"

#include "desktop/canvas/PictureImage.h"
#include "desktop/look/Tokens.h"
#include "desktop/window/EffectIcon.h"
#include "fx/EffectSample.h"
#include "tests/desktop/window/OpenedWindow.h"

#include <QPainter>
#include <QPixmapCache>

#include <gtest/gtest.h>

namespace mirelle::test {
namespace {

constexpr int kSide = look::kEffectPicture;

QImage Painted(const QIcon& icon, QIcon::Mode mode = QIcon::Normal) {
    QImage image(kSide, kSide, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    icon.paint(&painter, image.rect(), Qt::AlignCenter, mode);
    return image;
}

bool IsMade(const char* control, int side) {
    QPixmap picture;
    return QPixmapCache::find(EffectPictureKey(control, side), &picture);
}

TEST(EffectIconTest, ShowsWhatTheEffectMakesOfTheSample) {
    for (const char* control : {"cmdNegative", "cmdFlipHoriz", "cmdCont33", "cmdPointalism"}) {
        const Picture expected(SampleAfter(control, kSide));
        const QImage painted = Painted(EffectIcon(control));
        const QImage image = ImageOver(expected);
        // Away from the round corners.
        for (const QPoint place : {QPoint(12, 3), QPoint(3, 12), QPoint(16, 16), QPoint(20, 12)})
            EXPECT_EQ(painted.pixelColor(place), image.pixelColor(place)) << control;
    }
}

TEST(EffectIconTest, FadesOnADisabledButton) {
    const QImage bright = Painted(EffectIcon("cmdLighten"));
    const QImage faded = Painted(EffectIcon("cmdLighten"), QIcon::Disabled);
    EXPECT_LT(faded.pixelColor(12, 3).blue(), bright.pixelColor(12, 3).blue());
}

TEST(EffectIconTest, IsMadeWhenItIsFirstPainted) {
    QPixmapCache::clear();
    const QIcon icon = EffectIcon("cmdEmboss");
    EXPECT_FALSE(icon.isNull());
    EXPECT_FALSE(IsMade("cmdEmboss", kSide));
    Painted(icon);
    EXPECT_TRUE(IsMade("cmdEmboss", kSide));
}

TEST(EffectIconTest, IsNullForAControlWithoutAnEffect) {
    EXPECT_TRUE(EffectIcon("cmdSetMain").isNull());
}

TEST(EffectButtonTest, EveryEffectOfThePanelHasAPictureOnceThePanelIsOpened) {
    QPixmapCache::clear();
    OpenedWindow opened({1920, 1080});
    const auto buttons = opened.window->findChildren<EffectButton*>();
    EXPECT_EQ(buttons.size(), 40);
    const int side = qRound(kSide * opened.window->devicePixelRatioF());
    for (const EffectButton* button : buttons) {
        EXPECT_FALSE(button->icon().isNull()) << button->toolTip().toStdString();
        EXPECT_FALSE(button->accessibleName().isEmpty());
    }
    EXPECT_FALSE(IsMade("cmdBlur1", side));
    EXPECT_FALSE(IsMade("cmdPointalismVert", side));
    opened.form.FrameRGBFX.Visible = true;
    opened.Settle();
    opened.window->grab();
    EXPECT_TRUE(IsMade("cmdBlur1", side));
    EXPECT_TRUE(IsMade("cmdPointalismVert", side));
}

} // namespace
} // namespace mirelle::test
