#include "gradient/FormGradient.h"

#include "tests/support/TestProgram.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace mirelle::test {
namespace {

Pixel Expected(int step, const GradientColors& c) {
    const auto component = [step](int start, int finish) {
        const auto value = static_cast<int>(std::nearbyint(start - step * ((start - finish) / 1024.0)));
        return static_cast<std::uint8_t>(std::clamp(value, 0, 255));
    };
    return {component(c.blue1, c.blue2), component(c.green1, c.green2), component(c.red1, c.red2), 0};
}

const GradientColors kRamp{145, 6, 117, 1, 255, 40};

TEST(PaintFormGradient, DownRowYShowsStepYPlusOneFrom410On) {
    Bitmap surface(5, 1100, Pixel{9, 9, 9, 9});
    PaintFormGradient(surface, kRamp, false);
    for (int y = 0; y < 1023; ++y)
        ASSERT_EQ(surface.At(4, y), Expected(y + 1 + 410, kRamp)) << y;
    EXPECT_EQ(surface.At(0, 1023), Expected(1433, kRamp));
    EXPECT_EQ(surface.At(0, 1024), (Pixel{9, 9, 9, 9}));
}

TEST(PaintFormGradient, AcrossColumnCShowsStepCPlusOneFromMinus14On) {
    Bitmap surface(1600, 4, Pixel{9, 9, 9, 9});
    PaintFormGradient(surface, kRamp, true);
    for (int x = 0; x < 1523; ++x)
        ASSERT_EQ(surface.At(x, 3), Expected(x + 1 - 14, kRamp)) << x;
    EXPECT_EQ(surface.At(1523, 0), (Pixel{9, 9, 9, 9}));
}

TEST(PaintFormGradient, TheRampOvershootsTheFinishAndIsLimited) {
    EXPECT_EQ(FormGradientColor(kRamp, 1433), RGB(0, 255, 9));
    EXPECT_EQ(FormGradientColor(kRamp, 0), RGB(145, 6, 117));
    EXPECT_EQ(FormGradientColor(kRamp, 1024), RGB(1, 255, 40));
}

TEST(PaintFormGradient, SmallSurfacesAndEmptyOnesAreFine) {
    for (const bool across : {false, true}) {
        Bitmap one(1, 1);
        PaintFormGradient(one, kRamp, across);
        EXPECT_EQ(one.At(0, 0), Expected(across ? -13 : 411, kRamp));
        Bitmap none;
        PaintFormGradient(none, kRamp, across);
        EXPECT_TRUE(none.IsEmpty());
    }
}

class FormGradientTest : public ::testing::Test {
protected:
    FormGradientTest() { form.UserWindow(kWindowNormal, {40, 30}); }
    TestProgram program;
    FrmPicX& form = program.form;
};

TEST_F(FormGradientTest, TheSlidersStartAsDesigned) {
    for (const ScrollBar* slider : {&form.RS, &form.GS, &form.BS, &form.RF, &form.GF, &form.BF}) {
        EXPECT_EQ(slider->Min, 4);
        EXPECT_EQ(slider->Max, 1020);
    }
    EXPECT_EQ(form.RS.Value, 444);
    EXPECT_EQ(form.GS.Value, 999);
    EXPECT_EQ(form.BS.Value, 555);
    EXPECT_EQ(form.RF.Value, 1020);
}

TEST_F(FormGradientTest, ASliderPaintsTheFormAndMakesItTheCanvas) {
    form.Picture = Picture(Bitmap(40, 30, Pixel{1, 1, 1, 0}));
    form.RS.UserSet(40);
    EXPECT_EQ(form.RStart, 246);
    EXPECT_EQ(form.GStart, 6);   // 256 - 249.75 = 6.25
    EXPECT_EQ(form.BStart, 117); // 256 - 138.75 = 117.25
    EXPECT_EQ(form.RFinish, 1);
    const GradientColors colors{246, 6, 117, 1, 1, 1};
    const Picture drawn = form.Image();
    for (int y = 0; y < 30; ++y)
        EXPECT_EQ(drawn.Pixels().At(7, y), Expected(y + 411, colors)) << y;
    EXPECT_EQ(form.PicImage.Picture().Pixels(), drawn.Pixels());
    EXPECT_EQ(form.PicImage.Width, 40);
}

TEST_F(FormGradientTest, EachSliderPaintsOnItsChangeAndItsClickAlone) {
    const struct {
        ScrollBar& slider;
        std::int16_t& field;
    } rows[] = {{form.RS, form.RStart},  {form.GS, form.GStart},  {form.BS, form.BStart},
                {form.RF, form.RFinish}, {form.GF, form.GFinish}, {form.BF, form.BFinish}};
    const Picture blank;
    for (const auto& row : rows) {
        form.PicImage.Picture = blank;
        row.slider.UserDrag(800);
        EXPECT_TRUE(form.PicImage.Picture().IsEmpty()) << row.slider.Name();
        row.slider.UserDrop();
        EXPECT_EQ(row.field, 56) << row.slider.Name();
        EXPECT_EQ(form.PicImage.Picture().Pixels(), form.Image().Pixels()) << row.slider.Name();
        row.field = 0;
        form.PicImage.Picture = blank;
        row.slider.Click();
        EXPECT_EQ(row.field, 56) << row.slider.Name();
        EXPECT_EQ(form.PicImage.Picture().Pixels(), form.Image().Pixels()) << row.slider.Name();
    }
    const GradientColors colors{56, 56, 56, 56, 56, 56};
    EXPECT_EQ(form.Image().Pixels().At(7, 20), Expected(431, colors));
}

TEST_F(FormGradientTest, TheFinishComesFromTheLowerSliders) {
    form.RF.UserSet(4);
    form.GF.UserSet(400);
    form.BF.UserSet(800);
    const GradientColors colors{145, 6, 117, 255, 156, 56};
    for (int y = 0; y < 30; ++y)
        EXPECT_EQ(form.Image().Pixels().At(3, y), Expected(y + 411, colors)) << y;
}

TEST_F(FormGradientTest, WhatWasPaintedOnTheFormBeforeGoes) {
    form.UserWindow(kWindowNormal, {5, 1100});
    form.BackColor = 0x123456;
    form.Paint().At(2, 1090) = {9, 9, 9, 9}; // below the last row of the gradient
    form.RS.UserSet(40);
    EXPECT_EQ(form.Image().Pixels().At(2, 1090), PixelOf(0x123456));
}

TEST_F(FormGradientTest, HalvesRoundToTheEvenComponent) {
    form.RS.UserSet(446); // 256 - 111.5 = 144.5
    EXPECT_EQ(form.RStart, 144);
    form.RS.UserSet(450); // 256 - 112.5 = 143.5
    EXPECT_EQ(form.RStart, 144);
}

TEST_F(FormGradientTest, TheDirectionIsReadWhenItIsDrawn) {
    form.ckFormDirection.UserClick();
    EXPECT_TRUE(form.PicImage.Picture().IsEmpty());
    form.GF.UserSet(4);
    EXPECT_EQ(form.GFinish, 255);
    const GradientColors colors{145, 6, 117, 1, 255, 1};
    EXPECT_EQ(form.Image().Pixels().At(20, 11), Expected(21 - 14, colors));
}

TEST_F(FormGradientTest, AllSlidersAtTheirMaximumPaintFlatNearBlack) {
    for (ScrollBar* slider : {&form.RS, &form.GS, &form.BS})
        slider->UserSet(1020);
    EXPECT_EQ(form.Image().Pixels(), Bitmap(40, 30, Pixel{1, 1, 1, 0}));
    form.ckFormDirection.UserClick();
    form.RS.UserSet(1016);
    form.RS.UserSet(1020);
    EXPECT_EQ(form.Image().Pixels(), Bitmap(40, 30, Pixel{1, 1, 1, 0}));
}

TEST_F(FormGradientTest, TheFormComesBackToPixels) {
    form.SetScaleWidth(529);
    form.RS.UserSet(40);
    EXPECT_EQ(form.ScaleMode(), kScalePixels);
    EXPECT_EQ(form.ScaleWidth(), 40);
}

} // namespace
} // namespace mirelle::test
