#include "tests/fx/handlers/FxProgram.h"

namespace mirelle::test {
namespace {

class ContrastEffectTest : public FxProgramTest {
protected:
    void Answer(const std::string& percent) {
        program.desktop.dialogs.inputAnswers.push_back(percent);
        form.cmdCont.UserClick();
    }
};

TEST_F(ContrastEffectTest, AsksForAPercentage) {
    Paste(Flat(200, 50, 127));
    Answer("50");
    ASSERT_EQ(program.desktop.dialogs.dialogs.size(), 1U);
    const ShownDialog& dialog = program.desktop.dialogs.dialogs[0];
    EXPECT_EQ(dialog.prompt, "Enter contrast percent (-100>+100)");
    EXPECT_EQ(dialog.title, "Contrast Percentage");
    EXPECT_EQ(dialog.defaultText, "50");
    EXPECT_EQ(Canvas(), Bitmap(6, 5, Pixel{127, 12, 236, 0}));
    EXPECT_EQ(form.Picture().Pixels(), Canvas());
    EXPECT_EQ(form.MousePointer, kPointerDefault);
    EXPECT_FALSE(form.Picture1b.Visible);
}

TEST_F(ContrastEffectTest, CancelChangesNothing) {
    const Picture picture = Flat(200, 50, 127);
    Paste(picture);
    form.MousePointer = kPointerHourglass;
    form.cmdCont.UserClick();
    EXPECT_TRUE(form.PicImage.Picture().SharesPixelsWith(picture));
    EXPECT_EQ(form.MousePointer, kPointerDefault);
}

TEST_F(ContrastEffectTest, TellsPercentsApart) {
    const struct {
        const char* percent;
        Pixel expected; // of red 255, green 0, blue 126
    } rows[] = {
        {"0", {126, 0, 255, 0}},    {"100", {125, 0, 255, 0}},         {"-100", {127, 127, 127, 0}},
        {"abc", {126, 0, 255, 0}},  {"10000000000", {126, 0, 255, 0}}, {"-50", {126, 63, 191, 0}},
        {"12.5", {126, 0, 255, 0}}, {"-12.5", {126, 15, 239, 0}},
    };
    for (const auto& row : rows) {
        Paste(Flat(255, 0, 126));
        Answer(row.percent);
        EXPECT_EQ(Canvas().At(0, 0), row.expected) << row.percent;
    }
}

TEST_F(ContrastEffectTest, TheFastOneTakes30AndAddsUp) {
    Paste(Flat(200, 50, 127));
    form.cmdCont33.UserClick();
    EXPECT_EQ(Canvas().At(0, 0), (Pixel{127, 27, 221, 0}));
    form.cmdCont33.UserClick();
    EXPECT_EQ(Canvas().At(0, 0), (Pixel{127, 0, 249, 0}));
    EXPECT_TRUE(form.Picture1b.Picture().SharesPixelsWith(form.Picture3.Picture()));
    EXPECT_TRUE(program.desktop.dialogs.dialogs.empty());
}

TEST_F(ContrastEffectTest, NeitherRetainsNorTakesAnUndoCopy) {
    const Picture picture = Flat(200, 50, 127);
    Paste(picture);
    form.cmdCont33.UserClick();
    EXPECT_TRUE(form.Picture1.Picture().SharesPixelsWith(picture));
    EXPECT_TRUE(form.Picture3.Picture().SharesPixelsWith(picture));
    form.cmdNegative.UserClick(); // starts from the retained picture, without the contrast
    EXPECT_EQ(Canvas().At(0, 0), (Pixel{128, 205, 55, 0}));
}

} // namespace
} // namespace mirelle::test
