#include "fx/IMFXModule1.h"
#include "fx/KernelTable.h"
#include "tests/fx/handlers/FxProgram.h"

namespace mirelle::test {
namespace {

class KernelEffectsTest : public FxProgramTest {
protected:
    KernelEffectsTest() { Paste(picture); }
    Bitmap Kernel(::mirelle::Kernel kernel, const Picture& source, const KernelArguments& arguments = {}) {
        IMFXModule1 module(program.desktop.time);
        Picture result;
        module.Run(kernel, source, result, arguments);
        return result.CopyBitmap();
    }

    Picture picture = ChartPicture(23, 17, 90);
};

TEST_F(KernelEffectsTest, EveryButtonShowsItsKernelOfTheRetainedPicture) {
    for (const KernelButton& button : kKernelButtons) {
        form.Picture1.Picture = picture;
        form.Find(std::string(button.control))->UserClick();
        const Bitmap expected = Kernel(button.kernel, picture, button.arguments);
        EXPECT_EQ(Canvas(), expected) << button.control;
        EXPECT_EQ(form.Picture().Pixels(), expected) << button.control;
        EXPECT_EQ(form.picTemp.Image().Pixels(), expected) << button.control;
        EXPECT_TRUE(form.picTemp.Picture().IsEmpty()) << button.control;
        EXPECT_EQ(form.picTemp.Width, 23 * 15) << button.control;
        EXPECT_EQ(form.picTemp.Height, 17 * 15) << button.control;
        EXPECT_TRUE(form.Picture1.Picture().SharesPixelsWith(picture)) << button.control;
        EXPECT_EQ(form.MousePointer, kPointerDefault) << button.control;
    }
}

TEST_F(KernelEffectsTest, TheHourglassShowsWhileAKernelRuns) {
    std::vector<int> pointers;
    form.PicImage.Change.Connect([&] { pointers.push_back(form.MousePointer); });
    form.cmdNegative.UserClick();
    EXPECT_EQ(pointers, std::vector<int>{kPointerHourglass});
}

TEST_F(KernelEffectsTest, TheUndoPictureTakesTheCanvasBeforeAllButTwo) {
    for (const KernelButton& button : kKernelButtons) {
        const Picture canvas = ChartPicture(5, 5, 1);
        const Picture undo = ChartPicture(4, 4, 2);
        form.PicImage.Picture = canvas;
        form.Picture3.Picture = undo;
        form.Find(std::string(button.control))->UserClick();
        const bool takesNone = button.control == "cmdDarken" || button.control == "cmdDecreaseGreen";
        EXPECT_TRUE(form.Picture3.Picture().SharesPixelsWith(takesNone ? undo : canvas)) << button.control;
    }
}

TEST_F(KernelEffectsTest, WithoutRetainingTwoOfThemDoNotAddUp) {
    form.cmdLighten.UserClick();
    const Bitmap once = Canvas();
    form.cmdLighten.UserClick();
    EXPECT_EQ(Canvas(), once);
}

TEST_F(KernelEffectsTest, WithAlwaysRetainTwoLightenAddUpTo100) {
    Paste(Flat(10, 100, 200));
    form.ckApplyRGB.Value = kChecked;
    form.cmdLighten.UserClick();
    form.cmdLighten.UserClick();
    EXPECT_EQ(Canvas().At(0, 0), (Pixel{255, 200, 110, 0}));
    EXPECT_EQ(form.Picture1.Picture().Pixels(), Canvas());
}

TEST_F(KernelEffectsTest, ResultsAreSharedAndNotCopied) {
    form.ckApplyRGB.Value = kChecked;
    form.cmdNegative.UserClick();
    EXPECT_TRUE(form.PicImage.Picture().SharesPixelsWith(form.Picture1.Picture()));
    EXPECT_TRUE(form.PicImage.Picture().SharesPixelsWith(form.Picture()));
    EXPECT_TRUE(form.PicImage.Picture().SharesPixelsWith(form.picTemp.Image()));
}

TEST_F(KernelEffectsTest, TheFourthByteOfAResultIs0) {
    Bitmap withFourth(3, 3, Pixel{1, 2, 3, 99});
    form.Picture1.Picture = Picture(std::move(withFourth));
    form.cmdNegative.UserClick();
    EXPECT_EQ(Canvas().At(1, 1), (Pixel{254, 253, 252, 0}));
}

TEST_F(KernelEffectsTest, WithoutARetainedPictureTheOutputIsBlackInTheSizeOfTheLastRun) {
    form.cmdBlur1.UserClick();
    form.Picture1.Picture = Picture();
    form.picTemp.Width = 15;
    form.cmdNegative.UserClick();
    EXPECT_TRUE(form.picTemp.Picture().IsEmpty());
    EXPECT_EQ(form.picTemp.Width, 23 * 15);
    EXPECT_EQ(form.picTemp.Height, 17 * 15);
    EXPECT_EQ(Canvas(), Bitmap(23, 17));
    EXPECT_EQ(form.MousePointer, kPointerDefault);
}

TEST_F(KernelEffectsTest, WithoutARetainedPictureAndARunBeforeThereIsNoOutput) {
    TestProgram fresh;
    fresh.form.PicImage.Picture = picture;
    fresh.form.cmdNegative.UserClick();
    EXPECT_EQ(fresh.form.picTemp.Width, 0);
    EXPECT_EQ(fresh.form.picTemp.Height, 0);
    EXPECT_TRUE(fresh.form.PicImage.Picture().Pixels().IsEmpty());
    EXPECT_TRUE(fresh.form.Picture3.Picture().SharesPixelsWith(picture));
    EXPECT_EQ(fresh.form.MousePointer, kPointerDefault);
}

TEST_F(KernelEffectsTest, TheSmudgersRun151PassesAndRetainEach) {
    for (CommandButton* button : {&form.cmdPointalism, &form.cmdPointalismVert}) {
        Paste(picture);
        const auto blur = button == &form.cmdPointalism ? &KernelSet::FXBlurMore : &KernelSet::FXBlurMoreVert;
        Bitmap expected = picture.CopyBitmap();
        Bitmap beforeLast;
        for (int pass = 0; pass < 151; ++pass) {
            beforeLast = expected;
            expected = Kernel(blur, Picture(std::move(expected)));
        }
        const int pumps = program.desktop.time.pumps;
        button->UserClick();
        EXPECT_EQ(Canvas(), expected);
        EXPECT_EQ(form.Picture1.Picture().Pixels(), expected);
        EXPECT_EQ(form.Picture3.Picture().Pixels(), beforeLast); // undo goes back one pass
        EXPECT_EQ(program.desktop.time.pumps - pumps, 151);
        EXPECT_EQ(form.MousePointer, kPointerDefault);
    }
}

TEST_F(KernelEffectsTest, EscapeEndsASmudgerAfterThePassThatItCameIn) {
    program.desktop.time.duringPass.emplace(3, [this] { program.desktop.keyboard.escapePressed = true; });
    form.cmdPointalism.UserClick();
    Bitmap expected = picture.CopyBitmap();
    for (int pass = 0; pass < 3; ++pass)
        expected = Kernel(&KernelSet::FXBlurMore, Picture(std::move(expected)));
    EXPECT_EQ(Canvas(), expected);
}

TEST_F(KernelEffectsTest, OtherControlsCanFireBetweenPasses) {
    program.desktop.time.duringPass.emplace(150, [this] { form.cmdNegative.UserClick(); });
    program.desktop.time.duringPass.emplace(151, [this] { form.cmdNoRed.UserClick(); });
    form.cmdPointalism.UserClick();
    EXPECT_EQ(Canvas().At(5, 5).red, 0);
}

} // namespace
} // namespace mirelle::test
