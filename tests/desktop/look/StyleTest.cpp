#include "desktop/look/Style.h"

#include <memory>

#include <gtest/gtest.h>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>

#include "desktop/look/Contrast.h"
#include "desktop/look/Look.h"
#include "desktop/look/Palette.h"
#include "desktop/look/Tokens.h"
#include "desktop/look/Typeface.h"
#include "tests/desktop/look/Shots.h"

namespace mirelle::look {
namespace {

constexpr QStyle::State kRest = QStyle::State_Enabled;
constexpr QStyle::State kHover = kRest | QStyle::State_MouseOver;
constexpr QStyle::State kPress = kHover | QStyle::State_Sunken;
constexpr QStyle::State kKeyboardFocus = kRest | QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
constexpr QStyle::State kMouseFocus = kRest | QStyle::State_HasFocus;

class StyleTest : public testing::Test {
protected:
    StyleTest() { QApplication::setPalette(MakePalette()); }

    QImage Push(QStyle::State state) {
        auto option = OptionFor<QStyleOptionButton>({80, 24}, state);
        option.palette = palette_;
        return Drawn([&](QPainter& painter) { style_.drawControl(QStyle::CE_PushButton, &option, &painter); },
                     option);
    }

    QImage Tool(QStyle::State state) {
        auto option = OptionFor<QStyleOptionToolButton>({28, 28}, state);
        option.palette = palette_;
        return Drawn(
            [&](QPainter& painter) { style_.drawComplexControl(QStyle::CC_ToolButton, &option, &painter); },
            option);
    }

    QImage Combo(QStyle::State state, bool editable = false) {
        auto option = OptionFor<QStyleOptionComboBox>({100, 24}, state);
        option.palette = palette_;
        option.editable = editable;
        return Drawn(
            [&](QPainter& painter) { style_.drawComplexControl(QStyle::CC_ComboBox, &option, &painter); },
            option);
    }

    QImage Primitive(QStyle::PrimitiveElement element, QSize size, QStyle::State state) {
        auto option = OptionFor<QStyleOption>(size, state);
        option.palette = palette_;
        return Drawn([&](QPainter& painter) { style_.drawPrimitive(element, &option, &painter); }, option);
    }

    QImage Slider(int low, int high, int value, QStyle::State state = kRest) {
        auto option = OptionFor<QStyleOptionSlider>({120, 16}, state);
        option.minimum = low;
        option.maximum = high;
        option.sliderPosition = option.sliderValue = value;
        return Drawn(
            [&](QPainter& painter) { style_.drawComplexControl(QStyle::CC_Slider, &option, &painter); },
            option);
    }

    template <typename Draw>
    QImage Drawn(Draw draw, const QStyleOption& option) {
        QImage image = Blank(option.rect.size());
        QPainter painter(&image);
        draw(painter);
        return image;
    }

    Style style_;
    QPalette palette_ = MakePalette();
};

constexpr QPoint kBesideText(8, 12); // in a button, away from its edges

TEST_F(StyleTest, EachStateOfAPushButtonHasItsOwnGround) {
    EXPECT_EQ(Push(kRest).pixel(kBesideText), kControl);
    EXPECT_EQ(Push(kHover).pixel(kBesideText), Hovered(kControl));
    EXPECT_EQ(Push(kPress).pixel(kBesideText), Pressed(kControl));
    EXPECT_EQ(Push(kRest | QStyle::State_On).pixel(kBesideText), Switched(kControl));
    EXPECT_EQ(Push(QStyle::State_None).pixel(kBesideText), Unavailable(kControl));
}

TEST_F(StyleTest, EachStateOfAToolButtonHasItsOwnGround) {
    EXPECT_EQ(Tool(kRest).pixel(kBesideText), kControl);
    EXPECT_EQ(Tool(kHover).pixel(kBesideText), Hovered(kControl));
    EXPECT_EQ(Tool(kPress).pixel(kBesideText), Pressed(kControl));
    EXPECT_EQ(Tool(QStyle::State_None).pixel(kBesideText), Unavailable(kControl));
}

TEST_F(StyleTest, AToolButtonThatRaisesItselfHasNoGroundAtRest) {
    EXPECT_EQ(CountOf(Tool(kRest | QStyle::State_AutoRaise), kControl), 0);
    EXPECT_EQ(Tool(kHover | QStyle::State_AutoRaise).pixel(kBesideText), Hovered(kControl));
}

TEST_F(StyleTest, AChoiceLooksLikeAButtonAndANameLikeAField) {
    EXPECT_EQ(Combo(kRest).pixel(kBesideText), kControl);
    EXPECT_EQ(Combo(kRest, true).pixel(kBesideText), kField);
}

TEST_F(StyleTest, CornersStayClearSoThatTheGroundBehindShows) {
    EXPECT_EQ(qAlpha(Push(kRest).pixel(0, 0)), 0);
    EXPECT_EQ(qAlpha(Tool(kRest).pixel(27, 27)), 0);
    EXPECT_EQ(qAlpha(Combo(kRest, true).pixel(0, 23)), 0);
}

TEST_F(StyleTest, ButtonsShowTheFocusOnlyWhenItCameByTheKeyboard) {
    EXPECT_GT(CountOf(Push(kKeyboardFocus), kAccent), 80);
    EXPECT_EQ(CountOf(Push(kMouseFocus), kAccent), 0);
    EXPECT_GT(CountOf(Tool(kKeyboardFocus), kAccent), 40);
    EXPECT_EQ(CountOf(Tool(kMouseFocus), kAccent), 0);
    EXPECT_GT(CountOf(Combo(kKeyboardFocus), kAccent), 100);
    EXPECT_EQ(CountOf(Combo(kMouseFocus), kAccent), 0);
}

TEST_F(StyleTest, AFieldShowsTheFocusHoweverItCame) {
    EXPECT_GT(CountOf(Primitive(QStyle::PE_PanelLineEdit, {80, 24}, kMouseFocus), kAccent), 80);
    EXPECT_EQ(CountOf(Primitive(QStyle::PE_PanelLineEdit, {80, 24}, kRest), kAccent), 0);
}

TEST_F(StyleTest, TheFocusRingIsSeenOnAFieldOfTheAccentItself) {
    palette_.setColor(QPalette::Base, QColor(kAccent));
    const QImage field = Primitive(QStyle::PE_PanelLineEdit, {80, 24}, kMouseFocus);
    EXPECT_GE(ContrastRatio(field.pixel(40, 0), kAccent), kReadableShape);
}

TEST_F(StyleTest, OwnBackColoursAreShown) {
    palette_.setColor(QPalette::Button, QColor(0xff204060));
    palette_.setColor(QPalette::Base, QColor(0xff00ff00));
    EXPECT_EQ(Push(kRest).pixel(kBesideText), 0xff204060);
    EXPECT_EQ(Push(kHover).pixel(kBesideText), Hovered(0xff204060));
    EXPECT_EQ(Primitive(QStyle::PE_PanelLineEdit, {80, 24}, kRest).pixel(kBesideText), 0xff00ff00);
    EXPECT_EQ(Primitive(QStyle::PE_IndicatorCheckBox, {16, 16}, kRest).pixel(8, 8), 0xff00ff00);
}

TEST_F(StyleTest, AMarkThatIsOnShowsTheAccent) {
    const QStyle::State on = kRest | QStyle::State_On;
    EXPECT_EQ(CountOf(Primitive(QStyle::PE_IndicatorCheckBox, {16, 16}, kRest | QStyle::State_Off), kAccent),
              0);
    EXPECT_GT(CountOf(Primitive(QStyle::PE_IndicatorCheckBox, {16, 16}, on), kAccent), 100);
    EXPECT_GT(CountOf(Primitive(QStyle::PE_IndicatorRadioButton, {16, 16}, on), kAccent), 80);
    EXPECT_EQ(Primitive(QStyle::PE_IndicatorRadioButton, {16, 16}, on).pixel(8, 8), kTextOnAccent);
}

TEST_F(StyleTest, CheckedAndHalfCheckedDiffer) {
    EXPECT_NE(Primitive(QStyle::PE_IndicatorCheckBox, {16, 16}, kRest | QStyle::State_On),
              Primitive(QStyle::PE_IndicatorCheckBox, {16, 16}, kRest | QStyle::State_NoChange));
}

TEST_F(StyleTest, ASliderIsFilledFromItsZero) {
    const QImage below = Slider(-255, 255, -200);
    EXPECT_EQ(below.pixel(45, 8), kAccent);   // between the value and the middle
    EXPECT_EQ(below.pixel(80, 8), kCardEdge); // past the middle
    const QImage above = Slider(-255, 255, 200);
    EXPECT_EQ(above.pixel(45, 8), kCardEdge);
    EXPECT_EQ(above.pixel(75, 8), kAccent);
}

TEST_F(StyleTest, ASliderWithoutZeroIsFilledFromItsLowest) {
    const QImage slider = Slider(4, 1020, 512);
    EXPECT_EQ(slider.pixel(30, 8), kAccent);
    EXPECT_EQ(slider.pixel(90, 8), kCardEdge);
}

TEST_F(StyleTest, ADisabledSliderHasNoAccent) {
    EXPECT_EQ(CountOf(Slider(4, 1020, 512, QStyle::State_None), kAccent), 0);
}

TEST_F(StyleTest, ControlsHaveTheHeightOfTheTokens) {
    const auto height = [&](QWidget&& widget) {
        widget.setStyle(&style_);
        widget.setFont(BodyFont());
        return widget.sizeHint().height();
    };
    EXPECT_EQ(height(QPushButton(QStringLiteral("Load"))), kControlHeight);
    EXPECT_EQ(height(QLineEdit()), kControlHeight);
    EXPECT_EQ(height(QComboBox()), kControlHeight);
    EXPECT_EQ(height(QSpinBox()), kControlHeight);
    EXPECT_EQ(height(QCheckBox(QStringLiteral("Keep"))), kTickRow);
    EXPECT_EQ(height(QRadioButton(QStringLiteral("Feet"))), kTickRow);
}

TEST_F(StyleTest, RowsOfAListHaveTheHeightOfTheTokens) {
    QListWidget list;
    list.setStyle(&style_);
    list.addItem(QStringLiteral("Art_1.jpg"));
    EXPECT_EQ(list.sizeHintForRow(0), kRowHeight);
}

TEST_F(StyleTest, MarkAndTextOfACheckBoxStandApart) {
    QCheckBox box(QStringLiteral("Increment"));
    box.setStyle(&style_);
    box.resize(box.sizeHint());
    QStyleOptionButton option;
    option.initFrom(&box);
    const QRect mark = style_.subElementRect(QStyle::SE_CheckBoxIndicator, &option, &box);
    const QRect text = style_.subElementRect(QStyle::SE_CheckBoxContents, &option, &box);
    EXPECT_GE(text.left() - mark.right(), kSpaceSmall);
    EXPECT_TRUE(box.rect().contains(mark));
    EXPECT_GE(text.width(), box.fontMetrics().horizontalAdvance(box.text()));
}

TEST_F(StyleTest, TextThatCannotBeUsedIsFaint) {
    EXPECT_EQ(palette_.color(QPalette::Disabled, QPalette::ButtonText).rgb(), kTextOff);
    EXPECT_EQ(palette_.color(QPalette::Active, QPalette::ButtonText).rgb(), kText);
}

TEST_F(StyleTest, AListWithoutTheFocusKeepsItsSelectionInGrey) {
    EXPECT_EQ(palette_.color(QPalette::Active, QPalette::Highlight).rgb(), kSelection);
    EXPECT_EQ(palette_.color(QPalette::Inactive, QPalette::Highlight).rgb(), kSelectionIdle);
}

TEST_F(StyleTest, TheListOfAComboBoxOpensBeneathIt) {
    EXPECT_EQ(style_.styleHint(QStyle::SH_ComboBox_Popup), 0);
}

TEST_F(StyleTest, EdgesAreSharpAtEveryScale) {
    for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.0}) {
        QImage image = Blank({80, 40}, scale);
        QPainter painter(&image);
        auto option = OptionFor<QStyleOptionButton>({60, 24}, kRest);
        option.rect.moveTo(7, 5); // 8.75 device pixels at 1.25
        option.palette = palette_;
        style_.drawControl(QStyle::CE_PushButtonBevel, &option, &painter);
        painter.end();
        const int middle = static_cast<int>(17 * scale);
        for (int x = 0; x < image.width(); ++x) {
            const int alpha = qAlpha(image.pixel(x, middle));
            EXPECT_TRUE(alpha == 0 || alpha == 255) << "scale " << scale << " x " << x;
        }
    }
}

TEST_F(StyleTest, RadioButtonsAreRoundAtEveryScale) {
    for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.0}) {
        QImage image = Blank({16, 16}, scale);
        QPainter painter(&image);
        auto option = OptionFor<QStyleOption>({16, 16}, kRest | QStyle::State_On);
        option.palette = palette_;
        style_.drawPrimitive(QStyle::PE_IndicatorRadioButton, &option, &painter);
        painter.end();
        EXPECT_LE(GreatestDifference(image, image.mirrored(true, false)), 16) << scale;
        EXPECT_LE(GreatestDifference(image, image.transformed(QTransform().rotate(90))), 16) << scale;
    }
}

TEST_F(StyleTest, AnEdgeIsOneWholePixelAtScaleOneAndAQuarter) {
    QImage image = Blank({80, 24}, 1.25);
    QPainter painter(&image);
    auto option = OptionFor<QStyleOption>({80, 24}, kRest);
    option.palette = palette_;
    style_.drawPrimitive(QStyle::PE_PanelLineEdit, &option, &painter);
    painter.end();
    EXPECT_EQ(image.pixel(0, 15), kFieldEdge);
    EXPECT_EQ(image.pixel(1, 15), kField);
}

TEST_F(StyleTest, MessageBoxesHaveOurDrawings) {
    const QImage warning =
        style_.standardIcon(QStyle::SP_MessageBoxWarning).pixmap(QSize(40, 40), 1.0).toImage();
    EXPECT_GT(CountOf(warning, kWarning), 20);
}

TEST(Look, GivesTheApplicationStylePaletteTypeAndIcon) {
    ApplyLook(*qApp);
    ApplyIcon();
    EXPECT_EQ(QApplication::palette().color(QPalette::Window).rgb(), kCard);
    EXPECT_EQ(QApplication::font().pixelSize(), kTypeSize);
    EXPECT_FALSE(QApplication::windowIcon().isNull());
    EXPECT_TRUE(qobject_cast<Style*>(QApplication::style()) != nullptr);
}

} // namespace
} // namespace mirelle::look
