#include "tests/driver/TestConversation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace mirelle::driver {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

struct ControlCommands : testing::Test {
    TestConversation say;
    std::vector<std::string> events;

    void SetUp() override {
        say.files.AddFile("C:\\Pictures\\a_1.jpg");
        say.files.AddFile("C:\\Pictures\\b_2.jpg");
        say.files.AddFolder("D:\\");
        ASSERT_EQ(say("start"), "ok");
    }
    // Notes an event under a name of its own.
    template <class... Args>
    void Note(Event<Args...>& event, const std::string& name) {
        event.Connect([this, name](Args...) { events.push_back(name); });
    }
};

TEST_F(ControlCommands, TypingRunsChangeWhenTheTextIsAnother) {
    Note(say.Form().TextMatSize.Change, "Change");
    EXPECT_EQ(say("set TextMatSize.Text \"2 1/2\""), "ok");
    EXPECT_EQ(say("set TextMatSize.Text \"2 1/2\""), "ok");
    EXPECT_EQ(say("get TextMatSize.Text"), R"(ok "2 1/2")");
    EXPECT_THAT(events, ElementsAre("Change"));
}

TEST_F(ControlCommands, TypingIntoAComboBoxLeavesNoRowCurrent) {
    FrmPicX& form = say.Form();
    Note(form.cmbDirection.Change, "Change");
    EXPECT_EQ(say("set cmbDirection.ListIndex 1"), "ok");
    EXPECT_EQ(say("get cmbDirection.Text"), R"(ok "Vertical")");
    EXPECT_EQ(say("set cmbDirection.Text Horizontal"), "ok");
    EXPECT_EQ(say("get cmbDirection.ListIndex"), "ok -1");
    EXPECT_THAT(events, ElementsAre("Change"));
}

TEST_F(ControlCommands, ASliderRunsOneChangeAndNoneAtTheSameValue) {
    Note(say.Form().RS.Change, "Change");
    EXPECT_EQ(say("set RS.Value 500"), "ok");
    EXPECT_EQ(say("set RS.Value 500"), "ok");
    EXPECT_EQ(say("get RS.Value"), "ok 500");
    EXPECT_THAT(events, ElementsAre("Change"));
    EXPECT_EQ(say("set RS.Value 3"), "error run-time 380 Invalid property value");
    EXPECT_EQ(say("set RS.Value 40000"), "error run-time 6 Overflow");
}

TEST_F(ControlCommands, ACheckBoxRunsClickWhenItsValueChanges) {
    Note(say.Form().ckOnly.Click, "Click");
    EXPECT_EQ(say("set ckOnly.Value 1"), "ok");
    EXPECT_EQ(say("set ckOnly.Value 1"), "ok");
    EXPECT_EQ(say("get ckOnly.Value"), "ok 1");
    EXPECT_EQ(say("click ckOnly"), "ok");
    EXPECT_EQ(say("get ckOnly.Value"), "ok 0");
    EXPECT_THAT(events, ElementsAre("Click", "Click"));
    EXPECT_EQ(say("set ckOnly.Value 2"), "error run-time 380 Invalid property value");
}

TEST_F(ControlCommands, AnOptionClearsTheOthersOfItsArray) {
    EXPECT_EQ(say("get optUnits(0).Value"), "ok true");
    EXPECT_EQ(say("click optUnits(2)"), "ok");
    EXPECT_EQ(say("get optUnits(0).Value"), "ok false");
    EXPECT_EQ(say("set optUnits(1).Value true"), "ok");
    EXPECT_EQ(say("get optUnits(2).Value"), "ok false");
}

TEST_F(ControlCommands, ChoosingARowRunsItsClickAlsoWhenItIsThePresentOne) {
    FrmPicX& form = say.Form();
    form.List1.AddItem("1,2,3");
    form.List1.AddItem("4,5,6");
    Note(form.List1.Click, "Click");
    EXPECT_EQ(say("set List1.ListIndex 1"), "ok");
    EXPECT_EQ(say("select List1 1"), "ok");
    EXPECT_EQ(say("get List1.ListIndex"), "ok 1");
    EXPECT_EQ(say("get List1.Text"), R"(ok "4,5,6")");
    EXPECT_THAT(events, ElementsAre("Click", "Click"));
    EXPECT_EQ(say("select List1 2"), "error run-time 380 Invalid property value");
}

TEST_F(ControlCommands, AClickOnAListIsOneOnItsCurrentRow) {
    FrmPicX& form = say.Form();
    form.List1.AddItem("1,2,3");
    Note(form.List1.Click, "Click");
    EXPECT_EQ(say("click List1"), "ok");
    EXPECT_THAT(events, ElementsAre());
    say("select List1 0");
    EXPECT_EQ(say("click List1"), "ok");
    EXPECT_THAT(events, ElementsAre("Click", "Click"));
}

TEST_F(ControlCommands, AClickOnAComboBoxIsThatOfItsPresentEntry) {
    say("set cmbDirection.Text anything");
    Note(say.Form().cmbDirection.Click, "Click");
    EXPECT_EQ(say("click cmbDirection"), "ok");
    EXPECT_EQ(say("get cmbDirection.Text"), R"(ok "anything")");
    EXPECT_THAT(events, ElementsAre("Click"));
}

TEST_F(ControlCommands, RowsAreReadOneByOneAndTogetherAndSetByCode) {
    say.Form().List2.AddItem("C:\\a.jpg");
    say.Form().List2.AddItem("C:\\b.jpg");
    Note(say.Form().List2.Click, "Click");
    EXPECT_EQ(say("get List2.ListCount"), "ok 2");
    EXPECT_EQ(say("get List2.List"), R"(ok ["C:\\a.jpg","C:\\b.jpg"])");
    EXPECT_EQ(say(R"(set List2.List(1) "C:\\c d.jpg")"), "ok");
    EXPECT_EQ(say("get List2.List(1)"), R"(ok "C:\\c d.jpg")");
    EXPECT_EQ(say("get List2.List(2)"), R"(ok "")");
    EXPECT_EQ(say("set List2.List(2) x"), "error run-time 381 Invalid property array index");
    EXPECT_THAT(events, ElementsAre());
}

TEST_F(ControlCommands, FilesAreSelectedByTheirRow) {
    FrmPicX& form = say.Form();
    EXPECT_EQ(say("set File5.Path C:\\Pictures"), "ok");
    Note(form.File5.Click, "Click");
    EXPECT_EQ(say("get File5.List"), R"(ok ["a_1.jpg","b_2.jpg"])");
    EXPECT_EQ(say("get File5.ListCount"), "ok 2");
    EXPECT_EQ(say("get File5.ListIndex"), "ok -1");
    EXPECT_EQ(say("get File5.FileName"), R"(ok "")");
    EXPECT_EQ(say("select File5 1"), "ok");
    EXPECT_EQ(say("get File5.FileName"), R"(ok "b_2.jpg")");
    EXPECT_EQ(say("get File5.List(0)"), R"(ok "a_1.jpg")");
    EXPECT_EQ(say("click File5"), "ok");
    EXPECT_THAT(events, ElementsAre("Click", "Click"));
    EXPECT_EQ(say("set File5.Pattern *.bmp"), "ok");
    EXPECT_EQ(say("get File5.Pattern"), R"(ok "*.bmp")");
    EXPECT_EQ(say("get File5.ListCount"), "ok 0");
}

TEST_F(ControlCommands, AFolderOpensByADoubleClickOrByCode) {
    Note(say.Form().Dir5.Change, "Change");
    EXPECT_EQ(say("opendir Dir5 C:\\Pictures"), "ok");
    EXPECT_EQ(say("get Dir5.Path"), R"(ok "C:\\Pictures")");
    EXPECT_EQ(say("set Dir5.Path C:\\"), "ok");
    EXPECT_EQ(say("set Dir5.Path C:\\"), "ok");
    EXPECT_THAT(say("get Dir5.List"), StartsWith(R"(ok ["C:\\Mirelle","C:\\Pictures")"));
    EXPECT_THAT(events, ElementsAre("Change", "Change"));
    EXPECT_EQ(say("opendir Dir5 C:\\Nowhere"), "error run-time 76 Path not found");
    EXPECT_EQ(say("get Dir5.Path"), R"(ok "C:\\")");
}

TEST_F(ControlCommands, ADriveIsChosenWithoutRegardToCase) {
    Note(say.Form().Drive5.Change, "Change");
    EXPECT_EQ(say("get Drive5.List"), R"(ok ["c:","d:"])");
    EXPECT_EQ(say("get Drive5.List(1)"), R"(ok "d:")");
    EXPECT_EQ(say("get Drive5.List(2)"), R"(ok "")");
    EXPECT_EQ(say("set Drive5.Drive D:"), "ok");
    EXPECT_EQ(say("get Drive5.Drive"), R"(ok "D:")");
    EXPECT_EQ(say("get Drive5.ListIndex"), "ok 1");
    EXPECT_EQ(say("set Drive5.Drive d:"), "ok");
    EXPECT_EQ(say("set Drive5.Drive Z:"), "ok"); // one that is not ready
    EXPECT_EQ(say("get Drive5.Drive"), R"(ok "Z:")");
    EXPECT_THAT(events, ElementsAre("Change", "Change"));
}

TEST_F(ControlCommands, ASpinnerHasTwoArrows) {
    Note(say.Form().UpDown4.UpClick, "Up");
    Note(say.Form().UpDown4.DownClick, "Down");
    EXPECT_EQ(say("spin UpDown4 up"), "ok");
    EXPECT_EQ(say("spin UpDown4 down"), "ok");
    EXPECT_THAT(events, ElementsAre("Up", "Down"));
}

TEST_F(ControlCommands, ADoubleClickIsOneEvent) {
    Note(say.Form().lblPubPath.Click, "Click");
    Note(say.Form().lblPubPath.DblClick, "DblClick");
    EXPECT_EQ(say("dblclick lblPubPath"), "ok");
    EXPECT_THAT(events, ElementsAre("DblClick"));
    EXPECT_EQ(say("dblclick Form"), "ok");
}

TEST_F(ControlCommands, AUserDoesNothingToADisabledControl) {
    FrmPicX& form = say.Form();
    for (Control* control : form.Controls())
        control->Enabled = false;
    form.List1.AddItem("row");
    Note(form.Command5.Click, "click");
    Note(form.ckOnly.Click, "check");
    Note(form.TextMatSize.Change, "text");
    Note(form.RS.Change, "slider");
    Note(form.List1.Click, "list");
    Note(form.UpDown4.UpClick, "spinner");
    Note(form.PicImage.MouseDown, "mouse");
    Note(form.lblPubPath.DblClick, "double click");
    Note(form.Drive5.Change, "drive");
    Note(form.Dir5.Change, "folder");
    for (const char* line :
         {"click Command5", "click ckOnly", "set ckOnly.Value 1", "set TextMatSize.Text 12",
          "set RS.Value 600", "select List1 0", "set List1.ListIndex 0", "click List1", "spin UpDown4 up",
          "mouse down PicImage 1 2 3", "dblclick lblPubPath",
          "set Drive5.Drive D:", "opendir Dir5 C:\\Pictures", "click optUnits(1)", "set cmbDirection.Text x",
          "set cmbDirection.ListIndex 0"}) {
        EXPECT_EQ(say(line), "ok") << line;
    }
    EXPECT_THAT(events, ElementsAre());
    EXPECT_EQ(say("get ckOnly.Value"), "ok 0");
    EXPECT_EQ(say("get TextMatSize.Text"), R"(ok "5")");
    EXPECT_EQ(say("get List1.ListIndex"), "ok -1");
    EXPECT_EQ(say("get optUnits(1).Value"), "ok false");
}

TEST_F(ControlCommands, CodeReachesADisabledControl) {
    say("set TextMatSize.Enabled false");
    EXPECT_EQ(say("set TextMatSize.BackColor 255"), "ok");
    EXPECT_EQ(say("get TextMatSize.BackColor"), "ok 255");
    EXPECT_EQ(say("get TextMatSize.Enabled"), "ok false");
}

TEST_F(ControlCommands, HiddenControlsAreReachedLikeAnyOther) {
    Note(say.Form().Command10.Click, "Click");
    EXPECT_EQ(say("get Command10.Visible"), "ok false");
    EXPECT_EQ(say("click Command10"), "ok");
    EXPECT_THAT(events, ElementsAre("Click"));
}

TEST_F(ControlCommands, MousePlacesAreClientPixelsOfAnyScale) {
    std::vector<MouseArgs> seen;
    FrmPicX& form = say.Form();
    const auto look = [&seen](const MouseArgs& args) { seen.push_back(args); };
    form.MouseDown.Connect(look);
    form.PicImage.MouseMove.Connect(look);
    form.Picture1.MouseUp.Connect(look); // a box in twips
    form.Frame3.MouseMove.Connect(look);
    say("window normal 1058 600");
    EXPECT_EQ(say("mouse down Form 1 100 50"), "ok");
    EXPECT_EQ(say("set Form.ScaleWidth 529"), "ok");
    EXPECT_EQ(say("mouse down Form 2 100 50"), "ok");
    EXPECT_EQ(say("mouse move PicImage 0 7.5 -3"), "ok");
    EXPECT_EQ(say("mouse up Picture1 1 10 20"), "ok");
    EXPECT_EQ(say("mouse move Frame3 0 10 20"), "ok");
    ASSERT_EQ(seen.size(), 5U);
    const auto expect = [](const MouseArgs& args, int button, float x, float y) {
        EXPECT_EQ(args.button, button);
        EXPECT_EQ(args.x, x);
        EXPECT_EQ(args.y, y);
    };
    expect(seen[0], 1, 100, 50);
    expect(seen[1], 2, 50, 50);
    expect(seen[2], 0, 7.5F, -3);
    expect(seen[3], 1, 150, 300);
    expect(seen[4], 0, 10, 20);
}

TEST_F(ControlCommands, AClickOnTheFormOrAPictureBoxIsTheClickAlone) {
    FrmPicX& form = say.Form();
    Note(form.Click, "form");
    Note(form.MouseDown, "down");
    Note(form.Picture2.Click, "chart");
    Note(form.Picture2.MouseDown, "chart down");
    say("click Form");
    say("click Picture2");
    EXPECT_THAT(events, ElementsAre("form", "chart"));
}

TEST_F(ControlCommands, AFloatingPanelIsDraggedOverTheFormAndLetGo) {
    FrmPicX& form = say.Form();
    form.DragOver.Connect(
        [this](Control&, float x, float y) { events.push_back("over " + CStr(x) + " " + CStr(y)); });
    form.DragDrop.Connect([this](Control& panel, float x, float y) {
        events.push_back(panel.FullName() + " " + CStr(x) + " " + CStr(y));
    });
    form.FrShowFrames(0).MouseUp.Connect(
        [this](const MouseArgs& args) { events.push_back("up " + CStr(args.button)); });
    EXPECT_EQ(say("drag FrShowFrames(0) 300 200"), "ok");
    EXPECT_THAT(events, ElementsAre("over 300 200", "FrShowFrames(0) 300 200", "up 1"));
}

TEST_F(ControlCommands, EscapeIsSeenOnce) {
    EXPECT_EQ(say("key esc"), "ok");
    EXPECT_TRUE(say.session.desktop.keyboard.EscapeWentDown());
    EXPECT_FALSE(say.session.desktop.keyboard.EscapeWentDown());
}

TEST_F(ControlCommands, MeasuresAndColoursAreNumbers) {
    EXPECT_EQ(say("get Shape1.BorderColor"), "ok 65535");
    EXPECT_EQ(say("get RS.Min"), "ok 4");
    EXPECT_EQ(say("get RS.Max"), "ok 1020");
    EXPECT_EQ(say("get hStart.LargeChange"), "ok 20");
    EXPECT_EQ(say("get hStart.SmallChange"), "ok 1");
    EXPECT_EQ(say("set Frame3.Left 12.5"), "ok");
    EXPECT_EQ(say("get Frame3.Left"), "ok 12.5");
    EXPECT_EQ(say("set Frame3.Width -1"), "error run-time 380 Invalid property value");
    EXPECT_EQ(say("get Picture1.ScaleMode"), "ok 1");
    EXPECT_EQ(say("get PicImage.ScaleMode"), "ok 3");
    EXPECT_EQ(say("set picSmall.Width 320"), "ok");
    EXPECT_EQ(say("get picSmall.ScaleWidth"), "ok 320");
    EXPECT_EQ(say("get picSmall.AutoSize"), "ok true");
    EXPECT_EQ(say("get Image1.Stretch"), "ok true");
    EXPECT_EQ(say("get Label2(1).FontSize"), "ok 8");
}

TEST_F(ControlCommands, FormPropertiesAndSharedValuesGoByTheirNames) {
    EXPECT_EQ(say("get Form.WindowState"), "ok 0");
    EXPECT_EQ(say("get Form.ScaleMode"), "ok 3");
    EXPECT_EQ(say("get Form.Topmost"), "ok true");
    EXPECT_EQ(say("get Form.Visible"), "ok true");
    EXPECT_EQ(say("get Form.CropStartX"), "ok null");
    EXPECT_EQ(say("get Form.CropDragging"), "ok false");
    EXPECT_EQ(say("get Form.FirstActivate"), "ok false");
    EXPECT_EQ(say("set Form.CropCancelled true"), "ok");
    EXPECT_EQ(say("get Form.CropCancelled"), "ok true");
    EXPECT_EQ(say("set Form.CurrentImagePath 12"), "ok");
    EXPECT_EQ(say("get Form.CurrentImagePath"), R"(ok "12")");
    EXPECT_EQ(say("set Form.IncrementCounter 12"), "ok");
    EXPECT_EQ(say("get Form.IncrementCounter"), "ok 12");
    EXPECT_EQ(say("set Form.IncrementCounter 1.5"), "ok");
    EXPECT_EQ(say("get Form.IncrementCounter"), "ok 1.5");
    EXPECT_EQ(say("set Form.IncrementCounter null"), "ok");
    EXPECT_EQ(say("get Form.IncrementCounter"), "ok null");
    EXPECT_EQ(say("set Form.MaterialPrefix Art_"), "ok");
    EXPECT_EQ(say("get Form.MaterialPrefix"), R"(ok "Art_")");
    EXPECT_EQ(say("set Form.GradDirectionH true"), "ok");
    EXPECT_EQ(say("get Form.GradDirectionH"), "ok true");
    EXPECT_EQ(say("set Form.RStart 40000"), "error run-time 6 Overflow");
    EXPECT_EQ(say("set Form.RStart 255"), "ok");
    EXPECT_EQ(say("get Form.RStart"), "ok 255");
}

TEST_F(ControlCommands, WindowChangesRunResize) {
    FrmPicX& form = say.Form();
    Note(form.Resize, "Resize");
    EXPECT_EQ(say("window normal 800 600"), "ok");
    EXPECT_EQ(say("get Form.ScaleWidth"), "ok 800");
    EXPECT_EQ(say("get Form.Width"), "ok 12000");
    EXPECT_EQ(say("window normal 800 600"), "ok"); // nothing is other than before
    EXPECT_EQ(say("window maximized"), "ok");
    EXPECT_EQ(say("get Form.WindowState"), "ok 2");
    EXPECT_EQ(say("get Form.ScaleWidth"), "ok 1920");
    EXPECT_EQ(say("window maximized 1600 900"), "ok");
    EXPECT_EQ(say("get Form.ScaleHeight"), "ok 900");
    EXPECT_EQ(say("window minimized"), "ok");
    EXPECT_EQ(say("get Form.ScaleHeight"), "ok 900");
    EXPECT_EQ(say("window normal"), "ok");
    EXPECT_EQ(say("get Form.ScaleWidth"), "ok 800");
    EXPECT_EQ(say("set Form.WindowState 2"), "ok");
    EXPECT_EQ(say("set Form.WindowState 3"), "error run-time 380 Invalid property value");
    EXPECT_EQ(events.size(), 6U);
}

TEST_F(ControlCommands, ActivateIsTheWindowComingBack) {
    Note(say.Form().Activate, "Activate");
    EXPECT_EQ(say("activate"), "ok");
    EXPECT_THAT(events, ElementsAre("Activate"));
}

} // namespace
} // namespace mirelle::driver
