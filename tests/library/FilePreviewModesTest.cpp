// Which holders a file click loads, and what it names, in each mode.
#include "tests/library/LibraryProgram.h"

#include <gtest/gtest.h>

#include <optional>

namespace mirelle::test {
namespace {

// The modes that the check boxes make.
struct Mode {
    const char* name;
    bool noOpen, keep, only;
    // What follows.
    bool preview, material, canvas;
};

void PrintTo(const Mode& mode, std::ostream* out) {
    *out << mode.name;
}

constexpr std::array kModes = {
    //   name              noOpen keep   only   preview material canvas
    Mode{"Normal", false, false, false, true, true, true},
    Mode{"Keep", false, true, false, true, false, true},
    Mode{"Only", false, false, true, true, true, false},
    Mode{"KeepAndOnly", false, true, true, true, false, false},
    Mode{"NoOpen", true, false, false, false, false, false},
    Mode{"NoOpenWithKeepAndOnly", true, true, true, false, false, false},
};

class FileClickModesTest : public ::testing::TestWithParam<Mode> {
protected:
    FileClickModesTest() {
        picture = program.AddPicture(kArt, "Art_12.jpg");
        program.StartIn(kArt);
        for (PictureBox* box : AllHolders())
            box->Picture = former;
        form.Imagex.Picture = former;
        form.Picture = former;
        form.ckNoOpen.Value = GetParam().noOpen;
        form.ckKeep.Value = GetParam().keep;
        form.ckOnly.Value = GetParam().only;
    }
    std::vector<PictureBox*> CanvasHolders() {
        return {&form.PicImage, &form.Pic1, &form.Picture1, &form.Picture4, &form.pic1grad};
    }
    std::vector<PictureBox*> AllHolders() {
        std::vector<PictureBox*> boxes = CanvasHolders();
        boxes.insert(boxes.end(), {&form.picSmall, &form.picSmall2, &form.Picture3, &form.pic2grad});
        return boxes;
    }
    template <class Holder>
    void ExpectLoaded(const Holder& holder, bool loaded) const {
        EXPECT_TRUE(holder.Picture().SharesPixelsWith(loaded ? picture : former)) << holder.Name();
    }

    LibraryProgram program;
    FrmPicX& form = program.form;
    Picture former = ChartPicture(9, 9);
    Picture picture;
};

TEST_P(FileClickModesTest, LoadsTheHoldersOfTheMode) {
    program.ClickFile("Art_12.jpg");
    ExpectLoaded(form.Imagex, GetParam().preview);
    ExpectLoaded(form.picSmall, GetParam().material);
    for (const PictureBox* box : CanvasHolders())
        ExpectLoaded(*box, GetParam().canvas);
    for (const PictureBox* box : {&form.picSmall2, &form.Picture3, &form.pic2grad})
        ExpectLoaded(*box, false);
    EXPECT_TRUE(form.Picture().SharesPixelsWith(GetParam().canvas ? picture : former));
}

TEST_P(FileClickModesTest, NamesTheMaterialAndRecordsThePath) {
    program.ClickFile("Art_12.jpg");
    EXPECT_EQ(form.textProfileName.Text(), "Art_12");
    EXPECT_EQ(form.CurrentImagePath.Text(), kArt + "\\Art_12.jpg");
}

TEST_P(FileClickModesTest, DecodesTheFileOnceAtMost) {
    program.ClickFile("Art_12.jpg");
    EXPECT_EQ(program.loader.loads, GetParam().noOpen ? 0 : 1);
}

TEST_P(FileClickModesTest, FileThatCannotBeLoadedChangesNoHolder) {
    program.loader.pictures[kArt + "\\Art_12.jpg"] = Picture();
    program.ClickFile("Art_12.jpg");
    ExpectLoaded(form.Imagex, false);
    for (const PictureBox* box : AllHolders())
        ExpectLoaded(*box, false);
    EXPECT_TRUE(form.Picture().SharesPixelsWith(former));
    EXPECT_EQ(form.textProfileName.Text(), "Art_12");
    EXPECT_EQ(form.CurrentImagePath.Text(), kArt + "\\Art_12.jpg");
    EXPECT_EQ(program.loader.loads, GetParam().noOpen ? 0 : 1);
    EXPECT_TRUE(program.desktop.dialogs.messages.empty());
}

TEST_P(FileClickModesTest, FileBecomesTheSourceUnlessNothingIsOpened) {
    form.ClipboardIsSource = true;
    program.ClickFile("Art_12.jpg");
    EXPECT_EQ(form.ClipboardIsSource, GetParam().noOpen);
    EXPECT_EQ(form.lblPubPath.Caption(), GetParam().noOpen ? "" : kArt + "\\Art_12.jpg");
}

INSTANTIATE_TEST_SUITE_P(Modes, FileClickModesTest, ::testing::ValuesIn(kModes),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_P(FileClickModesTest, FileThatCannotBeLoadedStillGivesThePreviewItsSize) {
    program.loader.pictures[kArt + "\\Art_12.jpg"] = Picture();
    form.Imagex.Move(0, 0, 10, 20);
    program.ClickFile("Art_12.jpg");
    EXPECT_EQ(form.Imagex.Width(), GetParam().noOpen ? 10 : 3135);
    EXPECT_EQ(form.Imagex.Height(), GetParam().noOpen ? 20 : 1575);
}

class FileClickWithoutOpeningTest : public ::testing::Test {
protected:
    FileClickWithoutOpeningTest() {
        program.AddPicture(kArt, "Art_12.jpg", 40, 30);
        program.StartIn(kArt);
        form.ckNoOpen.Value = kChecked;
    }
    LibraryProgram program;
    FrmPicX& form = program.form;
    Picture former = ChartPicture(9, 9);
};

TEST_F(FileClickWithoutOpeningTest, LeavesThePattern) {
    form.Combo5.Text = "*.bmp";
    program.ClickFile("Art_12.jpg");
    EXPECT_EQ(form.File5.Pattern(), "*.jpg");
    EXPECT_EQ(form.File5.FileName(), "Art_12.jpg");
}

TEST_F(FileClickWithoutOpeningTest, LeavesPreviewAndThumbnail) {
    form.Imagex.Move(0, 0, 10, 20);
    form.Imagex.Stretch = false;
    form.Image1.Move(0, 0, 30, 40);
    form.Image1.Picture = former;
    form.picSmall.Picture = ChartPicture(200, 70);
    program.ClickFile("Art_12.jpg");
    EXPECT_EQ(form.Imagex.Width(), 10);
    EXPECT_EQ(form.Imagex.Height(), 20);
    EXPECT_FALSE(form.Imagex.Stretch());
    EXPECT_EQ(form.Image1.Width(), 30);
    EXPECT_EQ(form.Image1.Height(), 40);
    EXPECT_TRUE(form.Image1.Picture().SharesPixelsWith(former));
}

TEST_F(FileClickWithoutOpeningTest, LeavesThePixelArrays) {
    form.FXSource.SizeFor(7, 5);
    form.FXDest.SizeFor(6, 4);
    form.FXDest.bytes.At(0, 0, 0) = 99;
    program.ClickFile("Art_12.jpg");
    EXPECT_EQ(form.FXSource.info.bmWidth, 7);
    EXPECT_EQ(form.FXDest.info.bmWidth, 6);
    EXPECT_EQ(form.FXDest.bytes.At(0, 0, 0), 99);
}

TEST_F(FileClickWithoutOpeningTest, LeavesTheCanvasAlsoWhereTheFormIsIt) {
    form.ckUseFormCanvas.Value = kChecked;
    form.PicImage.Picture = former;
    form.Picture3.Picture = former;
    program.ClickFile("Art_12.jpg");
    EXPECT_TRUE(form.PicImage.Picture().SharesPixelsWith(former));
    EXPECT_TRUE(form.Picture3.Picture().SharesPixelsWith(former));
}

// The gradient panel with a file standing in for its second picture.

class FileClickForGradientTest : public ::testing::Test {
protected:
    FileClickForGradientTest() {
        picture = program.AddPicture(kArt, "Art_12.jpg", 40, 30);
        program.StartIn(kArt);
        form.PicImage.Picture = former;
        form.picSmall.Picture = former;
        form.FrameGradFX.Visible = true;
        form.ckGradPic(0).Value = kChecked;
        form.textProfileName.Text = "Oak_3";
        form.ClipboardIsSource = true;
        form.cmdGradV.OnClick([this](int index) { directions.push_back(index); });
        form.ckGradPic(0).Click.Connect([this] { switched.push_back(form.ckGradPic(0).Value); });
    }

    LibraryProgram program;
    FrmPicX& form = program.form;
    Picture former = ChartPicture(9, 9);
    Picture picture;
    std::vector<int> directions;
    std::vector<int> switched;
};

TEST_F(FileClickForGradientTest, GoesIntoTheSizeReferenceAlone) {
    program.ClickFile("Art_12.jpg");
    EXPECT_TRUE(form.Picture4.Picture().SharesPixelsWith(picture));
    EXPECT_TRUE(form.PicImage.Picture().SharesPixelsWith(former));
    EXPECT_TRUE(form.picSmall.Picture().SharesPixelsWith(former));
    EXPECT_TRUE(form.Pic1.Picture().IsEmpty());
    EXPECT_TRUE(form.Imagex.Picture().IsEmpty());
}

TEST_F(FileClickForGradientTest, SizesTheGradientBoxesInTwips) {
    program.ClickFile("Art_12.jpg");
    for (const PictureBox* box : {&form.pic1grad, &form.pic2grad, &form.picDest}) {
        EXPECT_EQ(box->Width(), 600) << box->Name();
        EXPECT_EQ(box->Height(), 450) << box->Name();
        EXPECT_EQ(box->PixelWidth(), 40) << box->Name();
        EXPECT_EQ(box->PixelHeight(), 30) << box->Name();
    }
}

TEST_F(FileClickForGradientTest, LeavesNameSourceAndShownPath) {
    program.ClickFile("Art_12.jpg");
    EXPECT_EQ(form.textProfileName.Text(), "Oak_3");
    EXPECT_TRUE(form.ClipboardIsSource);
    EXPECT_EQ(form.lblPubPath.Caption(), "");
    EXPECT_EQ(form.CurrentImagePath.Text(), kArt + "\\Art_12.jpg");
}

TEST_F(FileClickForGradientTest, LeavesPatternCounterAndThumbnail) {
    form.ckGetCount.Value = kChecked;
    form.TextLoops.Text = "1";
    form.Combo5.Text = "*.bmp";
    form.Image1.Move(0, 0, 30, 40);
    form.Image1.Picture = former;
    program.ClickFile("Art_12.jpg");
    EXPECT_EQ(form.File5.Pattern(), "*.jpg");
    EXPECT_EQ(form.File5.FileName(), "Art_12.jpg");
    EXPECT_EQ(form.TextLoops.Text(), "1");
    EXPECT_EQ(form.Image1.Width(), 30);
    EXPECT_EQ(form.Image1.Height(), 40);
    EXPECT_TRUE(form.Image1.Picture().SharesPixelsWith(former));
}

TEST_F(FileClickForGradientTest, SwitchesTheFileImageOffAndOnAgain) {
    program.ClickFile("Art_12.jpg");
    EXPECT_EQ(switched, (std::vector<int>{kUnchecked, kChecked}));
}

TEST_F(FileClickForGradientTest, RunsTheGradientInItsLastDirection) {
    form.GradDirectionH = true;
    program.ClickFile("Art_12.jpg");
    ASSERT_FALSE(directions.empty());
    for (const int direction : directions)
        EXPECT_EQ(direction, 0);
    directions.clear();
    form.GradDirectionH = false;
    form.GradDirectionV = true;
    program.ClickFile("Art_12.jpg");
    ASSERT_FALSE(directions.empty());
    for (const int direction : directions)
        EXPECT_EQ(direction, 1);
}

TEST_F(FileClickForGradientTest, WithoutADirectionRunsNoGradient) {
    program.ClickFile("Art_12.jpg");
    EXPECT_TRUE(directions.empty());
}

TEST_F(FileClickForGradientTest, NoOpenComesFirst) {
    form.ckNoOpen.Value = kChecked;
    program.ClickFile("Art_12.jpg");
    EXPECT_EQ(form.textProfileName.Text(), "Art_12");
    EXPECT_TRUE(form.Picture4.Picture().IsEmpty());
    EXPECT_TRUE(switched.empty());
}

TEST_F(FileClickForGradientTest, HiddenPanelMakesItAnOrdinaryClickThatShowsTheFormerCanvas) {
    form.FrameGradFX.Visible = false;
    program.ClickFile("Art_12.jpg");
    EXPECT_EQ(form.textProfileName.Text(), "Art_12");
    EXPECT_TRUE(form.PicImage.Picture().SharesPixelsWith(picture));
    EXPECT_TRUE(form.Picture().SharesPixelsWith(former));
    EXPECT_TRUE(directions.empty());
}

TEST_F(FileClickForGradientTest, FileThatCannotBeLoadedKeepsTheSizeReference) {
    form.Picture4.Picture = former;
    program.loader.pictures.clear();
    program.ClickFile("Art_12.jpg");
    EXPECT_TRUE(form.Picture4.Picture().SharesPixelsWith(former));
    EXPECT_EQ(form.picDest.PixelWidth(), 9);
}

} // namespace
} // namespace mirelle::test
