// Load, Activate and the window's end, with every handler of the program connected.
#include "tests/support/Patterns.h"
#include "tests/support/TestProgram.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace mirelle {
namespace {

using test::TestProgram;
using testing::ElementsAre;

constexpr const char* kLibrary = "C:\\Mirelle\\Support\\Materials";

std::vector<std::string> Rows(const ListControl& list) {
    return list.Rows();
}

TEST(Load, StartsWithAFirstActivateAheadAndNoClipboardSource) {
    TestProgram program;
    program.form.ClipboardIsSource = true;
    program.form.Load();
    EXPECT_TRUE(program.form.FirstActivate);
    EXPECT_FALSE(program.form.ClipboardIsSource);
}

TEST(Load, KeepsTheWindowOnTop) {
    TestProgram program;
    program.form.Load();
    EXPECT_TRUE(program.desktop.screen.topmost);
    EXPECT_TRUE(program.form.Topmost());
}

TEST(Load, PutsTheWindowsTwipsIntoThePixelsOfTheWorkingPicture) {
    TestProgram program;
    program.form.Left = 300;
    program.form.Top = 150;
    program.form.Load();
    EXPECT_EQ(program.form.PicImage.Left(), 300);
    EXPECT_EQ(program.form.PicImage.Top(), 150);
    EXPECT_EQ(program.form.PicImage.Width(), 1024 * 15 - 100);
    EXPECT_EQ(program.form.PicImage.Height(), 700 * 15);
}

TEST(Load, LeavesTheWidthOfTheWorkingPictureWhereTheWindowIsTooNarrow) {
    TestProgram program;
    program.form.UserWindow(kWindowNormal, {6, 700});
    const float before = program.form.PicImage.Width;
    program.form.Load();
    EXPECT_EQ(program.form.PicImage.Width(), before);
    EXPECT_EQ(program.form.PicImage.Height(), 700 * 15);
}

TEST(Load, OffersTheThirteenPrefixesInOrder) {
    TestProgram program;
    program.form.Load();
    EXPECT_THAT(Rows(program.form.textProfileName),
                ElementsAre("BldgFace_", "Art_", "Fractal_", "Graffiti_", "Metal_", "Color_", "Gradient_",
                            "Bio_", "Arch_", "Industrial_", "Material_", "Texture_", "Misc_"));
}

TEST(Load, ReadsThePrefixFileAndThenAddsNoPrefixesOfItsOwn) {
    TestProgram program;
    int reads = 0;
    program.form.cmdOpen2Combo.Click.Connect([&] {
        ++reads;
        program.form.textProfileName.AddItem("Own_");
    });
    program.form.Load();
    EXPECT_EQ(reads, 1);
    EXPECT_EQ(program.form.textProfileName.List(program.form.textProfileName.ListCount() - 1), "Own_");
}

TEST(Load, SelectsTheFirstFileOfTheFolderThatTheListStandsIn) {
    TestProgram program;
    program.files.AddFile("C:\\Mirelle\\b.jpg");
    program.files.AddFile("C:\\Mirelle\\a.jpg");
    program.form.File5.Refresh();
    int clicks = 0;
    program.form.File5.Click.Connect([&] { ++clicks; });
    program.form.Load();
    EXPECT_EQ(program.form.File5.FileName(), "a.jpg");
    EXPECT_GE(clicks, 1);
}

TEST(Load, GivesNoMessageWithoutASupportFolder) {
    TestProgram program;
    program.Start();
    EXPECT_TRUE(program.desktop.dialogs.messages.empty());
    EXPECT_EQ(program.form.File5.ListCount(), 0);
    EXPECT_TRUE(program.form.Picture().IsEmpty());
    EXPECT_FALSE(program.form.FirstActivate);
}

TEST(Load, ShowsTheWorkingPictureOnTheForm) {
    TestProgram program;
    program.form.PicImage.Picture = test::ChartPicture(6, 4);
    program.form.Load();
    EXPECT_TRUE(program.form.Picture().SharesPixelsWith(program.form.PicImage.Picture));
}

struct LibraryProgram : TestProgram {
    LibraryProgram() {
        files.AddFolder(kLibrary);
        AddPicture("Art_0012.jpg", 8);
        AddPicture("Metal_3.jpg", 9);
        AddPicture("brick.jpg", 10);
        AddPicture("7wall.jpg", 11);
        AddPicture("other.bmp", 12);
    }
    void AddPicture(const std::string& name, int width) {
        const std::string path = std::string(kLibrary) + "\\" + name;
        files.AddFile(path);
        loader.pictures[path] = test::ChartPicture(width, 4);
    }
};

TEST(Activate, ChecksIncrementAndOffersThePreviewablePatterns) {
    TestProgram program;
    program.Start();
    EXPECT_EQ(program.form.ckIncrement.Value(), kChecked);
    EXPECT_THAT(Rows(program.form.Combo5), ElementsAre("*.jpg", "*.jpeg", "*.bmp", "*.gif"));
    EXPECT_EQ(program.form.Combo5.ListIndex(), 0);
}

TEST(Activate, PutsTheListBackToTheFirstPatternEachTime) {
    LibraryProgram program;
    program.Start();
    FrmPicX& form = program.form;
    form.Combo5.SetListIndex(2);
    form.ckIncrement.UserClick();
    ASSERT_EQ(form.ckIncrement.Value(), kUnchecked);
    form.File5.SetPattern("*.bmp");
    form.Activate();
    EXPECT_EQ(form.Combo5.Text(), "*.jpg");
    EXPECT_EQ(form.File5.Pattern(), "*.jpg");
    EXPECT_EQ(form.ckIncrement.Value(), kChecked);
    EXPECT_EQ(form.Combo5.ListCount(), 4);
    form.Activate();
    EXPECT_EQ(form.Combo5.Text(), "*.jpg");
    EXPECT_EQ(form.ckIncrement.Value(), kChecked);
}

TEST(Activate, AddsNoPatternsToAListThatHasSome) {
    TestProgram program;
    program.form.Combo5.AddItem("*.tif");
    program.Start();
    EXPECT_THAT(Rows(program.form.Combo5), ElementsAre("*.tif"));
    EXPECT_EQ(program.form.File5.Pattern(), "*.tif");
}

TEST(Activate, PointsTheLibraryAtItsFolderOnce) {
    LibraryProgram program;
    program.Start();
    FrmPicX& form = program.form;
    EXPECT_EQ(form.Dir5.Path(), kLibrary);
    EXPECT_FALSE(form.FirstActivate);
    form.Dir5.SetPath("C:\\Mirelle");
    form.Activate();
    EXPECT_EQ(form.Dir5.Path(), "C:\\Mirelle");
}

// Without the library's own handlers, so that the list holds what the first activation alone puts there.
struct FormAlone : test::ScriptedDesktop {
    test::MemoryFileSystem files;
    test::ScriptedLoader loader;
    test::ScriptedEncoders encoders;
    FrmPicX form{PortsOver(files, loader, encoders)};

    void Start(const std::vector<std::string>& names) {
        files.AddFolder(kLibrary);
        for (const std::string& name : names)
            files.AddFile(std::string(kLibrary) + "\\" + name);
        form.Dir5.Change.Connect([this] { form.File5.SetPath(form.Dir5.Path()); });
        form.Load();
        form.Activate();
    }
};

TEST(FirstActivate, NotesTheNumberOfEveryFileInTheOrderOfTheList) {
    FormAlone alone;
    alone.Start({"Art_0012.jpg", "Metal_3.jpg", "brick.jpg", "7wall.jpg", "My_wall_4b.jpg", "other.bmp"});
    EXPECT_THAT(alone.form.File5.Rows(),
                ElementsAre("7wall.jpg", "Art_0012.jpg", "brick.jpg", "Metal_3.jpg", "My_wall_4b.jpg"));
    EXPECT_THAT(Rows(alone.form.ListHigh), ElementsAre("7", "12", "0", "3", "4"));
}

TEST(FirstActivate, PassesOverANumberBeyondAllRange) {
    FormAlone alone;
    alone.Start({"a_1E999.jpg", "b_5.jpg"});
    EXPECT_THAT(Rows(alone.form.ListHigh), ElementsAre("5"));
    EXPECT_EQ(alone.form.File5.FileName(), "a_1E999.jpg");
    EXPECT_FALSE(alone.form.FirstActivate);
}

TEST(FirstActivate, TellsTheCountOfFiles) {
    FormAlone two;
    two.Start({"a.jpg", "b.jpg"});
    EXPECT_EQ(two.form.Label8(46).Caption(), "2 Files");
    FormAlone one;
    one.Start({"a.jpg"});
    EXPECT_EQ(one.form.Label8(46).Caption(), "1 File");
}

TEST(FirstActivate, LeavesTheCountAsItWasInAnEmptyFolder) {
    FormAlone alone;
    alone.form.Label8(46).Caption = "as it was";
    alone.Start({});
    EXPECT_EQ(alone.form.Label8(46).Caption(), "as it was");
}

TEST(FirstActivate, SelectsTheFirstFileAndShowsTheWorkingPicture) {
    LibraryProgram program;
    program.Start();
    EXPECT_EQ(program.form.File5.FileName(), "7wall.jpg");
    EXPECT_EQ(program.form.File5.ListIndex(), 0);
    EXPECT_TRUE(program.form.Picture().SharesPixelsWith(program.form.PicImage.Picture));
}

TEST(FirstActivate, ShowsTheWorkingPictureAlsoWhereTheLibraryIsEmpty) {
    TestProgram program;
    program.files.AddFolder(kLibrary);
    program.form.Load();
    program.form.PicImage.Picture = test::ChartPicture(6, 4);
    program.form.Activate();
    EXPECT_TRUE(program.form.Picture().SharesPixelsWith(program.form.PicImage.Picture));
    // Once only: the activations after it leave the canvas.
    const Picture canvas = program.form.Picture;
    program.form.PicImage.Picture = test::ChartPicture(5, 3);
    program.form.Activate();
    EXPECT_TRUE(program.form.Picture().SharesPixelsWith(canvas));
}

TEST(FirstActivate, WaitsForTheNormalWindow) {
    LibraryProgram program;
    FrmPicX& form = program.form;
    form.Load();
    form.UserWindow(kWindowMaximized, {1920, 1080});
    form.Activate();
    EXPECT_TRUE(form.FirstActivate);
    EXPECT_NE(form.Dir5.Path(), kLibrary);
    EXPECT_EQ(form.Combo5.ListCount(), 4);
    form.UserWindow(kWindowNormal, {1024, 700});
    form.Activate();
    EXPECT_FALSE(form.FirstActivate);
    EXPECT_EQ(form.Dir5.Path(), kLibrary);
}

TEST(Close, EndsTheProgramAtOnceWithoutAWord) {
    TestProgram program;
    program.Start();
    bool reached = false;
    program.form.QueryUnload.Connect([&] { reached = true; }); // stands behind the program's own handler
    EXPECT_THROW(program.form.UserClose(), test::ProgramEnded);
    EXPECT_FALSE(reached);
    EXPECT_TRUE(program.desktop.dialogs.messages.empty());
    EXPECT_EQ(program.files.WriteCount(), 0);
}

TEST(Close, InAPauseEndsTheProgramThere) {
    TestProgram program;
    program.Start();
    program.form.List2.AddItem("C:\\a.jpg");
    program.form.List2.AddItem("C:\\b.jpg");
    program.desktop.time.duringPause.emplace_back([&] { program.form.UserClose(); });
    EXPECT_THROW(program.form.Command13.Click(), test::ProgramEnded);
    const auto texts = std::ranges::count(program.desktop.console.sent, "SendKeys", &test::SentItem::verb);
    EXPECT_EQ(texts, 2); // of the first file alone, those ahead of its pause
}

class RefusingScreen : public test::ScriptedScreen {
public:
    bool SetTopMost(bool) override { return false; }
};

TEST(SetTopMostWindow, GivesTheCallsResultBackInItsArgument) {
    TestProgram program;
    bool topmost = false;
    program.form.SetTopMostWindow(topmost);
    EXPECT_TRUE(topmost); // the call succeeded
    EXPECT_FALSE(program.desktop.screen.topmost);
    EXPECT_FALSE(program.form.Topmost());

    RefusingScreen refusing;
    Ports ports = program.desktop.PortsOver(program.files, program.loader, program.encoders);
    FrmPicX form({ports.clipboard, ports.dialogs, ports.files, ports.loader, ports.encoders, ports.pump,
                  ports.keyboard, ports.console, ports.viewer, refusing, ports.process});
    topmost = true;
    form.SetTopMostWindow(topmost);
    EXPECT_FALSE(topmost);
}

TEST(AppPath, JoinsThePiecesBelowTheProgramsFolder) {
    TestProgram program;
    EXPECT_EQ(program.form.AppPath("Support/Materials/"), "C:\\Mirelle\\Support\\Materials\\");
    test::MemoryFileSystem atRoot("C:\\");
    test::ScriptedDesktop desktop;
    FrmPicX form(desktop.PortsOver(atRoot, program.loader, program.encoders));
    EXPECT_EQ(form.AppPath("Support/Settings"), "C:\\Support\\Settings");
}

} // namespace
} // namespace mirelle
