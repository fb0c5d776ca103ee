#include "desktop/look/PaintRails.h"

#include <limits>

#include <gtest/gtest.h>
#include <QStyleOptionSlider>

#include "desktop/look/Tokens.h"
#include "tests/desktop/look/Shots.h"

namespace mirelle::look {
namespace {

QStyleOptionSlider Bar(Qt::Orientation orientation, int maximum, int page, int value, int length = 200) {
    QStyleOptionSlider option;
    option.orientation = orientation;
    option.rect =
        orientation == Qt::Horizontal ? QRect(3, 5, length, kScrollBar) : QRect(3, 5, kScrollBar, length);
    option.minimum = 0;
    option.maximum = maximum;
    option.pageStep = page;
    option.sliderPosition = option.sliderValue = value;
    return option;
}

// Page before, handle and page behind lie end to end and fill the rail, wherever the handle stands.
TEST(ScrollBar, ItsPartsTileTheRail) {
    for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
        for (int value = 0; value <= 100; ++value) {
            const QStyleOptionSlider bar = Bar(orientation, 100, 40, value);
            const QRect before = ScrollBarPart(bar, QStyle::SC_ScrollBarSubPage);
            const QRect handle = ScrollBarPart(bar, QStyle::SC_ScrollBarSlider);
            const QRect behind = ScrollBarPart(bar, QStyle::SC_ScrollBarAddPage);
            const auto area = [](const QRect& rect) { return rect.width() * rect.height(); };
            EXPECT_EQ(area(before) + area(handle) + area(behind), area(bar.rect));
            EXPECT_TRUE(bar.rect.contains(handle));
            EXPECT_FALSE(before.intersects(handle));
            EXPECT_FALSE(behind.intersects(handle));
        }
    }
}

TEST(ScrollBar, TheHandleIsAsLongAsTheViewIsOfTheWhole) {
    EXPECT_EQ(ScrollBarPart(Bar(Qt::Horizontal, 100, 100, 0), QStyle::SC_ScrollBarSlider).width(), 100);
    EXPECT_EQ(ScrollBarPart(Bar(Qt::Vertical, 300, 100, 0), QStyle::SC_ScrollBarSlider).height(), 50);
}

TEST(ScrollBar, TheHandleNeverGetsTooShortToTake) {
    EXPECT_EQ(ScrollBarPart(Bar(Qt::Horizontal, 1000000, 1, 0), QStyle::SC_ScrollBarSlider).width(),
              kScrollHandleShortest);
}

TEST(ScrollBar, ARailShorterThanTheShortestHandleIsAllHandle) {
    EXPECT_EQ(ScrollBarPart(Bar(Qt::Horizontal, 100, 1, 50, 10), QStyle::SC_ScrollBarSlider).width(), 10);
}

TEST(ScrollBar, TheGreatestRangesDoNotOverflow) {
    QStyleOptionSlider bar =
        Bar(Qt::Horizontal, std::numeric_limits<int>::max(), std::numeric_limits<int>::max(), 0);
    bar.minimum = std::numeric_limits<int>::min();
    bar.sliderPosition = bar.minimum;
    const QRect handle = ScrollBarPart(bar, QStyle::SC_ScrollBarSlider);
    EXPECT_TRUE(bar.rect.contains(handle));
    EXPECT_NEAR(handle.width(), bar.rect.width() / 3.0, 1);
}

TEST(ScrollBar, ReachesBothEnds) {
    EXPECT_EQ(ScrollBarPart(Bar(Qt::Horizontal, 100, 40, 0), QStyle::SC_ScrollBarSlider).left(), 3);
    EXPECT_EQ(ScrollBarPart(Bar(Qt::Horizontal, 100, 40, 100), QStyle::SC_ScrollBarSlider).right(), 202);
}

TEST(ScrollBar, HasNoButtonsAtItsEnds) {
    EXPECT_TRUE(ScrollBarPart(Bar(Qt::Horizontal, 100, 40, 0), QStyle::SC_ScrollBarAddLine).isEmpty());
    EXPECT_TRUE(ScrollBarPart(Bar(Qt::Horizontal, 100, 40, 0), QStyle::SC_ScrollBarSubLine).isEmpty());
}

TEST(ScrollBar, ShowsNothingWhereAllIsInView) {
    QStyleOptionSlider bar = Bar(Qt::Horizontal, 0, 100, 0);
    bar.rect.moveTo(0, 0);
    bar.state = QStyle::State_Enabled;
    QImage image = Blank(bar.rect.size());
    QPainter painter(&image);
    PaintScrollBar(painter, bar);
    painter.end();
    EXPECT_EQ(image, Blank(bar.rect.size()));
}

TEST(SliderHandle, StaysOnTheRailAndReachesBothEnds) {
    for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
        for (int value = 0; value <= 50; ++value) {
            QStyleOptionSlider slider = Bar(orientation, 50, 10, value, 120);
            slider.rect.setSize(orientation == Qt::Horizontal ? QSize(120, 16) : QSize(16, 120));
            const QRect handle = SliderPart(slider, QStyle::SC_SliderHandle);
            EXPECT_TRUE(slider.rect.contains(handle)) << value;
            EXPECT_EQ(handle.size(), QSize(kSliderHandle, kSliderHandle));
            const int start = orientation == Qt::Horizontal ? handle.left() - 3 : handle.top() - 5;
            EXPECT_EQ(start == 0, value == 0) << value;
            EXPECT_EQ(start == 120 - kSliderHandle, value == 50) << value;
        }
    }
}

TEST(SliderHandle, StandsAtTheOtherEndWhenUpsideDown) {
    QStyleOptionSlider slider = Bar(Qt::Horizontal, 50, 10, 0, 120);
    slider.upsideDown = true;
    EXPECT_EQ(SliderPart(slider, QStyle::SC_SliderHandle).right(), slider.rect.right());
}

} // namespace
} // namespace mirelle::look
