#include "tests/support/Patterns.h"
#include "tests/support/TestProgram.h"

#include <gtest/gtest.h>

namespace mirelle::test {
namespace {

class GradientSourcesTest : public ::testing::Test {
protected:
    GradientSourcesTest() {
        program.loader.pictures["C:\\Mat\\a.jpg"] = fromFile;
        form.CurrentImagePath = "C:\\Mat\\a.jpg";
        form.picSmall.Picture = material;
        form.Picture4.Picture = canvas;
        for (PictureBox* box : {&form.pic1grad, &form.pic2grad, &form.picDest}) {
            box->Width = 60 * 15;
            box->Height = 40 * 15;
        }
        form.chkStretch.Value = kUnchecked; // so that the boxes show the pictures themselves
        form.pic1grad.Picture = canvas;
        form.pic2grad.Picture = fade;
    }
    bool Shows(const PictureBox& box, const Picture& picture) {
        return box.Picture().SharesPixelsWith(picture);
    }

    TestProgram program;
    FrmPicX& form = program.form;
    Picture canvas = ChartPicture(60, 40, 1);
    Picture fade = ChartPicture(60, 40, 2);
    Picture material = ChartPicture(60, 40, 3);
    Picture fromFile = ChartPicture(60, 40, 4);
};

TEST_F(GradientSourcesTest, AFileStandsInForEitherPictureAndGoesAgain) {
    PictureBox* const boxes[] = {&form.pic2grad, &form.pic1grad};
    const Picture pictures[] = {fade, canvas};
    for (const int index : {0, 1}) {
        form.ckGradPic(index).UserClick();
        EXPECT_TRUE(Shows(*boxes[index], fromFile)) << index;
        EXPECT_TRUE(Shows(form.Picture5, pictures[index])) << index;
        form.ckGradPic(index).UserClick();
        EXPECT_TRUE(Shows(*boxes[index], pictures[index])) << index;
    }
}

TEST_F(GradientSourcesTest, AFileThatCannotBeReadLeavesThePicture) {
    form.CurrentImagePath = "C:\\Mat\\missing.jpg";
    form.ckGradPic(0).UserClick();
    EXPECT_TRUE(Shows(form.pic2grad, fade));
    EXPECT_TRUE(Shows(form.Picture5, fade));
}

TEST_F(GradientSourcesTest, TheGradientRunsAgainInItsLastDirection) {
    std::vector<int> directions;
    form.cmdGradV.OnClick([&](int index) { directions.push_back(index); });
    form.ckGradPic(0).UserClick();
    EXPECT_TRUE(directions.empty());
    form.GradDirectionH = true;
    form.ckGradPic(0).UserClick();
    EXPECT_EQ(directions, std::vector<int>{0});
}

TEST_F(GradientSourcesTest, SwappingExchangesThePicturesAndGoesVertical) {
    form.GradDirectionH = true;
    form.cmdSwapPic(0).UserClick();
    EXPECT_TRUE(form.StoredCanvasPicture.SharesPixelsWith(fade));
    EXPECT_TRUE(form.StoredGradientPicture.SharesPixelsWith(canvas));
    EXPECT_TRUE(Shows(form.PicSwap1, canvas));
    EXPECT_TRUE(Shows(form.PicSwap2, fade));
    EXPECT_EQ(form.PicSwap1.Width, 60 * 15);
    EXPECT_EQ(form.PicSwap2.Height, 40 * 15);
    EXPECT_TRUE(form.GradDirectionV);
    EXPECT_FALSE(form.GradDirectionH);
}

TEST_F(GradientSourcesTest, TheMaterialImageBecomesEitherPicture) {
    form.cmdSwapPic(1).UserClick();
    EXPECT_TRUE(form.StoredCanvasPicture.SharesPixelsWith(material));
    EXPECT_TRUE(form.StoredGradientPicture.SharesPixelsWith(fade));
    form.cmdSwapPic(2).UserClick();
    EXPECT_TRUE(form.StoredGradientPicture.SharesPixelsWith(material));
    EXPECT_TRUE(form.GradDirectionV);
}

TEST_F(GradientSourcesTest, TheResetBringsTheDefaultPictureBack) {
    EXPECT_GT(form.Picture6.Picture().Width(), 0);
    form.cmdGradReset.UserClick();
    EXPECT_TRUE(form.StoredGradientPicture.SharesPixelsWith(form.Picture6.Picture()));
    EXPECT_TRUE(form.GradDirectionV);
}

TEST_F(GradientSourcesTest, TheDefaultPictureIsADuskFromNightBlueToSand) {
    struct Row {
        int y, red, green, blue;
    };
    const Bitmap& dusk = form.Picture6.Picture().Pixels();
    ASSERT_EQ(dusk.Width(), 256);
    ASSERT_EQ(dusk.Height(), 256);
    for (const Row& row : {Row{0, 22, 30, 66},
                           {45, 53, 51, 98},
                           {89, 84, 72, 130},
                           {102, 106, 78, 128},
                           {153, 196, 104, 122},
                           {178, 220, 133, 116},
                           {204, 244, 164, 110},
                           {230, 250, 196, 140},
                           {255, 255, 226, 168}})
        for (const Pixel& pixel : dusk.Row(row.y))
            ASSERT_EQ(pixel, PixelOf(RGB(row.red, row.green, row.blue))) << row.y;
}

TEST_F(GradientSourcesTest, TheGradientImageStartsAsTheDefault) {
    TestProgram fresh;
    EXPECT_TRUE(fresh.form.pic2grad.Picture().SharesPixelsWith(fresh.form.Picture6.Picture()));
}

} // namespace
} // namespace mirelle::test
