// Panels at their places, on any screen, with nothing cut off.
#include "desktop/window/PanelPlaces.h"
#include "tests/desktop/window/OpenedWindow.h"

#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QComboBox>
#include <QLineEdit>

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

// The shown controls that lie partly outside of what they lie in, that have less room than they need, or that
// lie over each other.
std::vector<std::string> CutOff(const QWidget& window) {
    std::vector<std::string> cut;
    std::vector<const QWidget*> seen;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        const bool isControl =
            qobject_cast<const QAbstractButton*>(widget) || qobject_cast<const QLineEdit*>(widget) ||
            qobject_cast<const QComboBox*>(widget) || qobject_cast<const QAbstractScrollArea*>(widget);
        if (!isControl || !widget->isVisible() || qobject_cast<const QComboBox*>(widget->parentWidget()))
            continue;
        if (widget->window() != &window || widget->inherits("QComboBoxPrivateContainer")) continue;
        const std::string name = widget->objectName().toStdString();
        if (!widget->parentWidget()->rect().contains(widget->geometry()))
            cut.push_back(name + " leaves its panel");
        QSize least = widget->minimumSizeHint().boundedTo(widget->maximumSize());
        if (widget->minimumWidth() > 0) least.setWidth(widget->minimumWidth()); // told, not guessed
        const bool isList = qobject_cast<const QAbstractScrollArea*>(widget);
        if (!isList && (widget->width() < least.width() || widget->height() < least.height()))
            cut.push_back(name + " is too small");
        seen.push_back(widget);
    }
    for (const QWidget* one : seen) {
        for (const QWidget* other : seen) {
            if (one < other && one->parentWidget() == other->parentWidget() &&
                one->geometry().intersects(other->geometry()))
                cut.push_back(one->objectName().toStdString() + " lies over " +
                              other->objectName().toStdString());
        }
    }
    return cut;
}

TEST_P(PlacesOnScreen, NothingIsCutOffAtTheStart) {
    OpenedWindow opened(GetParam());
    EXPECT_THAT(CutOff(*opened.window), testing::IsEmpty());
}

TEST_P(PlacesOnScreen, NothingIsCutOffWithThePalette) {
    OpenedWindow opened(GetParam());
    opened.form.cmdColorPick.UserClick();
    opened.Settle();
    EXPECT_TRUE(opened.Find("FramePics")->isVisible());
    EXPECT_FALSE(opened.Find("Frame3")->isVisible());
    EXPECT_THAT(CutOff(*opened.window), testing::IsEmpty());
}

TEST_P(PlacesOnScreen, NothingIsCutOffInTheImageFXStrip) {
    OpenedWindow opened(GetParam());
    opened.form.FrameRGBFX.Visible = true;
    opened.Settle();
    EXPECT_TRUE(opened.Find("FrameRGBFX")->isVisible());
    EXPECT_THAT(CutOff(*opened.window), testing::IsEmpty());
}

TEST_P(PlacesOnScreen, NothingIsCutOffInTheGradientStrip) {
    OpenedWindow opened(GetParam());
    opened.form.FrameGradFX.Visible = true;
    opened.Settle();
    EXPECT_TRUE(opened.Find("FrameGradFX")->isVisible());
    EXPECT_THAT(CutOff(*opened.window), testing::IsEmpty());
}

TEST_P(PlacesOnScreen, NothingIsCutOffWithTheSuperBatchPanel) {
    OpenedWindow opened(GetParam());
    opened.form.Command14.UserClick();
    opened.Settle();
    EXPECT_TRUE(opened.Find("Frame8")->isVisible());
    EXPECT_THAT(CutOff(*opened.window), testing::IsEmpty());
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
