#include "canvas/OpenAnyImage.h"

#include "tests/support/ErrorOf.h"
#include "tests/support/Patterns.h"
#include "tests/support/TestProgram.h"
#include "tests/support/TestTiff.h"

#include <gtest/gtest.h>

namespace mirelle::test {
namespace {

struct OpenAnyImageTest : testing::Test {
    OpenAnyImageTest() { form.picSmall.Picture = former; }

    bool ShowsFormer() const { return form.picSmall.Picture().SharesPixelsWith(former); }

    TestProgram program;
    FrmPicX& form = program.form;
    Picture wall = ChartPicture(40, 30, 7);
    Picture former = ChartPicture(10, 10, 1);
};

TEST_F(OpenAnyImageTest, LoadsWhatTheLoaderKnows) {
    for (const char* path : {"D:\\a.bmp", "D:\\a.DIB", "D:\\a.gif", "D:\\a.Jpg", "D:\\a.wmf", "D:\\a.EMF",
                             "D:\\a.ico", "D:\\a.cur", "jpg"}) {
        form.picSmall.Picture = former;
        program.loader.pictures[path] = wall;
        OpenFileByExtension(form, path);
        EXPECT_TRUE(form.picSmall.Picture().SharesPixelsWith(wall)) << path;
    }
}

TEST_F(OpenAnyImageTest, PassesOnWhatTheLoaderRaises) {
    EXPECT_EQ(ErrorOf([&] { OpenFileByExtension(form, "D:\\a.bmp"); }), ErrorNumber::FileNotFound);
    EXPECT_TRUE(ShowsFormer());
}

TEST_F(OpenAnyImageTest, ReadsTiffFilesByTheProgramsOwnReader) {
    const TestTiff file{TiffFields(2, 1, 8, 1, 1, 1, 1), {{5, 6}}};
    program.files.AddFile("D:\\scan.tif", TiffBytes(file));
    OpenFileByExtension(form, "D:\\scan.Tif");
    EXPECT_EQ(form.picSmall.Picture().Width(), 2);
    EXPECT_EQ(program.loader.loads, 0);
    EXPECT_TRUE(program.files.FileExists("c:\\komp.txt"));
}

TEST_F(OpenAnyImageTest, MissesTheObjectThatReadsTheOtherKinds) {
    for (const char* path : {"D:\\a.tga", "D:\\a.PNG"}) {
        EXPECT_EQ(ErrorOf([&] { OpenFileByExtension(form, path); }), ErrorNumber::ObjectNotSet) << path;
        EXPECT_TRUE(ShowsFormer()) << path;
    }
    EXPECT_EQ(ErrorOf([&] { OpenFileByExtension(form, "D:\\a.pcx"); }), ErrorNumber::ObjectNotSet);
    EXPECT_TRUE(form.picSmall.Picture().IsEmpty());
}

TEST_F(OpenAnyImageTest, DoesNothingWithAnyOtherName) {
    for (const char* path : {"", "if", "D:\\a.jpeg", "D:\\a.tiff", "D:\\a.tif ", "D:\\a"}) {
        program.loader.pictures[path] = wall;
        OpenFileByExtension(form, path);
        EXPECT_TRUE(ShowsFormer()) << path;
    }
    EXPECT_TRUE(program.desktop.dialogs.messages.empty());
}

TEST_F(OpenAnyImageTest, AsksWithOneFilterForAllKinds) {
    OpenAnyImage(form);
    ASSERT_EQ(program.desktop.dialogs.dialogs.size(), 1U);
    EXPECT_EQ(program.desktop.dialogs.dialogs[0].open.filter,
              "*.tif *.png *.bmp *.pcx *.tga *.dib *.gif *.jpg *.wmf *.emf *.ico *.cur|"
              "*.tif; *.png; *.bmp; *.pcx; *.tga; *.dib; *.gif; *.jpg; *.wmf; *.emf; *.ico; *.cur");
    EXPECT_TRUE(ShowsFormer());
}

TEST_F(OpenAnyImageTest, OpensWhatWasChosen) {
    program.loader.pictures["D:\\a.jpg"] = wall;
    program.desktop.dialogs.openAnswers.push_back("D:\\a.jpg");
    OpenAnyImage(form);
    EXPECT_TRUE(form.picSmall.Picture().SharesPixelsWith(wall));
}

TEST_F(OpenAnyImageTest, OpensTheLastChoiceAgainAtACancel) {
    program.loader.pictures["D:\\a.jpg"] = wall;
    program.desktop.dialogs.openAnswers.push_back("D:\\a.jpg");
    OpenAnyImage(form);
    form.picSmall.Picture = former;
    OpenAnyImage(form); // nobody answers this one
    EXPECT_TRUE(form.picSmall.Picture().SharesPixelsWith(wall));
}

TEST_F(OpenAnyImageTest, RaisesTheCancelThatAnotherDialogAskedFor) {
    form.Command23.Click();
    EXPECT_EQ(ErrorOf([&] { OpenAnyImage(form); }), ErrorNumber::DialogCancelled);
    EXPECT_TRUE(ShowsFormer());
}

TEST_F(OpenAnyImageTest, RaisesTheCancelThatAChoiceOfColourAskedFor) {
    form.cmdColorDialog(0).Click();
    EXPECT_EQ(ErrorOf([&] { OpenAnyImage(form); }), ErrorNumber::DialogCancelled);
}

TEST_F(OpenAnyImageTest, IsReachedByNoControl) {
    program.Start();
    program.desktop.dialogs.dialogs.clear();
    for (Control* control : form.Controls()) {
        ResumeNext([&] { control->UserClick(); });
        ResumeNext([&] { control->UserDblClick(); });
    }
    for (const ShownDialog& dialog : program.desktop.dialogs.dialogs)
        EXPECT_EQ(dialog.open.filter.find("*.pcx"), std::string::npos);
    EXPECT_FALSE(program.files.FileExists("c:\\komp.txt"));
}

} // namespace
} // namespace mirelle::test
