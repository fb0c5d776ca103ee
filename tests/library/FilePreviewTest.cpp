#include "tests/library/LibraryProgram.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace mirelle::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class FilePreviewTest : public ::testing::Test {
protected:
    FilePreviewTest() { program.StartIn(kArt); }

    LibraryProgram program;
    FrmPicX& form = program.form;
};

// Path and name.

TEST_F(FilePreviewTest, PathInADriveRootHasOneSeparator) {
    program.AddPicture("D:\\", "wall.jpg");
    form.Dir5.SetPath("D:\\");
    program.ClickFile("wall.jpg");
    EXPECT_EQ(form.CurrentImagePath.Text(), "D:\\wall.jpg");
    EXPECT_EQ(form.lblPubPath.Caption(), "D:\\wall.jpg");
}

TEST_F(FilePreviewTest, PathShownIsTrimmed) {
    form.Combo5.Text = "*";
    form.File5.SetPattern("*");
    program.ClickNewPicture("wall ");
    EXPECT_EQ(form.CurrentImagePath.Text(), kArt + "\\wall ");
    EXPECT_EQ(form.lblPubPath.Caption(), kArt + "\\wall");
}

TEST_F(FilePreviewTest, NameIsWhatStandsAheadOfTheFirstPoint) {
    form.Combo5.Text = "*";
    form.File5.SetPattern("*");
    for (const auto& [file, name] : {std::pair{"a.b.jpg", "a"},
                                     {"wall", "wall"},
                                     {".jpg", ""},
                                     {"a..jpg", "a"},
                                     {"red brick.jpg", "red brick"}}) {
        program.ClickNewPicture(file);
        EXPECT_EQ(form.textProfileName.Text(), name) << file;
    }
}

TEST_F(FilePreviewTest, ClickWithNoRowSelectedRecordsTheFolderAndLoadsNothing) {
    const Picture former = program.ClickNewPicture("wall.jpg");
    form.File5.Selected(0) = false;
    form.File5.Click();
    EXPECT_EQ(form.CurrentImagePath.Text(), kArt + "\\");
    EXPECT_EQ(form.textProfileName.Text(), "");
    EXPECT_TRUE(form.PicImage.Picture().SharesPixelsWith(former));
}

// The number in the name.

TEST_F(FilePreviewTest, NumberInTheNameBecomesTheCounter) {
    form.ckGetCount.Value = kChecked;
    for (const auto& [file, shown] : {std::pair{"Art_12.jpg", "12"},
                                      {"My_brick_7.jpg", "7"},
                                      {"Art_0042.jpg", "0042"},
                                      {"Art_ 5 .jpg", "5"},
                                      {"Art_3.4.jpg", "3"},
                                      {"Art_-5.jpg", "0"},
                                      {"Art_99999.jpg", "99999"}}) {
        form.TextLoops.Text = "1";
        program.ClickNewPicture(file);
        EXPECT_EQ(form.TextLoops.Text(), shown) << file;
    }
}

TEST_F(FilePreviewTest, NameWithoutANumberLeavesTheCounter) {
    form.ckGetCount.Value = kChecked;
    for (const char* file :
         {"Art_12b.jpg", "Art.jpg", "12.jpg", "Art_.jpg", "Art_1e999.jpg", "Art_7_x.jpg"}) {
        form.TextLoops.Text = "1";
        program.ClickNewPicture(file);
        EXPECT_EQ(form.TextLoops.Text(), "1") << file;
    }
}

TEST_F(FilePreviewTest, NumberIsTakenOnlyWhileCountingAndIncrementing) {
    program.ClickNewPicture("Art_12.jpg");
    EXPECT_EQ(form.TextLoops.Text(), "0");
    form.ckIncrement.Value = kUnchecked;
    form.ckGetCount.Value = kChecked;
    program.ClickNewPicture("Art_13.jpg");
    EXPECT_EQ(form.TextLoops.Text(), "0");
}

TEST_F(FilePreviewTest, NoOpenTakesNoNumber) {
    form.ckGetCount.Value = kChecked;
    form.ckNoOpen.Value = kChecked;
    program.ClickNewPicture("Art_12.jpg");
    EXPECT_EQ(form.TextLoops.Text(), "0");
}

// The pattern.

TEST_F(FilePreviewTest, SamePatternKeepsListAndSelection) {
    program.ClickNewPicture("a.jpg");
    program.AddPicture(kArt, "b.jpg");
    program.ClickFile("a.jpg");
    EXPECT_THAT(form.File5.Rows(), ElementsAre("a.jpg"));
    EXPECT_EQ(form.File5.FileName(), "a.jpg");
}

TEST_F(FilePreviewTest, TypedPatternListsAnewAndTheClickGoesOn) {
    form.ckGetCount.Value = kChecked;
    program.AddPicture(kArt, "plan.bmp");
    form.Combo5.Text = "*.bmp";
    const Picture picture = program.ClickNewPicture("Art_12.jpg");
    EXPECT_THAT(form.File5.Rows(), ElementsAre("plan.bmp"));
    EXPECT_EQ(form.File5.ListIndex(), kNoRow);
    EXPECT_EQ(form.textProfileName.Text(), "Art_12");
    EXPECT_EQ(form.TextLoops.Text(), "12");
    EXPECT_TRUE(form.Picture().SharesPixelsWith(picture));
}

// The surfaces.

TEST_F(FilePreviewTest, CanvasAndHoldersTakeTheSizeOfThePicture) {
    const Picture picture = program.ClickNewPicture("wall.jpg", 40, 30);
    for (const PictureBox* box : {&form.PicImage, &form.Pic1, &form.Picture1, &form.Picture4, &form.picSmall,
                                  &form.pic1grad, &form.pic2grad, &form.picDest}) {
        EXPECT_EQ(box->PixelWidth(), 40) << box->Name();
        EXPECT_EQ(box->PixelHeight(), 30) << box->Name();
    }
    EXPECT_TRUE(form.Picture().SharesPixelsWith(picture));
}

TEST_F(FilePreviewTest, FailedLoadSizesTheGradientBoxesFromTheFormerPicture) {
    program.ClickNewPicture("wall.jpg", 40, 30);
    form.pic1grad.Width = 10;
    program.AddFiles(kArt, {"z.jpg"});
    form.File5.Refresh();
    program.ClickFile("z.jpg");
    EXPECT_EQ(form.pic1grad.PixelWidth(), 40);
}

TEST_F(FilePreviewTest, MaterialImageTakesTheSizeAgainAfterALockedCrop) {
    form.picSmall.AutoSize = false;
    program.ClickNewPicture("wall.jpg", 40, 30);
    EXPECT_TRUE(form.picSmall.AutoSize());
    EXPECT_EQ(form.picSmall.PixelWidth(), 40);
}

TEST_F(FilePreviewTest, KeptMaterialImageKeepsItsSizing) {
    form.picSmall.AutoSize = false;
    form.ckKeep.Value = kChecked;
    program.ClickNewPicture("wall.jpg");
    EXPECT_FALSE(form.picSmall.AutoSize());
}

TEST_F(FilePreviewTest, PixelArraysAreSizedForThePicture) {
    program.ClickNewPicture("wall.jpg", 40, 30);
    for (const PixelFrame* frame : {&form.FXSource, &form.FXDest}) {
        EXPECT_EQ(frame->info.bmWidth, 40);
        EXPECT_EQ(frame->info.bmHeight, 30);
    }
}

TEST_F(FilePreviewTest, PixelArraysOfAnEmptyCanvasTakeTheSizeOfItsBox) {
    form.ckOnly.Value = kChecked;
    form.PicImage.Move(0, 0, 40000, 30000);
    program.ClickNewPicture("wall.jpg");
    EXPECT_EQ(form.FXDest.info.bmWidth, 40000);
    EXPECT_EQ(form.FXDest.info.bmHeight, 30000);
}

TEST_F(FilePreviewTest, FormAsCanvasTakesTheFormsImage) {
    const Picture former = program.ClickNewPicture("a.jpg");
    form.ckUseFormCanvas.Value = kChecked;
    form.Picture = former;
    form.PicImage.Picture = former;
    form.Picture3.Picture = former;
    program.ClickNewPicture("b.jpg");
    for (const PictureBox* box : {&form.PicImage, &form.Picture3}) {
        EXPECT_EQ(box->Picture().Width(), form.ClientWidth()) << box->Name();
        EXPECT_EQ(box->Picture().Height(), form.ClientHeight()) << box->Name();
        // The canvas shows what it showed before the click.
        EXPECT_EQ(box->Picture().Pixels().At(5, 5), former.Pixels().At(5, 5)) << box->Name();
    }
}

TEST_F(FilePreviewTest, WithoutFormAsCanvasTheUndoPictureStays) {
    const Picture undo = ChartPicture(7, 7);
    form.Picture3.Picture = undo;
    program.ClickNewPicture("a.jpg");
    EXPECT_TRUE(form.Picture3.Picture().SharesPixelsWith(undo));
}

// The gradient, while its panel is shown.

TEST_F(FilePreviewTest, ShownGradientPanelRunsTheGradientDownwards) {
    std::vector<int> directions;
    form.cmdGradV.OnClick([&](int index) { directions.push_back(index); });
    form.GradDirectionV = true;
    program.ClickNewPicture("a.jpg");
    EXPECT_THAT(directions, IsEmpty());
    form.FrameGradFX.Visible = true;
    program.ClickNewPicture("b.jpg");
    EXPECT_THAT(directions, ElementsAre(1, 1));
}

TEST_F(FilePreviewTest, ShownGradientPanelTurnsAGradientAcrossDownwards) {
    std::vector<int> directions;
    form.cmdGradV.OnClick([&](int index) { directions.push_back(index); });
    form.FrameGradFX.Visible = true;
    form.GradDirectionH = true;
    program.ClickNewPicture("a.jpg");
    EXPECT_THAT(directions, ElementsAre(1, 1));
    EXPECT_TRUE(form.GradDirectionV);
    EXPECT_FALSE(form.GradDirectionH);
}

TEST_F(FilePreviewTest, ShownGradientPanelLeavesTheGradientOnTheCanvas) {
    form.FrameGradFX.Visible = true;
    const Picture picture = program.ClickNewPicture("a.jpg", 40, 300);
    EXPECT_FALSE(form.PicImage.Picture().SharesPixelsWith(picture));
    EXPECT_EQ(form.PicImage.Picture().Height(), 300);
    EXPECT_EQ(form.Picture().Pixels(), form.PicImage.Picture().Pixels());
}

// Thumbnail and preview.

struct ThumbnailRow {
    int width, height;
    float thumbnailWidth, thumbnailHeight;
};

class FileClickThumbnailTest : public ::testing::TestWithParam<ThumbnailRow> {};

TEST_P(FileClickThumbnailTest, FollowsTheRulesWhichTestTheHeightFirst) {
    LibraryProgram program;
    program.StartIn(kArt);
    FrmPicX& form = program.form;
    const Picture picture = program.ClickNewPicture("a.jpg", GetParam().width, GetParam().height);
    EXPECT_FLOAT_EQ(form.Image1.Width, GetParam().thumbnailWidth);
    EXPECT_FLOAT_EQ(form.Image1.Height, GetParam().thumbnailHeight);
    EXPECT_TRUE(form.Image1.Picture().SharesPixelsWith(picture));
}

INSTANTIATE_TEST_SUITE_P(Sizes, FileClickThumbnailTest,
                         ::testing::Values(ThumbnailRow{200, 70, 300, 105}, ThumbnailRow{1000, 800, 400, 300},
                                           ThumbnailRow{2000, 100, 350, 40}, ThumbnailRow{400, 400, 160, 160},
                                           ThumbnailRow{100, 2000, 40, 300}, ThumbnailRow{1, 1, 1.5, 1.5}),
                         [](const auto& row) {
                             return std::to_string(row.param.width) + "x" + std::to_string(row.param.height);
                         });

TEST_F(FilePreviewTest, KeptMaterialImageGivesTheThumbnail) {
    const Picture kept = program.ClickNewPicture("a.jpg", 200, 70);
    form.ckKeep.Value = kChecked;
    program.ClickNewPicture("b.jpg", 1000, 800);
    EXPECT_TRUE(form.Image1.Picture().SharesPixelsWith(kept));
    EXPECT_FLOAT_EQ(form.Image1.Width, 300);
}

TEST_F(FilePreviewTest, ThumbnailStartsFromNineTenthsOfTheMaterialImage) {
    form.ckKeep.Value = kChecked;
    // Nine tenths are 350 exactly: neither below the limit nor above it.
    form.picSmall.Width = 388.8889F;
    form.picSmall.Height = 388.8889F;
    program.ClickNewPicture("a.jpg");
    EXPECT_EQ(form.Image1.Width, 350);
    EXPECT_EQ(form.Image1.Height, 300);
}

TEST_F(FilePreviewTest, PreviewHasItsFixedSize) {
    form.Imagex.Move(0, 0, 10, 10);
    program.ClickNewPicture("a.jpg");
    EXPECT_EQ(form.Imagex.Width(), 3135);
    EXPECT_EQ(form.Imagex.Height(), 1575);
}

// 59 pixels are 1561 hundredths of a millimetre, 60 are 1588.
TEST_F(FilePreviewTest, PreviewStretchesPicturesLowerThanItself) {
    form.Imagex.Stretch = false;
    program.ClickNewPicture("a.jpg", 20, 60);
    EXPECT_FALSE(form.Imagex.Stretch());
    program.ClickNewPicture("b.jpg", 20, 59);
    EXPECT_TRUE(form.Imagex.Stretch());
}

// One click, one run.

TEST_F(FilePreviewTest, SelectingTheRowAgainInsideItsClickRunsNoSecondOne) {
    int clicks = 0;
    form.File5.Click.Connect([&] { ++clicks; });
    program.ClickNewPicture("a.jpg");
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(program.loader.loads, 1);
    EXPECT_EQ(form.File5.FileName(), "a.jpg");
}

TEST_F(FilePreviewTest, ClickOnTheSelectedRowLoadsTheFileAnew) {
    program.ClickNewPicture("a.jpg");
    const Picture edited = program.AddPicture(kArt, "a.jpg");
    program.ClickFile("a.jpg");
    EXPECT_TRUE(form.PicImage.Picture().SharesPixelsWith(edited));
}

TEST_F(FilePreviewTest, FileThatWentAfterListingLeavesTheFormerPictures) {
    program.AddPicture(kArt, "b.jpg");
    const Picture former = program.ClickNewPicture("a.jpg");
    program.files.DeleteFile(kArt + "\\b.jpg");
    program.loader.pictures.erase(kArt + "\\b.jpg");
    program.ClickFile("b.jpg");
    EXPECT_EQ(form.CurrentImagePath.Text(), kArt + "\\b.jpg");
    EXPECT_EQ(form.textProfileName.Text(), "b");
    EXPECT_TRUE(form.PicImage.Picture().SharesPixelsWith(former));
    EXPECT_TRUE(form.picSmall.Picture().SharesPixelsWith(former));
    EXPECT_THAT(program.desktop.dialogs.messages, IsEmpty());
}

TEST_F(FilePreviewTest, FolderThatWentListsNothingAfterATypedPattern) {
    program.ClickNewPicture("a.jpg");
    program.files.RemoveFolder(kArt);
    form.Combo5.Text = "*.bmp";
    program.ClickFile("a.jpg");
    EXPECT_EQ(form.File5.ListCount(), 0);
    EXPECT_EQ(form.textProfileName.Text(), "a");
}

// Gathering single files for the SuperBatch.

class SingleAddingTest : public FilePreviewTest {
protected:
    SingleAddingTest() {
        form.Frame8.Visible = true;
        form.ckSingleFile.Value = kChecked;
    }
};

TEST_F(SingleAddingTest, AddsEachFileOnce) {
    program.ClickNewPicture("a.jpg");
    program.ClickNewPicture("b.jpg");
    program.ClickFile("a.jpg");
    EXPECT_THAT(form.List2.Rows(), ElementsAre(kArt + "\\a.jpg", kArt + "\\b.jpg"));
}

TEST_F(SingleAddingTest, SelectsTheRowThatIsThere) {
    program.ClickNewPicture("a.jpg");
    program.ClickNewPicture("b.jpg");
    EXPECT_EQ(form.List2.ListIndex(), kNoRow);
    program.ClickFile("a.jpg");
    EXPECT_EQ(form.List2.ListIndex(), 0);
}

TEST_F(SingleAddingTest, LeavesTheCountLabel) {
    form.Label8(0).Caption = "as it was";
    program.ClickNewPicture("a.jpg");
    EXPECT_EQ(form.Label8(0).Caption(), "as it was");
}

TEST_F(SingleAddingTest, AddsAlsoWhereNothingIsOpened) {
    form.ckNoOpen.Value = kChecked;
    program.ClickNewPicture("a.jpg");
    EXPECT_THAT(form.List2.Rows(), ElementsAre(kArt + "\\a.jpg"));
}

TEST_F(SingleAddingTest, AddsAlsoForTheGradient) {
    form.FrameGradFX.Visible = true;
    form.ckGradPic(0).Value = kChecked;
    program.ClickNewPicture("a.jpg");
    EXPECT_THAT(form.List2.Rows(), ElementsAre(kArt + "\\a.jpg"));
}

TEST_F(SingleAddingTest, NeedsThePanelAndTheBox) {
    form.Frame8.Visible = false;
    program.ClickNewPicture("a.jpg");
    form.Frame8.Visible = true;
    form.ckSingleFile.Value = kUnchecked;
    program.ClickNewPicture("b.jpg");
    EXPECT_THAT(form.List2.Rows(), IsEmpty());
}

} // namespace
} // namespace mirelle::test
