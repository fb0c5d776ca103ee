// The plain controls: what code and users do to them, and what runs then.
#include "forms/Controls.h"

#include "forms/ControlArray.h"
#include "tests/forms/TestForm.h"
#include "tests/support/ErrorOf.h"

#include <gtest/gtest.h>

namespace mirelle {
namespace {

using test::ErrorOf;

struct ControlsTest : testing::Test, test::TestForm {
    int count = 0;
    template <class... Args>
    void Count(Event<Args...>& event) {
        event.Connect([this](Args...) { ++count; });
    }
};

TEST_F(ControlsTest, AUsersClickRunsClickUnlessTheControlIsDisabled) {
    CommandButton button(form, "Command1");
    Count(button.Click);
    Count(button.DblClick);
    button.UserClick();
    button.UserDblClick();
    EXPECT_EQ(count, 2);
    button.Enabled = false;
    button.UserClick();
    button.UserDblClick();
    EXPECT_EQ(count, 2);
    button.Click(); // by code
    EXPECT_EQ(count, 3);
}

TEST_F(ControlsTest, SizesAreNotNegative) {
    Frame frame(form, "Frame1");
    frame.Move(-5, -6, 7, 8);
    EXPECT_EQ(frame.Left(), -5);
    EXPECT_EQ(frame.Height(), 8);
    EXPECT_EQ(ErrorOf([&] { frame.Width = -0.5F; }), ErrorNumber::InvalidPropertyValue);
    EXPECT_EQ(ErrorOf([&] { frame.Height = std::numeric_limits<float>::quiet_NaN(); }),
              ErrorNumber::InvalidPropertyValue);
    EXPECT_EQ(frame.Width(), 7);
    EXPECT_EQ(frame.Height(), 8);
}

TEST_F(ControlsTest, AFullNameHasTheIndexOfAnArraysElement) {
    EXPECT_EQ(CommandButton(form, "Command5").FullName(), "Command5");
    EXPECT_EQ(CommandButton(form, "cmdMatDirs", 3).FullName(), "cmdMatDirs(3)");
}

TEST_F(ControlsTest, ACheckBoxRunsClickWhenItsValueChangesByCodeOrUser) {
    CheckBox box(form, "Check1");
    Count(box.Click);
    box.Value = kChecked;
    EXPECT_EQ(count, 1);
    box.Value = kChecked;
    EXPECT_EQ(count, 1);
    box.UserClick();
    EXPECT_EQ(box.Value(), kUnchecked);
    EXPECT_EQ(count, 2);
    box.UserClick();
    box.UserClick();
    EXPECT_EQ(box.Value(), kUnchecked);
    EXPECT_EQ(count, 4);
}

TEST_F(ControlsTest, ACheckBoxRefusesOtherValues) {
    CheckBox box(form, "Check1");
    EXPECT_EQ(ErrorOf([&] { box.Value = 2; }), ErrorNumber::InvalidPropertyValue);
    EXPECT_EQ(ErrorOf([&] { box.Value = -1; }), ErrorNumber::InvalidPropertyValue);
    EXPECT_EQ(box.Value(), kUnchecked);
}

TEST_F(ControlsTest, AnOptionClearsTheOthersOfItsArrayAndOnlyTheNewOneRunsClick) {
    ControlArray<OptionButton> units(form, "optUnits", 3);
    ControlArray<OptionButton> directions(form, "optDirection", 2);
    directions(0).Value = true;
    units(0).Value = true;
    std::vector<int> clicked;
    units.OnClick([&](int index) { clicked.push_back(index); });
    units(2).UserClick();
    EXPECT_EQ(clicked, std::vector<int>{2});
    EXPECT_FALSE(units(0).Value());
    EXPECT_TRUE(units(2).Value());
    EXPECT_TRUE(directions(0).Value());
    units(2).UserClick(); // chosen already
    EXPECT_EQ(clicked.size(), 1U);
    units(2).Value = false;
    EXPECT_EQ(clicked.size(), 1U);
}

TEST_F(ControlsTest, ATextBoxRunsChangeForAnotherText) {
    TextBox box(form, "Text1");
    Count(box.Change);
    box.Text = "a";
    box.Text = "a";
    EXPECT_EQ(count, 1);
}

TEST_F(ControlsTest, ASliderKeepsItsValueBetweenItsBounds) {
    ScrollBar bar(form, "HScroll1");
    bar.Min = -255;
    bar.Max = 255;
    Count(bar.Change);
    bar.Value = 255;
    EXPECT_EQ(count, 1);
    EXPECT_EQ(ErrorOf([&] { bar.Value = 256; }), ErrorNumber::InvalidPropertyValue);
    EXPECT_EQ(ErrorOf([&] { bar.Value = -256; }), ErrorNumber::InvalidPropertyValue);
    EXPECT_EQ(bar.Value(), 255);
    bar.Max = 100; // takes the value along
    EXPECT_EQ(bar.Value(), 100);
    EXPECT_EQ(count, 2);
    bar.Max = 300;
    EXPECT_EQ(bar.Value(), 100);
    EXPECT_EQ(count, 2);
}

TEST_F(ControlsTest, ASlidersLowerBoundMayBeTheLargerNumber) {
    ScrollBar bar(form, "VScroll1");
    bar.Min = 100;
    bar.Max = 10;
    EXPECT_TRUE(bar.Holds(10));
    EXPECT_TRUE(bar.Holds(100));
    EXPECT_FALSE(bar.Holds(9));
    EXPECT_EQ(bar.Value(), 100);
    EXPECT_FALSE(ErrorOf([&] { bar.Value = 55; }).has_value());
}

TEST_F(ControlsTest, MovingASliderInOneStepIsOneChange) {
    ScrollBar bar(form, "HScroll1");
    Count(bar.Change);
    bar.UserSet(5);
    bar.UserSet(5);
    EXPECT_EQ(count, 1);
    bar.Enabled = false;
    bar.UserSet(6);
    EXPECT_EQ(bar.Value(), 5);
}

TEST_F(ControlsTest, DraggingASliderScrollsAndItsDropIsOneChange) {
    ScrollBar bar(form, "HScroll1");
    bar.Max = 50;
    int scrolls = 0;
    bar.Scroll.Connect([&] { ++scrolls; });
    Count(bar.Change);
    bar.UserDrag(10);
    bar.UserDrag(10);
    bar.UserDrag(20);
    bar.UserDrag(51); // beyond the end
    EXPECT_EQ(bar.Value(), 20);
    EXPECT_EQ(scrolls, 2);
    EXPECT_EQ(count, 0);
    bar.UserDrop();
    EXPECT_EQ(count, 1);
    bar.UserDrop(); // without a drag
    EXPECT_EQ(count, 1);
}

TEST_F(ControlsTest, ASpinnersArrowsAreTwoEvents) {
    UpDown spinner(form, "UpDown1");
    std::string seen;
    spinner.UpClick.Connect([&] { seen += 'u'; });
    spinner.DownClick.Connect([&] { seen += 'd'; });
    spinner.UserUp();
    spinner.UserDown();
    spinner.Enabled = false;
    spinner.UserUp();
    spinner.UserDown();
    EXPECT_EQ(seen, "ud");
}

TEST_F(ControlsTest, ATimerFiresAtEachInterval) {
    TimerControl timer(form, "Timer1");
    Count(timer.Timer);
    timer.Advance(1000); // no interval yet
    EXPECT_EQ(count, 0);
    timer.Interval = 100;
    timer.Advance(99);
    EXPECT_EQ(count, 0);
    timer.Advance(1);
    EXPECT_EQ(count, 1);
    timer.Advance(250);
    EXPECT_EQ(count, 3);
    timer.Advance(50);
    EXPECT_EQ(count, 4);
}

TEST_F(ControlsTest, ATimerThatIsDisabledStandsStillAndStartsAnew) {
    TimerControl timer(form, "Timer1");
    timer.Interval = 100;
    timer.Timer.Connect([&] {
        if (++count == 2) timer.Enabled = false;
    });
    timer.Advance(1000);
    EXPECT_EQ(count, 2);
    timer.Advance(1000);
    EXPECT_EQ(count, 2);
    timer.Enabled = true;
    timer.Advance(99);
    EXPECT_EQ(count, 2);
    timer.Advance(1);
    EXPECT_EQ(count, 3);
}

TEST_F(ControlsTest, AnArrayHasItsIndicesAndNoOthers) {
    ControlArray<Label> labels(form, "Label8", {0, 1, 46});
    EXPECT_EQ(labels.Count(), 3);
    EXPECT_EQ(labels(46).FullName(), "Label8(46)");
    EXPECT_EQ(ErrorOf([&] { labels(2); }), ErrorNumber::NoSuchArrayElement);
    EXPECT_EQ(form.Find("Label8", 46), &labels(46));
    EXPECT_EQ(form.Find("Label8"), nullptr);
    std::vector<int> clicked;
    labels.OnClick([&](int index) { clicked.push_back(index); });
    labels.ForEach([](Label& label) { label.UserClick(); });
    EXPECT_EQ(clicked, (std::vector<int>{0, 1, 46}));
}

} // namespace
} // namespace mirelle
