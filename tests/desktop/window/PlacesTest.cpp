// Panels at their places, on any screen, with nothing cut off.
#include "desktop/window/PanelPlaces.h"
#include "tests/desktop/Legible.h"
#include "tests/desktop/window/OpenedWindow.h"

#include <gmock/gmock.h>

namespace mirelle::test {
namespace {

class PlacesOnScreen : public testing::TestWithParam<QSize> {};

PanelNeeds NeedsOf(QSize window) {
    PanelNeeds needs;
    needs.window = window;
    needs.lowerHeight = 44;
    needs.sendsWidth = 64;
    needs.upperPart = 220;
    needs.stripHeight = [](int) { return 120; };
    return needs;
}

TEST_P(PlacesOnScreen, PanelsLieBesideEachOtherInsideTheWindow) {
    const PanelPlaces places = PlacePanels(NeedsOf(GetParam()));
    const QRect window(QPoint(), GetParam());
    const QRect panels[] = {places.material, places.sends, places.lower, places.strip};
    for (const QRect& panel : panels) {
        EXPECT_TRUE(window.contains(panel));
        for (const QRect& other : panels)
            EXPECT_TRUE(panel == other || !panel.intersects(other));
    }
    EXPECT_GT(places.sends.left(), places.material.right()) << "the sends stand at the right edge";
    EXPECT_LT(places.strip.bottom(), places.lower.top()) << "the strip lies over the lower panel";
    EXPECT_TRUE(places.material.contains(places.superBatch));
    EXPECT_EQ(places.superBatch.top(), places.material.top());
}

TEST_P(PlacesOnScreen, HiddenPanelsLeaveTheirRoomToTheStripAndTheCanvas) {
    PanelNeeds needs = NeedsOf(GetParam());
    needs.rightShown = false;
    needs.lowerShown = false;
    const PanelPlaces places = PlacePanels(needs);
    EXPECT_EQ(places.free, QRect(QPoint(), GetParam()));
    EXPECT_GT(places.strip.right(), GetParam().width() - 20);
}

TEST_P(PlacesOnScreen, NothingIsCutOffAtTheStart) {
    OpenedWindow opened(GetParam());
    EXPECT_THAT(CutOffControls(*opened.window), testing::IsEmpty());
}

TEST_P(PlacesOnScreen, NothingIsCutOffWithThePalette) {
    OpenedWindow opened(GetParam());
    opened.form.cmdColorPick.UserClick();
    opened.Settle();
    EXPECT_TRUE(opened.Find("FramePics")->isVisible());
    EXPECT_FALSE(opened.Find("Frame3")->isVisible());
    EXPECT_THAT(CutOffControls(*opened.window), testing::IsEmpty());
}

TEST_P(PlacesOnScreen, NothingIsCutOffInTheImageFXStrip) {
    OpenedWindow opened(GetParam());
    opened.form.FrameRGBFX.Visible = true;
    opened.Settle();
    EXPECT_TRUE(opened.Find("FrameRGBFX")->isVisible());
    EXPECT_THAT(CutOffControls(*opened.window), testing::IsEmpty());
}

TEST_P(PlacesOnScreen, NothingIsCutOffInTheGradientStrip) {
    OpenedWindow opened(GetParam());
    opened.form.FrameGradFX.Visible = true;
    opened.Settle();
    EXPECT_TRUE(opened.Find("FrameGradFX")->isVisible());
    EXPECT_THAT(CutOffControls(*opened.window), testing::IsEmpty());
}

TEST_P(PlacesOnScreen, NothingIsCutOffWithTheSuperBatchPanel) {
    OpenedWindow opened(GetParam());
    opened.form.Command14.UserClick();
    opened.Settle();
    EXPECT_TRUE(opened.Find("Frame8")->isVisible());
    EXPECT_THAT(CutOffControls(*opened.window), testing::IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Places, PlacesOnScreen,
                         testing::Values(QSize(1024, 676), QSize(1024, 700), QSize(1366, 768),
                                         QSize(1920, 1080), QSize(3840, 2160)),
                         [](const auto& size) {
                             return std::to_string(size.param.width()) + "By" +
                                    std::to_string(size.param.height());
                         });

} // namespace
} // namespace mirelle::test
