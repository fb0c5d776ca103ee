// Controls and widgets, both ways.
#include "desktop/binding/Binder.h"
#include "tests/support/TestProgram.h"

#include <gmock/gmock.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTest>

namespace mirelle::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

void Settle() {
    QCoreApplication::processEvents();
}

struct BinderTest : testing::Test {
    TestProgram program;
    FrmPicX& form = program.form;
    Binder binder{form};
    QWidget window;
    int clicks = 0;

    void CountClicks(Control& control) {
        control.Click.Connect([this] { ++clicks; });
    }
};

TEST_F(BinderTest, AButtonsClickRunsTheControlsClickOnceAndNotWhileItIsDisabled) {
    QPushButton button(&window);
    binder.Button(form.cmdListHigh, button);
    CountClicks(form.cmdListHigh);
    button.click();
    EXPECT_EQ(clicks, 1);
    form.cmdListHigh.Enabled = false;
    Settle();
    EXPECT_FALSE(button.isEnabled());
    button.click();
    EXPECT_EQ(clicks, 1);
}

TEST_F(BinderTest, VisibilityAndTipFollowTheControlAndGiveTheAccessibleName) {
    QPushButton button(&window);
    form.cmdListHigh.ToolTipText = "First";
    binder.Button(form.cmdListHigh, button);
    EXPECT_EQ(button.toolTip(), "First");
    EXPECT_EQ(button.accessibleName(), "First");
    form.cmdListHigh.ToolTipText = "Second";
    form.cmdListHigh.Visible = false;
    Settle();
    EXPECT_EQ(button.toolTip(), "Second");
    EXPECT_TRUE(button.isHidden());
    form.cmdListHigh.Visible = true;
    Settle();
    EXPECT_FALSE(button.isHidden());
}

TEST_F(BinderTest, ATipThatChangesUnderTheMouseShowsTheChange) {
    QPushButton button(&window);
    binder.Button(form.Command3, button);
    window.show();
    QTest::mouseMove(&button);
    Settle();
    EXPECT_EQ(button.toolTip(), QString::fromStdString(program.files.AppPath()));
}

TEST_F(BinderTest, ACheckBoxTogglesTheControlAndShowsWhatAHandlerSets) {
    QCheckBox check(&window);
    binder.Check(form.Check3, check);
    CountClicks(form.Check3);
    check.click();
    EXPECT_EQ(form.Check3.Value, kChecked);
    EXPECT_TRUE(check.isChecked());
    EXPECT_EQ(check.text(), "Shoot2SU");
    form.Check3.Value = kUnchecked;
    Settle();
    EXPECT_FALSE(check.isChecked());
    EXPECT_EQ(clicks, 2) << "showing the value clicks nothing";
}

TEST_F(BinderTest, ACheckBoxThatItsHandlerClearsAgainDoesNotStayTicked) {
    QCheckBox check(&window);
    binder.Check(form.Check3, check);
    form.Check3.Click.Connect([this] { form.Check3.Value = kUnchecked; });
    check.click();
    EXPECT_FALSE(check.isChecked());
}

TEST_F(BinderTest, OptionsClearEachOtherThroughTheControl) {
    QRadioButton inches(&window);
    QRadioButton feet(&window);
    binder.Option(form.optUnits(0), inches);
    binder.Option(form.optUnits(1), feet);
    EXPECT_TRUE(inches.isChecked());
    feet.click();
    Settle();
    EXPECT_TRUE(form.optUnits(1).Value);
    EXPECT_FALSE(inches.isChecked());
    feet.click();
    EXPECT_TRUE(feet.isChecked()) << "a second click leaves it chosen";
}

TEST_F(BinderTest, TypingRunsChangeAndAHandlersTextShowsWithoutAnother) {
    QLineEdit field(&window);
    int changes = 0;
    form.TextMatSize.Change.Connect([&] { ++changes; });
    binder.Text(form.TextMatSize, field);
    field.clear();
    changes = 0;
    QTest::keyClicks(&field, "42");
    EXPECT_EQ(form.TextMatSize.Text(), "42");
    EXPECT_EQ(changes, 2);
    form.TextMatSize.Text = "7";
    Settle();
    EXPECT_EQ(field.text(), "7");
    EXPECT_EQ(changes, 3);
}

TEST_F(BinderTest, ATextThatItsHandlerRefusesGoesBack) {
    QLineEdit field(&window);
    binder.Text(form.TextLoops, field);
    field.setText("");
    QTest::keyClicks(&field, "-3");
    Settle();
    EXPECT_EQ(field.text(), QString::fromStdString(form.TextLoops.Text));
    EXPECT_NE(form.TextLoops.Text(), "-3");
}

TEST_F(BinderTest, AnEditableChoiceRunsClickForARowAndChangeForTyping) {
    QComboBox choice(&window);
    choice.setEditable(true);
    form.cmbDirection.SetListIndex(0);
    binder.Combo(form.cmbDirection, choice);
    CountClicks(form.cmbDirection);
    int changes = 0;
    form.cmbDirection.Change.Connect([&] { ++changes; });
    EXPECT_EQ(choice.count(), 2);
    EXPECT_EQ(choice.currentText(), "Horizontal");
    emit choice.activated(1);
    EXPECT_EQ(form.cmbDirection.ListIndex(), 1);
    EXPECT_EQ(clicks, 1);
    Settle();
    QTest::keyClicks(choice.lineEdit(), "s");
    EXPECT_EQ(form.cmbDirection.Text(), "Verticals");
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(clicks, 1);
}

TEST_F(BinderTest, LeavingAnEditableChoiceOrReturnInItChoosesNoRow) {
    QComboBox choice(&window);
    choice.setEditable(true);
    binder.Combo(form.cmbDirection, choice);
    CountClicks(form.cmbDirection);
    window.show();
    choice.setFocus();
    choice.lineEdit()->selectAll();
    QTest::keyClicks(choice.lineEdit(), "Horizontal");
    QTest::keyClick(choice.lineEdit(), Qt::Key_Return);
    choice.clearFocus();
    Settle();
    EXPECT_EQ(form.cmbDirection.Text(), "Horizontal");
    EXPECT_EQ(form.cmbDirection.ListIndex(), kNoRow);
    EXPECT_EQ(clicks, 0);
}

TEST_F(BinderTest, EntriesThatAHandlerChangesShow) {
    QComboBox choice(&window);
    binder.Combo(form.cmbDirection, choice);
    form.cmbDirection.Clear();
    form.cmbDirection.AddItem("Aslant");
    form.cmbDirection.SetListIndex(0);
    Settle();
    ASSERT_EQ(choice.count(), 1);
    EXPECT_EQ(choice.currentText(), "Aslant");
}

TEST_F(BinderTest, AScrollBarTellsDraggingFromSteps) {
    QScrollBar bar(Qt::Horizontal, &window);
    std::vector<std::string> events;
    form.HSColorShift(1).Scroll.Connect([&] { events.push_back("Scroll"); });
    form.HSColorShift(1).Change.Connect([&] { events.push_back("Change"); });
    binder.Slider(form.HSColorShift(1), bar);
    EXPECT_EQ(bar.minimum(), -255);
    EXPECT_EQ(bar.pageStep(), 5);
    bar.setSliderDown(true);
    bar.setSliderPosition(10);
    bar.setSliderPosition(20);
    bar.setSliderDown(false);
    EXPECT_THAT(events, ElementsAre("Scroll", "Scroll", "Change"));
    events.clear();
    bar.triggerAction(QAbstractSlider::SliderPageStepAdd);
    EXPECT_EQ(form.HSColorShift(1).Value, 25);
    EXPECT_THAT(events, ElementsAre("Change"));
    events.clear();
    form.HSColorShift(1).Value = -7;
    Settle();
    EXPECT_EQ(bar.value(), -7);
    EXPECT_THAT(events, ElementsAre("Change")) << "by the handler's setting alone";
}

TEST_F(BinderTest, ASliderThatFollowsTheHandChangesAtEveryStep) {
    QScrollBar bar(Qt::Horizontal, &window);
    std::vector<std::string> events;
    form.RS.Scroll.Connect([&] { events.push_back("Scroll"); });
    form.RS.Change.Connect([&] { events.push_back("Change"); });
    binder.Slider(form.RS, bar, Binder::Drag::Changes);
    bar.setSliderDown(true);
    bar.setSliderPosition(500);
    bar.setSliderPosition(600);
    bar.setSliderDown(false);
    EXPECT_THAT(events, ElementsAre("Change", "Change"));
    EXPECT_EQ(form.RS.Value, 600);
}

TEST_F(BinderTest, ALabelsClickAndDoubleClickReachTheControl) {
    QLabel label(&window);
    label.resize(100, 20);
    int doubles = 0;
    form.lblPubPath.DblClick.Connect([&] { ++doubles; });
    CountClicks(form.lblPubPath);
    binder.Caption(form.lblPubPath, label);
    form.lblPubPath.Caption = "C:\\a.jpg";
    Settle();
    EXPECT_EQ(label.text(), "C:\\a.jpg");
    window.show();
    QTest::mouseClick(&label, Qt::LeftButton);
    EXPECT_EQ(clicks, 1);
    QTest::mouseDClick(&label, Qt::LeftButton);
    EXPECT_EQ(doubles, 1);
}

TEST_F(BinderTest, TheRightButtonReachesAButtonsMouseDown) {
    QPushButton button(&window);
    std::vector<int> buttons;
    form.cmdListHigh.MouseDown.Connect([&](const MouseArgs& args) { buttons.push_back(args.button); });
    binder.Button(form.cmdListHigh, button);
    window.show();
    QTest::mouseClick(&button, Qt::RightButton);
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_THAT(buttons, ElementsAre(2, 1));
}

TEST_F(BinderTest, AnErrorThatAHandlerLetsOutIsShownAndNothingElseBreaks) {
    QPushButton button(&window);
    binder.Button(form.cmdListHigh, button);
    form.cmdListHigh.Click.Connect([] { throw RunTimeError(ErrorNumber::Overflow); });
    button.click();
    button.click();
    ASSERT_EQ(program.desktop.dialogs.messages.size(), 2U);
    EXPECT_EQ(program.desktop.dialogs.messages[0].text, DescriptionOf(ErrorNumber::Overflow));
}

TEST_F(BinderTest, ColoursFollowTheProgramAndTheStartingOneIsLeftToTheLook) {
    QLineEdit field(&window);
    binder.Text(form.TextMatSize, field);
    binder.Colours(form.TextMatSize, field);
    const QColor atRest = field.palette().color(QPalette::Base);
    form.TextMatSize.BackColor = 0xFF8080;
    form.TextMatSize.ForeColor = 0x010203;
    Settle();
    EXPECT_EQ(field.palette().color(QPalette::Base), QColor(0x80, 0x80, 0xFF));
    EXPECT_EQ(field.palette().color(QPalette::Text), QColor(0x03, 0x02, 0x01));
    form.TextMatSize.BackColor = 0xC0C0C0;
    Settle();
    EXPECT_EQ(field.palette().color(QPalette::Base), atRest);
}

TEST_F(BinderTest, TheFormMayOutliveItsWidgets) {
    auto* button = new QPushButton(&window);
    binder.Button(form.cmdListHigh, *button);
    delete button;
    form.cmdListHigh.ToolTipText = "Nobody looks";
    Settle();
    EXPECT_THAT(program.desktop.dialogs.messages, IsEmpty());
}

} // namespace
} // namespace mirelle::test
